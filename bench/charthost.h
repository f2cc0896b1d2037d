#pragma once

#include <QObject>
#include <QPointF>
#include <QSize>
#include <QVector>
#include <QWidget>

/// The window around a chart that is measured. Every chart here is 1000 by 600 pixels, antialiased,
/// with pens of width 2, numbered axes and a grid.
class ChartHost : public QObject
{
    Q_OBJECT

public:
    ~ChartHost() override = default;

    void resize(const QSize &size);
    /// Does what is due: layout and painting.
    void settle();
    /// How often the chart was painted so far.
    int paintings() const { return m_paintings; }

protected:
    /// Shows \a chart, which the host's window deletes; its \a canvas is what gets painted.
    void show(QWidget *chart, QWidget *canvas);
    /// Presses and releases the left button on the canvas.
    void click(const QPointF &position);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget m_window;
    QWidget *m_chart = nullptr;
    QWidget *m_canvas = nullptr;
    int m_paintings = 0;
};

/// A chart with one curve, -180 to 180 degrees and -80 to 20 dB.
class CurveChart : public ChartHost
{
    Q_OBJECT

public:
    /// Takes the points over in the form that the library likes best; not timed.
    virtual void prepare(const QVector<QPointF> &points) = 0;
    /// Shows the points taken over.
    virtual void load() = 0;
    /// Removes the curve.
    virtual void clear() = 0;
    /// Widens or narrows the range shown by a twentieth about its middle.
    virtual void zoom(bool widen) = 0;
    /// The place of \a value on the canvas.
    virtual QPointF position(const QPointF &value) const = 0;
    /// Asks the curve alone whether it is at \a position.
    virtual void hitTest(const QPointF &position) = 0;
    /// Presses and releases the mouse there, which selects the curve if it is hit.
    void press(const QPointF &position) { click(position); }
};

/// A chart of ten minutes, one point a second.
class TimeChart : public ChartHost
{
    Q_OBJECT

public:
    /// Appends a point, drops the one that is too old, scrolls, and fits the level axis.
    virtual void tick(double minutes, double level) = 0;
};
