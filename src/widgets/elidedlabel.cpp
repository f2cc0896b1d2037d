#include "widgets/elidedlabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

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
    const QString wanted = cut == whole ? QString() : whole;
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
