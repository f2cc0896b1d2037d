#pragma once

#include <QCoreApplication>
#include <QString>

class QLabel;
class QSize;
struct Reading;

/// The reading as the window shows it: the figures, the instrument's own text, and below them how
/// far they can be trusted, in words and shape as well as in colour.
class PowerDisplay
{
    Q_DECLARE_TR_FUNCTIONS(PowerDisplay)

public:
    /// What a reading is worth at a glance.
    enum class State { NotConnected, NoReading, Live, Stale };

    struct Labels
    {
        QLabel *power;
        QLabel *unit;
        QLabel *text;
        QLabel *state;
    };

    explicit PowerDisplay(const Labels &labels);

    /// The figures of \a reading, with two decimals; "--.--" before the first.
    static QString figures(const Reading &reading);

    /// Shows \a reading as \a state; \a age in seconds is that of a stale one.
    void show(const Reading &reading, State state, int age);

    /// Makes the reading as large as \a room (the window without the panel, in pixels) allows, so
    /// that it is legible across a bench: the power in dBm, the unit behind it on the same line,
    /// and the instrument's text beside them, which keeps room for as many characters as it usually
    /// has.
    void fit(const QSize &room);

private:
    static QString describe(const Reading &reading, State state, int age);

    Labels m_labels;
};
