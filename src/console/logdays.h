#pragma once

#include <QDate>

/// The days of the message log while the console runs: tells once on each where the log is, and
/// removes those that are too old.
class LogDays
{
public:
    /// Starts today; \a keep is how many days of the log stay, today included. 0: all.
    void begin(int keep);
    /// It is \a today. Does nothing before the begin.
    void tick(const QDate &today);

private:
    void enter(const QDate &day);

    QDate m_day;
    int m_keep = 0;
};
