#include "appinit.h"

#include "frame/frameedge.h"

#include <QApplication>
#include <QMouseEvent>
#include <QVariant>
#include <QWidget>

namespace {

bool isMouseEvent(QEvent::Type type)
{
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
           type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
}

QWidget *topLevelAncestor(QObject *object)
{
    while (object->parent() != nullptr)
        object = object->parent();
    return qobject_cast<QWidget *>(object);
}

Qt::CursorShape cursorFor(int edges)
{
    switch (edges) {
    case FrameEdge::Top | FrameEdge::Left:
    case FrameEdge::Bottom | FrameEdge::Right:
        return Qt::SizeFDiagCursor;
    case FrameEdge::Top | FrameEdge::Right:
    case FrameEdge::Bottom | FrameEdge::Left:
        return Qt::SizeBDiagCursor;
    case FrameEdge::Top:
    case FrameEdge::Bottom:
        return Qt::SizeVerCursor;
    case FrameEdge::Left:
    case FrameEdge::Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}

} // namespace

AppInit::AppInit(QObject *parent)
    : QObject(parent)
{}

AppInit *AppInit::Instance()
{
    static auto *const instance = new AppInit;
    return instance;
}

void AppInit::start()
{
    qApp->installEventFilter(this);
}

bool AppInit::eventFilter(QObject *watched, QEvent *event)
{
    if (!isMouseEvent(event->type()))
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);

    const QObject *parent = watched->parent();
    if (parent != nullptr && m_edges == FrameEdge::None && watched->property("canMove").toBool()) {
        if (auto *window = qobject_cast<QWidget *>(parent->parent()))
            drag(window, *mouse);
    }

    QWidget *window = topLevelAncestor(watched);
    if (window != nullptr && mouse->type() == QEvent::MouseMove &&
        window->property("resize").toBool()) {
        if ((mouse->buttons() & Qt::LeftButton) == 0)
            detectEdges(window, mouse->screenPos().toPoint());
        else
            resizeWindow(window, mouse->screenPos().toPoint());
    }
    return false;
}

void AppInit::drag(QWidget *window, const QMouseEvent &event)
{
    const QPoint cursor = event.screenPos().toPoint();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (event.button() == Qt::LeftButton) {
            m_pressed = true;
            m_pressOffset = cursor - window->pos();
        }
        break;
    case QEvent::MouseButtonRelease:
        m_pressed = false;
        break;
    case QEvent::MouseMove:
        if (m_pressed && (event.buttons() & Qt::LeftButton) != 0)
            window->move(cursor - m_pressOffset);
        break;
    case QEvent::MouseButtonDblClick:
        if (event.button() == Qt::LeftButton) {
            if (window->isMaximized())
                window->showNormal();
            else
                window->showMaximized();
        }
        break;
    default:
        break;
    }
}

void AppInit::detectEdges(QWidget *window, const QPoint &cursor)
{
    const auto edges = FrameEdge::edgesAt(cursor, window->frameGeometry(), m_bandWidth & 0xff);
    if (!edges)
        return;
    m_edges = *edges;
    window->setCursor(cursorFor(m_edges));
}

void AppInit::resizeWindow(QWidget *window, const QPoint &cursor) const
{
    if (m_edges != FrameEdge::None)
        window->setGeometry(FrameEdge::resized(window->geometry(), m_edges, cursor,
                                               window->minimumSize(), window->maximumSize()));
}
