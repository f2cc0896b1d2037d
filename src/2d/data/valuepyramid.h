#pragma once

#include <cstddef>
#include <vector>

/// Finite numbers in the memory of somebody else, \a stride doubles apart: a plain list has 1, the
/// y values of a list of points have 2.
struct ValueList
{
    const double *data = nullptr;
    int count = 0;
    int stride = 1;

    double operator[](int index) const { return data[static_cast<std::ptrdiff_t>(index) * stride]; }
};

/// Answers which values of a long list stand out in a range of it, in a time that hardly grows with
/// the range: over blocks of 8, 64, 512 ... values it keeps where the lowest and the highest are.
///
/// It holds no values. Every call is given the list that extend() was given, which may meanwhile
/// have grown at its end, but not have changed before that.
class ValuePyramid
{
public:
    /// What a picture needs of neighbouring values, as indices; of equal values the first counts.
    struct Run
    {
        int first = 0;
        int low = 0;
        int high = 0;
        int last = 0;
    };

    /// The number of values taken in.
    int size() const { return m_size; }
    void clear();
    /// Takes in what \a values holds behind the first size() values.
    void extend(const ValueList &values);
    /// Forgets the values from \a size on.
    void truncate(int size);

    /// The run from \a first to \a last, both inclusive and below size().
    Run run(const ValueList &values, int first, int last) const;
    /// The range from \a first to \a last cut into at most \a columns runs of equal length (to one
    /// value), in their order; none for an empty range.
    std::vector<Run> columns(const ValueList &values, int first, int last, int columns) const;

private:
    /// The values stand beside their places, so that the list itself is hardly looked into: it is
    /// far larger than what a processor keeps at hand.
    struct Block
    {
        double lowest = 0.0;
        double highest = 0.0;
        int low = 0;
        int high = 0;
    };

    static void widen(Block &block, const Block &by)
    {
        if (by.lowest < block.lowest) {
            block.lowest = by.lowest;
            block.low = by.low;
        }
        if (by.highest > block.highest) {
            block.highest = by.highest;
            block.high = by.high;
        }
    }
    static Block single(const ValueList &values, int place)
    {
        return {values[place], values[place], place, place};
    }
    static Block blockOfValues(const ValueList &values, int begin);
    static Block blockOfBlocks(const std::vector<Block> &blocks, std::size_t begin);

    std::vector<std::vector<Block>> m_levels; ///< complete blocks only, the smallest first
    int m_size = 0;
};
