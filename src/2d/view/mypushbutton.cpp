#include "2d/view/mypushbutton.h"

#include <QColorDialog>
#include <QPainter>

namespace {

constexpr QColor accent(0x0A, 0x86, 0xD6);
constexpr QColor edge(0x8D, 0x98, 0xA3);

} // namespace

MyPushButton::MyPushButton(int index, QWidget *parent)
    : QPushButton(parent)
    , m_index(index)
{
    connect(this, &QPushButton::clicked, this, &MyPushButton::clickedSlot);
}

void MyPushButton::setBackgroundColor(QColor color)
{
    QPalette colors = palette();
    colors.setBrush(QPalette::Button, QBrush(color));
    setPalette(colors);
    setAutoFillBackground(true);
    setFlat(true);
    m_color = color;
    update();
}

void MyPushButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!m_color.isValid())
        return;
    // Painted here, for the application's style sheet paints buttons in its own colours over any
    // palette.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasFocus() ? accent : edge, hasFocus() ? 2.0 : 1.0));
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), 3.0, 3.0);
}

void MyPushButton::clickedSlot()
{
    const QColor color = QColorDialog::getColor(Qt::white);
    if (color.isValid())
        emit selectColor(m_index, color);
}
