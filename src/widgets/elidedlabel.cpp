#include "widgets/elidedlabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    // What comes from the instrument and the user is text, whatever it looks like.
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    const QString whole = text();
    const QString cut =
        fontMetrics().elidedText(whole, Qt::ElideRight, contentsRect().width() - 2 * margin());
    QString wanted = cut == whole ? QString() : whole;
    if (Qt::mightBeRichText(wanted)) // a tool tip would leave out what looks like a tag
        wanted = Qt::convertFromPlainText(wanted);
    if (toolTip() != wanted)
        setToolTip(wanted);
    if (cut == whole) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), int(Qt::AlignLeft | Qt::AlignVCenter),
                          option.palette, isEnabled(), cut, foregroundRole());
}
