#pragma once

#include "recorddata/recorddata.h"

#include <optional>

/// What two cursors on a record tell.
struct RecordSpan
{
    double seconds = 0.0;             ///< from A to B, negative where B is the earlier
    std::optional<double> difference; ///< B less A in dB; nothing where only one of them is in dBm
    bool mixesUnits = false;          ///< some points between are in dBm and some in dB
    bool isRelative = false;          ///< the statistics are in dB
    int gaps = 0;                     ///< between the cursors
    PowerStatistics statistics;       ///< of all points between, both included; none where mixed
};

/// The span between the points \a a and \a b.
RecordSpan recordSpan(const RecordData &data, int a, int b);
