#include "charthost.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>

void ChartHost::show(QWidget *chart, QWidget *canvas)
{
    constexpr QSize measured(1000, 600);
    m_window.resize(measured);
    chart->setParent(&m_window);
    chart->resize(measured);
    canvas->installEventFilter(this);
    m_chart = chart;
    m_canvas = canvas;
    m_window.show();
    settle();
}

void ChartHost::resize(const QSize &size)
{
    m_chart->resize(size);
}

void ChartHost::click(const QPointF &position)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, position, m_canvas->mapToGlobal(position.toPoint()), Qt::LeftButton,
                          held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_canvas, &event);
    }
}

void ChartHost::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

bool ChartHost::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        ++m_paintings;
    return QObject::eventFilter(watched, event);
}
