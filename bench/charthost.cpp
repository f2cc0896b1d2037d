#include "charthost.h"

#include <QCoreApplication>
#include <QEvent>

void ChartHost::show(QWidget *chart, QWidget *canvas)
{
    constexpr QSize measured(1000, 600);
    m_window.resize(measured);
    chart->setParent(&m_window);
    chart->resize(measured);
    canvas->installEventFilter(this);
    m_chart = chart;
    m_window.show();
    settle();
}

void ChartHost::resize(const QSize &size)
{
    m_chart->resize(size);
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
