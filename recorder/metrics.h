#pragma once

#include "measure/limits.h"
#include "recorder/row.h"

/// What is told to Prometheus of one instrument.
struct Metrics
{
    QString meter;
    std::optional<Row> row;          ///< the interval that ended last
    std::optional<qint64> lastValid; ///< when the last valid reading came, ms since 1970 in UTC
    qint64 valid = 0;                ///< readings since the start
    qint64 invalid = 0;
    qint64 reconnects = 0;
    LimitAlarm alarm;

    /// The text of Prometheus' exposition format 0.0.4. Without a valid reading in the row the
    /// powers are left out, and so they are while levels are relative.
    QByteArray text() const;
};
