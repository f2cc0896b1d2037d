#include "console/limitlines.h"

#include "2d/view/curveview.h"
#include "watch/limitwatch.h"

#include <QChart>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QPen>
#include <QValueAxis>

using namespace QtCharts;

LimitLines::LimitLines(LimitWatch *watch, CurveView *view, QObject *parent)
    : QObject(parent)
    , m_watch(watch)
    , m_view(view)
{
    constexpr qreal behindCurves = 4.0;
    const QColor color(0xb3, 0x26, 0x1e);
    for (Line &line : m_lines) {
        line.line = view->scene()->addLine(QLineF(), QPen(color, 1.0, Qt::DashLine));
        line.label = view->scene()->addSimpleText(QString());
        line.label->setBrush(color);
        line.line->setZValue(behindCurves);
        line.label->setZValue(behindCurves);
        line.line->hide();
        line.label->hide();
    }
    connect(watch, &LimitWatch::changed, this, QOverload<>::of(&LimitLines::place));
    connect(view->chart(), &QChart::plotAreaChanged, this, QOverload<>::of(&LimitLines::place));
    auto *axis = qobject_cast<QValueAxis *>(view->chart()->axes(Qt::Vertical).constFirst());
    connect(axis, &QValueAxis::rangeChanged, this, QOverload<>::of(&LimitLines::place));
}

void LimitLines::place()
{
    const Limits &limits = m_watch->limits();
    const bool isResting = m_watch->state() == LimitWatch::State::Resting;
    for (const LimitAlarm::Limit limit : {LimitAlarm::High, LimitAlarm::Low}) {
        const std::optional<double> &level = limit == LimitAlarm::High ? limits.high : limits.low;
        place(limit, level.value_or(0.0), level && !isResting);
    }
}

void LimitLines::place(LimitAlarm::Limit limit, double level, bool isShown) const
{
    const Line &line = m_lines[limit];
    const QRectF area = m_view->chart()->plotArea();
    const ViewRange range = m_view->shownRange();
    const bool isInView = isShown && level >= range.yMin && level <= range.yMax;
    line.line->setVisible(isInView);
    line.label->setVisible(isInView);
    if (!isInView)
        return;
    const double y = m_view->toScene({range.xMin, level}).y();
    line.line->setLine(QLineF(area.left(), y, area.right(), y));
    line.label->setText(QStringLiteral("%1 dBm").arg(level, 0, 'f', 2));
    const QRectF text = line.label->boundingRect();
    // Outside of both, so that they can be read where the lines are close.
    line.label->setPos(area.right() - text.width() - 4.0,
                       limit == LimitAlarm::High ? y - text.height() : y);
}
