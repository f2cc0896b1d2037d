#pragma once

#include <QPointF>
#include <QVector>

/// A stretch of one axis, from low to high in the order given: a text may ask for it upside down.
struct ValueSpan
{
    double low = 0.0;
    double high = 0.0;
};

/// The part of the value plane that a chart shows, in the units of its axes.
struct ViewRange
{
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    bool isRound = false; ///< x is a direction, of which every one is in view

    /// Whether \a value lies inside, limits included.
    bool contains(const QPointF &value) const;

    /// This range stretched by \a factor about \a centre: above 1 shows more, below 1 less.
    ViewRange scaledAbout(const QPointF &centre, double factor) const;

    /// This range moved by fractions of its own width and height.
    ViewRange movedBy(double widths, double heights) const;

    /// Lets the window of \a period minutes follow the time \a x once x runs out of it on the
    /// right; the window never starts before 0.
    void followTime(double x, int period);
};

/// The Y axis of \a div divisions, \a scaleDiv units each, with \a reference at its centre.
ValueSpan divisionSpan(int div, double scaleDiv, double reference);

/// The Y axis of a time chart over \a points: whole units, 10 above and below. Without points it is
/// upside down, 989 to -989, until the next point comes.
ValueSpan autoscaledSpan(const QVector<QPointF> &points);
