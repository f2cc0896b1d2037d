#include "2d/form/keyboardsplitter.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int step = 16; // pixels

class Handle : public QSplitterHandle
{
public:
    Handle(Qt::Orientation orientation, QSplitter *parent)
        : QSplitterHandle(orientation, parent)
    {
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(KeyboardSplitter::tr("Border between panes, moved with the arrow keys"));
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool sideways = orientation() == Qt::Horizontal;
        const int place = sideways ? x() : y();
        if (event->key() == (sideways ? Qt::Key_Left : Qt::Key_Up))
            moveSplitter(place - step);
        else if (event->key() == (sideways ? Qt::Key_Right : Qt::Key_Down))
            moveSplitter(place + step);
        else
            QSplitterHandle::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        QSplitterHandle::paintEvent(event);
        if (hasFocus())
            QPainter(this).fillRect(rect(), palette().highlight());
    }
};

} // namespace

QSplitterHandle *KeyboardSplitter::createHandle()
{
    return new Handle(orientation(), this);
}
