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

ValuePyramid::Block ValuePyramid::blockOfValues(const ValueList &values, int begin)
{
    Block block = single(values, begin);
    for (int place = begin + 1; place < begin + fanOut; ++place) {
        const double value = values[place];
        block.low = value < block.lowest ? place : block.low;
        block.lowest = std::min(block.lowest, value);
        block.high = value > block.highest ? place : block.high;
        block.highest = std::max(block.highest, value);
    }
    return block;
}

ValuePyramid::Block ValuePyramid::blockOfBlocks(const std::vector<Block> &blocks, std::size_t begin)
{
    Block block = blocks[begin];
    for (std::size_t i = begin + 1; i < begin + fanOut; ++i)
        widen(block, blocks[i]);
    return block;
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
            blocks.push_back(level == 0 ? blockOfValues(values, static_cast<int>(begin))
                                        : blockOfBlocks(m_levels[level - 1], begin));
        }
        below = complete;
    }
}

ValuePyramid::Run ValuePyramid::run(const ValueList &values, int first, int last) const
{
    Block found = single(values, first);
    const long long end = static_cast<long long>(last) + 1;
    for (long long at = first; at < end;) {
        // the largest block that begins here and ends within the range
        long long span = 1;
        std::size_t level = 0;
        while (level < m_levels.size() && at % (span * fanOut) == 0 && at + span * fanOut <= end) {
            span *= fanOut;
            ++level;
        }
        widen(found, level > 0 ? m_levels[level - 1][static_cast<std::size_t>(at / span)]
                               : single(values, static_cast<int>(at)));
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
