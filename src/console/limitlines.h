#pragma once

#include "measure/limits.h"

#include <QObject>

#include <array>

class CurveView;
class LimitWatch;

QT_BEGIN_NAMESPACE
class QGraphicsLineItem;
class QGraphicsSimpleTextItem;
QT_END_NAMESPACE

/// The limits as lines across the time chart, while they are watched and in view.
class LimitLines : public QObject
{
    Q_OBJECT

public:
    LimitLines(LimitWatch *watch, CurveView *view, QObject *parent);

private:
    struct Line
    {
        QGraphicsLineItem *line; ///< the scene's
        QGraphicsSimpleTextItem *label;
    };

    void place();
    void place(LimitAlarm::Limit limit, double level, bool isShown) const;

    LimitWatch *m_watch;
    CurveView *m_view;
    std::array<Line, 2> m_lines; ///< by LimitAlarm::Limit
};
