#include "console/inputgate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

InputGate::InputGate(QWidget *exempt)
    : QObject(exempt)
    , m_exempt(exempt)
{}

void InputGate::setClosed(bool closed)
{
    if (closed == m_isClosed)
        return;
    m_isClosed = closed;
    if (closed)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

bool InputGate::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
        // A window passes on to the widget that is meant.
        if (!watched->isWidgetType() || watched == m_exempt)
            return false;
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            emit escaped();
        return true;
    default:
        return false;
    }
}
