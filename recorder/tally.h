#pragma once

#include "measure/powerstatistics.h"
#include "meter/metervalues.h"
#include "recorder/row.h"

/// What has come in one interval.
class Tally
{
public:
    void add(const MeterReading &reading);
    /// The wall clock stepped.
    void noteStep() { m_hasStep = true; }

    bool isEmpty() const { return m_statistics.count() + m_invalid == 0; }
    /// Puts everything into \a row but its times and settings; of these only that levels came which
    /// are relative, since that may be told before the settings are. \a idle is the reason of an
    /// interval in which no reading came to an end.
    void fill(Row &row, const QString &idle) const;

private:
    PowerStatistics m_statistics;
    std::optional<double> m_last;
    bool m_isRelative = false; // the levels
    int m_invalid = 0;
    std::optional<Outcome> m_spoiled; // the first that was not `Ok`
    bool m_hasStep = false;
};
