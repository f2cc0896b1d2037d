#pragma once

class GraphicsBase;
class QBoxLayout;
class QString;
class QWidget;

/// The console's chart of the power over the last minutes: one curve, fed once a second and started
/// again after an hour.
class TimeChart
{
public:
    /// Puts the chart first into \a layout; the window of \a parent owns it.
    TimeChart(QWidget *parent, QBoxLayout *layout);

    /// Adds the point of one second, with the power as it is shown, in dBm. What is no number (the
    /// display before the first reading) is drawn as 0.
    void feed(const QString &shownPower);

    /// Empties the chart and starts again at 0.
    void clear();
    /// The next point stands at 0, whatever the chart shows.
    void restartTime() { m_elapsedSeconds = 0.0; }

    /// Shows the last \a minutes, with \a title at the time axis.
    void setPeriod(int minutes, const QString &title);

    /// Shows the titles in the current language.
    void retranslate();

private:
    GraphicsBase *m_view;
    double m_elapsedSeconds = 0.0; // since the chart was last emptied
};
