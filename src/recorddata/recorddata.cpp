#include "recorddata/recorddata.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int pointsPerPlace = 64;
constexpr int pointsPerBlock = 1024;

template<typename List>
void cutFrom(List &list, int point)
{
    list.erase(std::lower_bound(list.begin(), list.end(), point), list.end());
}

} // namespace

void RecordData::append(const RecordPoint &point)
{
    const int index = size();
    const bool isFirst = m_times.empty();
    const bool goesBack = !isFirst && point.time < m_times.back();
    if (isFirst || goesBack)
        m_runs.push_back(index);
    if (!isFirst && (point.startsAnew || goesBack))
        m_gaps.push_back(index);
    if (m_units.empty() || m_units.back().isRelative != point.isRelative)
        m_units.push_back({index, point.isRelative});
    if (index % pointsPerPlace == 0)
        m_places.push_back(point.place);
    m_times.push_back(point.time);
    m_levels.push_back(point.level);
    m_begin = isFirst ? point.time : std::min(m_begin, point.time);
    m_end = isFirst ? point.time : std::max(m_end, point.time);
}

void RecordData::truncate(int size)
{
    if (size >= this->size())
        return;
    const auto count = static_cast<std::size_t>(size);
    m_times.resize(count);
    m_levels.resize(count);
    m_places.resize((count + pointsPerPlace - 1) / pointsPerPlace);
    m_blocks.resize(std::min(m_blocks.size(), count / pointsPerBlock));
    cutFrom(m_gaps, size);
    cutFrom(m_runs, size);
    while (!m_units.empty() && m_units.back().from >= size)
        m_units.pop_back();
    m_pyramid.truncate(size);
    m_begin = 0.0;
    m_end = 0.0;
    for (std::size_t run = 0; run < m_runs.size(); ++run) {
        const double first = time(m_runs[run]);
        const double last = time(run + 1 < m_runs.size() ? m_runs[run + 1] - 1 : size - 1);
        m_begin = run == 0 ? first : std::min(m_begin, first);
        m_end = run == 0 ? last : std::max(m_end, last);
    }
}

void RecordData::index()
{
    m_pyramid.extend(levels());
    while ((m_blocks.size() + 1) * pointsPerBlock <= m_levels.size()) {
        PowerStatistics block;
        const std::size_t begin = m_blocks.size() * pointsPerBlock;
        for (std::size_t i = begin; i < begin + pointsPerBlock; ++i)
            block.add(m_levels[i]);
        m_blocks.push_back(block);
    }
}

bool RecordData::isRelative(int point) const
{
    const auto next =
        std::upper_bound(m_units.begin(), m_units.end(), point,
                         [](int at, const UnitChange &unit) { return at < unit.from; });
    return next != m_units.begin() && std::prev(next)->isRelative;
}

bool RecordData::mixesUnits(const PointRange &range) const
{
    return std::any_of(m_units.begin(), m_units.end(), [&range](const UnitChange &unit) {
        return unit.from > range.first && unit.from <= range.last;
    });
}

int RecordData::gaps(const PointRange &range) const
{
    if (range.isEmpty())
        return 0;
    const auto from = std::upper_bound(m_gaps.begin(), m_gaps.end(), range.first);
    return static_cast<int>(std::upper_bound(from, m_gaps.end(), range.last) - from);
}

int RecordData::nextGap(int point) const
{
    const auto gap = std::upper_bound(m_gaps.begin(), m_gaps.end(), point);
    return gap == m_gaps.end() ? size() : *gap;
}

/// The first point of \a run later than \a time, or the one behind the run.
int RecordData::firstAfter(const PointRange &run, double time) const
{
    const auto begin = m_times.begin();
    return static_cast<int>(std::upper_bound(begin + run.first, begin + run.last + 1, time) -
                            begin);
}

/// The same for the points from \a from to \a last, looked for about \a guess points on.
int RecordData::firstAfterNear(int from, int last, double time, int guess) const
{
    int low = from;
    int high = from;
    while (high <= last && m_times[static_cast<std::size_t>(high)] <= time) {
        low = high;
        high = high > last - guess ? last + 1 : high + guess;
    }
    const auto begin = m_times.begin();
    return static_cast<int>(std::upper_bound(begin + low, begin + high, time) - begin);
}

std::vector<PointRange> RecordData::between(double from, double to) const
{
    std::vector<PointRange> ranges;
    const double before = std::nextafter(from, from - 1.0);
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const PointRange run{m_runs[i], i + 1 < m_runs.size() ? m_runs[i + 1] - 1 : size() - 1};
        const PointRange part{firstAfter(run, before), firstAfter(run, to) - 1};
        if (!part.isEmpty())
            ranges.push_back(part);
    }
    return ranges;
}

int RecordData::nearest(double time) const
{
    int best = -1;
    const auto distance = [&](int point) { return std::abs(m_times[std::size_t(point)] - time); };
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const PointRange run{m_runs[i], i + 1 < m_runs.size() ? m_runs[i + 1] - 1 : size() - 1};
        const int after = firstAfter(run, time);
        for (const int point : {after - 1, after}) {
            const bool inRun = point >= run.first && point <= run.last;
            if (inRun && (best < 0 || distance(point) <= distance(best)))
                best = point;
        }
    }
    return best;
}

std::vector<RecordData::Column> RecordData::columns(double from, double to, int width) const
{
    std::vector<Column> all;
    if (!(to > from) || width < 1)
        return all;
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const PointRange run{m_runs[i], i + 1 < m_runs.size() ? m_runs[i + 1] - 1 : size() - 1};
        if (time(run.last) >= from && time(run.first) <= to)
            addColumns(all, run, from, to, width);
    }
    return all;
}

void RecordData::addColumns(std::vector<Column> &columns, const PointRange &run, double from,
                            double to, int width) const
{
    const int last = std::min(firstAfter(run, to), run.last);
    int at = std::max(firstAfter(run, from) - 1, run.first);
    bool startsAnew = true;
    int gap = nextGap(at);
    int guess = 1;
    while (at <= last) {
        // all points of this column of pixels; what lies before the left edge is one column
        const double column = std::floor((time(at) - from) / (to - from) * width);
        const double edge = from + (std::max(column, -1.0) + 1.0) / width * (to - from);
        int next = firstAfterNear(at, last, std::nextafter(edge, from), guess);
        next = std::max(next, at + 1);
        guess = next - at + 1;
        // Gaps that share a column with others are seen by its ends alone.
        const bool isCut = gap < next;
        const int stop = isCut ? gap : next;
        const ValuePyramid::Run piece = m_pyramid.run(levels(), at, stop - 1);
        columns.push_back({piece.first, piece.low, piece.high, piece.last, startsAnew});
        startsAnew = isCut || gap == stop;
        at = stop;
        if (isCut && at < next) {
            const ValuePyramid::Run rest = m_pyramid.run(levels(), at, next - 1);
            columns.push_back({rest.first, rest.low, rest.high, rest.last, true});
            at = next;
            startsAnew = std::binary_search(m_gaps.begin(), m_gaps.end(), at);
        }
        gap = nextGap(at);
    }
}

PowerStatistics RecordData::statistics(const PointRange &range) const
{
    PowerStatistics all;
    for (int at = range.first; at <= range.last;) {
        const auto block = static_cast<std::size_t>(at / pointsPerBlock);
        const bool isWhole = at % pointsPerBlock == 0 && block < m_blocks.size() &&
                             at + pointsPerBlock - 1 <= range.last;
        if (isWhole) {
            all.merge(m_blocks[block]);
            at += pointsPerBlock;
        } else {
            all.add(level(at));
            ++at;
        }
    }
    return all;
}

RowPlace RecordData::place(int point, int &known) const
{
    known = point / pointsPerPlace * pointsPerPlace;
    return m_places[static_cast<std::size_t>(point / pointsPerPlace)];
}
