#include "2d/mypushbutton.h"

#include <QColorDialog>

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
    // The application's style sheet paints buttons in its own colours, over any palette.
    setStyleSheet(QStringLiteral("QPushButton { background-color: %1; border: 1px solid #8D98A3;"
                                 " border-radius: 3px; }")
                      .arg(color.name()));
}

void MyPushButton::clickedSlot()
{
    const QColor color = QColorDialog::getColor(Qt::white);
    if (color.isValid())
        emit selectColor(m_index, color);
}
