#include "console/statuslabels.h"

#include "widgets/elidedlabel.h"

#include <QDateTime>
#include <QLocale>
#include <QPushButton>
#include <QStatusBar>

#include <utility>

namespace {

template<typename Label>
Label *addLabel(QStatusBar *bar, const QString &name, Qt::Alignment alignment)
{
    auto *label = new Label(bar);
    label->setObjectName(name);
    label->setAlignment(alignment | Qt::AlignVCenter);
    // A long identity must not widen the window.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar->addWidget(label, 1);
    return label;
}

} // namespace

StatusLabels::StatusLabels(QStatusBar *bar)
    : m_bar(bar)
    , m_identity(addLabel<ElidedLabel>(bar, QStringLiteral("labelIdentity"), Qt::AlignLeft))
    , m_port(addLabel<ElidedLabel>(bar, QStringLiteral("labelPort"), Qt::AlignHCenter))
    , m_link(addLabel<QLabel>(bar, QStringLiteral("labelLink"), Qt::AlignHCenter))
    , m_clock(addLabel<QLabel>(bar, QStringLiteral("labelClock"), Qt::AlignRight))
    , m_notice(new ElidedLabel(bar))
    , m_stop(new QPushButton(bar))
{
    m_notice->setObjectName(QStringLiteral("labelNotice"));
    m_stop->setObjectName(QStringLiteral("btnStopOpening"));
    bar->insertWidget(0, m_stop);
    m_stop->hide();
    clearNotice();
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
    m_clock->setText(QLocale::c().toString(now, QStringLiteral("yyyy-MM-dd hh:mm:ss")));
}

void StatusLabels::showNotice(Notice about, const std::function<QString()> &text)
{
    if (!std::exchange(m_isNoticePlaced, true)) {
        constexpr int stretch = 4;
        m_bar->insertWidget(0, m_notice, stretch);
    }
    m_noticeTopic = about;
    m_noticeText = text;
    m_notice->setText(text());
    m_notice->setVisible(true);
    m_identity->setVisible(false);
    m_port->setVisible(false);
}

void StatusLabels::clearNotice(Notice about)
{
    if (m_noticeText && m_noticeTopic == about)
        clearNotice();
}

void StatusLabels::clearNotice()
{
    m_noticeText = nullptr;
    m_notice->clear();
    m_notice->setVisible(false);
    m_identity->setVisible(true);
    m_port->setVisible(true);
}

QString StatusLabels::notice() const
{
    return m_notice->text();
}

void StatusLabels::retranslate()
{
    m_stop->setText(tr("Stop"));
    m_stop->setToolTip(tr("Give up opening the link (Esc)"));
    if (m_noticeText)
        m_notice->setText(m_noticeText());
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
