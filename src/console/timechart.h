#pragma once

#include <QElapsedTimer>
#include <QList>

class GraphicsBase;
class QBoxLayout;
class QString;
class QWidget;
struct Reading;

/// The console's chart of the power over the last minutes: one curve, fed once a second and started
/// again after an hour.
class TimeChart
{
public:
    /// Puts the chart first into \a layout; the window of \a parent owns it.
    TimeChart(QWidget *parent, QBoxLayout *layout);

    /// A tick of the clock: adds \a reading as a point, a missing one at Reading::noLevel, and none
    /// before the first. The time goes on by the whole seconds since the last tick, at least one:
    /// a console that was held up by its instrument has missed ticks, not time.
    void feed(const Reading &reading) { feed(reading, m_clock.elapsed()); }
    /// The same at \a now, in ms of a clock that only goes forward.
    void feed(const Reading &reading, qint64 now);

    /// Empties the chart, its markers included, and starts again at 0.
    void clear();
    /// The next point stands at 0, whatever the chart shows.
    void restartTime();
    /// A link that was lost is back: the next point stands where the time has come to since the
    /// point before restartTime(), on a line of its own, so that there is a gap.
    void resume();
    /// Where the last point stands, in minutes.
    double position() const;

    /// Shows the last \a minutes, with \a title at the time axis.
    void setPeriod(int minutes, const QString &title);

    /// Shows the titles in the current language.
    void retranslate();

    GraphicsBase *view() const { return m_view; }

private:
    static constexpr qint64 noTick = -1;

    void removeFurtherLines();

    GraphicsBase *m_view;
    QElapsedTimer m_clock;
    qint64 m_lastTick = noTick;    // ms
    double m_elapsedSeconds = 0.0; // since the chart was last emptied
    double m_interrupted = 0.0;    // what the last two were at the last restartTime()
    qint64 m_interruptedTick = noTick;
    int m_path = 1;            // the line that grows, by its id
    QList<int> m_furtherLines; // those behind gaps
};
