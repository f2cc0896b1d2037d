#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWidget;

/// The application-wide event filter that lets frameless windows be moved and resized.
///
/// Windows steer it by dynamic properties: "canMove" on the widget that serves as a title bar moves
/// that widget's grandparent, "resize" on a top-level window lets its edges be dragged.
class AppInit : public QObject
{
    Q_OBJECT

public:
    /// The one instance, created on the first call and never deleted.
    static AppInit *Instance();

    /// Makes the instance see every event of every object.
    void start();

    /// Always false: every event goes on to its receiver.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit AppInit(QObject *parent = nullptr);

    void drag(QWidget *window, const QMouseEvent &event);
    void detectEdges(QWidget *window, const QPoint &cursor);
    void resizeWindow(QWidget *window, const QPoint &cursor) const;

    int m_bandWidth = 4; // pixels; only the low byte counts
    int m_edges = 0;     // FrameEdge::Edge bits
    bool m_pressed = false;
    QPoint m_pressOffset; // from the window's position to the cursor at the press
};
