#include "console/inputgate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QWidget>

namespace {

/// Whether \a object belongs to a message, which stands in front of everything else until it has
/// been answered.
bool isInBox(QObject *object)
{
    return qobject_cast<QMessageBox *>(static_cast<QWidget *>(object)->window()) != nullptr;
}

} // namespace

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
        // A window passes on to the widget that is meant, but a shortcut reaches an action at once.
        if (!watched->isWidgetType())
            return event->type() == QEvent::Shortcut;
        if (watched == m_exempt || isInBox(watched))
            return false;
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            emit escaped();
        return true;
    default:
        return false;
    }
}
