#include "recorddata/recordspan.h"

#include <algorithm>

RecordSpan recordSpan(const RecordData &data, int a, int b)
{
    RecordSpan span;
    span.seconds = data.time(b) - data.time(a);
    if (data.isRelative(a) == data.isRelative(b))
        span.difference = data.level(b) - data.level(a);
    span.isRelative = data.isRelative(a);
    const auto [from, to] = std::minmax({data.time(a), data.time(b)});
    const std::vector<PointRange> ranges = data.between(from, to);
    for (const PointRange &range : ranges) {
        span.mixesUnits = span.mixesUnits || data.mixesUnits(range) ||
                          data.isRelative(range.first) != span.isRelative;
        span.gaps += data.gaps(range);
    }
    if (span.mixesUnits)
        return span;
    for (const PointRange &range : ranges)
        span.statistics.merge(data.statistics(range));
    return span;
}
