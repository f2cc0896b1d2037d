#include "2d/data/valuepyramid.h"

#include <algorithm>

namespace {

constexpr int fanOut = 8; // values to a block, blocks to one of the next level

} // namespace

void ValuePyramid::clear()
{
    m_levels.clear();
    m_size = 0;
}

void ValuePyramid::truncate(int size)
{
    if (size >= m_size)
        return;
    m_size = size;
    std::size_t complete = static_cast<std::size_t>(size);
    for (std::vector<Block> &blocks : m_levels) {
        complete /= fanOut;
        blocks.resize(std::min(blocks.size(), complete));
    }
}

/// One value for level 0, else a block of the level below.
ValuePyramid::Block ValuePyramid::part(const ValueList &values, std::size_t level,
                                       std::size_t index) const
{
    if (level > 0)
        return m_levels[level - 1][index];
    const int place = static_cast<int>(index);
    return {values[place], values[place], place, place};
}

void ValuePyramid::extend(const ValueList &values)
{
    m_size = std::max(m_size, values.count);
    std::size_t below = static_cast<std::size_t>(m_size);
    for (std::size_t level = 0; below >= fanOut; ++level) {
        if (level == m_levels.size())
            m_levels.emplace_back();
        std::vector<Block> &blocks = m_levels[level];
        const std::size_t complete = below / fanOut;
        if (blocks.empty())
            blocks.reserve(complete);
        while (blocks.size() < complete) {
            const std::size_t begin = blocks.size() * fanOut;
            Block block = part(values, level, begin);
            for (std::size_t i = begin + 1; i < begin + fanOut; ++i)
                widen(block, part(values, level, i));
            blocks.push_back(block);
        }
        below = complete;
    }
}

ValuePyramid::Run ValuePyramid::run(const ValueList &values, int first, int last) const
{
    Block found = part(values, 0, static_cast<std::size_t>(first));
    const long long end = static_cast<long long>(last) + 1;
    for (long long at = first; at < end;) {
        // the largest block that begins here and ends within the range
        long long span = 1;
        std::size_t level = 0;
        while (level < m_levels.size() && at % (span * fanOut) == 0 && at + span * fanOut <= end) {
            span *= fanOut;
            ++level;
        }
        if (level > 0) {
            widen(found, m_levels[level - 1][static_cast<std::size_t>(at / span)]);
        } else {
            const int place = static_cast<int>(at);
            widen(found, {values[place], values[place], place, place});
        }
        at += span;
    }
    return {first, found.low, found.high, last};
}

std::vector<ValuePyramid::Run> ValuePyramid::columns(const ValueList &values, int first, int last,
                                                     int columns) const
{
    std::vector<Run> runs;
    if (last < first || columns < 1)
        return runs;
    const long long length = static_cast<long long>(last) - first + 1;
    const long long count = std::min<long long>(columns, length);
    runs.reserve(static_cast<std::size_t>(count));
    for (long long i = 0; i < count; ++i) {
        const long long begin = first + length * i / count;
        const long long next = first + length * (i + 1) / count;
        runs.push_back(run(values, static_cast<int>(begin), static_cast<int>(next - 1)));
    }
    return runs;
}
