#include "console/statuslabels.h"

#include <QDateTime>
#include <QLabel>
#include <QStatusBar>

namespace {

QLabel *addLabel(QStatusBar *bar, const QString &name, Qt::Alignment alignment)
{
    auto *label = new QLabel(bar);
    label->setObjectName(name);
    label->setAlignment(alignment | Qt::AlignVCenter);
    // A long identity must not widen the window.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar->addWidget(label, 1);
    return label;
}

} // namespace

StatusLabels::StatusLabels(QStatusBar *bar)
    : m_identity(addLabel(bar, QStringLiteral("labelIdentity"), Qt::AlignLeft))
    , m_port(addLabel(bar, QStringLiteral("labelPort"), Qt::AlignHCenter))
    , m_link(addLabel(bar, QStringLiteral("labelLink"), Qt::AlignHCenter))
    , m_clock(addLabel(bar, QStringLiteral("labelClock"), Qt::AlignRight))
{
    // What comes from the instrument and the user is text, whatever it looks like.
    m_identity->setTextFormat(Qt::PlainText);
    m_port->setTextFormat(Qt::PlainText);
    showLink(Link::Closed);
    showTime(QDateTime::currentDateTime());
}

void StatusLabels::showIdentity(const QString &identity)
{
    m_identity->setText(identity);
}

void StatusLabels::showPort(const QString &name, int value)
{
    m_port->setText(QStringLiteral("%1/%2").arg(name, QString::number(value)));
}

void StatusLabels::showLink(Link link)
{
    m_shownLink = link;
    retranslate();
}

void StatusLabels::showTime(const QDateTime &now)
{
    m_clock->setText(now.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
}

void StatusLabels::retranslate()
{
    switch (m_shownLink) {
    case Link::Closed:
        m_link->setText(tr("<font color = red>Close</font>"));
        break;
    case Link::Open:
        m_link->setText(tr("<font color = blue>Open</font>"));
        break;
    case Link::Connected:
        m_link->setText(tr("<font color = blue>Connect</font>"));
        break;
    case Link::Disconnected:
        m_link->setText(tr("<font color = red>Disconnect</font>"));
        break;
    }
}
