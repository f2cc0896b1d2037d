#pragma once

#include "2d/data/valuepyramid.h"
#include "measure/powerstatistics.h"

#include <QtGlobal>

#include <optional>
#include <vector>

/// Where a row stands: in which of the files that were joined, and how many bytes from its begin.
struct RowPlace
{
    int file = 0;
    qint64 offset = 0;
};

/// Points of one record in the order of their rows; rows without a level are no points.
struct RecordPoint
{
    double time = 0.0;  ///< s, as RecordRow::time
    double level = 0.0; ///< dBm or dB
    bool isRelative = false;
    bool startsAnew = false; ///< there is a gap before it
    RowPlace place;
};

/// Neighbouring points by their index, both inclusive.
struct PointRange
{
    int first = 0;
    int last = -1;

    bool isEmpty() const { return last < first; }
};

/// A record in memory: 17 bytes a point, and what makes ranges of millions of points quick.
class RecordData
{
public:
    /// What a picture needs of the points within one of its columns.
    struct Column
    {
        int first = 0;
        int low = 0;
        int high = 0;
        int last = 0;
        bool startsAnew = false; ///< no line leads here from the column before
    };

    void append(const RecordPoint &point);
    /// Takes the points from \a size on away again.
    void truncate(int size);
    /// Makes what was appended visible to the questions below; call after a batch.
    void index();

    bool isEmpty() const { return m_times.empty(); }
    int size() const { return static_cast<int>(m_times.size()); }
    double time(int point) const { return m_times[static_cast<std::size_t>(point)]; }
    double level(int point) const { return m_levels[static_cast<std::size_t>(point)]; }
    bool isRelative(int point) const;
    /// Whether \a range holds levels in dBm and in dB, which have no common statistics.
    bool mixesUnits(const PointRange &range) const;
    /// The gaps before the points of \a range, its first point left out.
    int gaps(const PointRange &range) const;

    /// From the earliest to the latest point; not for an empty record.
    double begin() const { return m_begin; }
    double end() const { return m_end; }

    /// The points between two times, both inclusive, as ranges in which time only rises. There is
    /// more than one where a clock was put back.
    std::vector<PointRange> between(double from, double to) const;
    /// The point nearest to \a time, -1 for an empty record; of several the one written last.
    int nearest(double time) const;

    /// The columns of a picture \a width columns wide that shows the time from \a from to \a to,
    /// and of one point beyond either edge, to which lines lead. Columns in which gaps lie begin
    /// anew at each of them, but no more than twice.
    std::vector<Column> columns(double from, double to, int width) const;

    /// Count, mean, extremes and spread of the points of \a range, which must not mix units.
    PowerStatistics statistics(const PointRange &range) const;

    /// The nearest place known before or at \a point, and the point it belongs to.
    RowPlace place(int point, int &known) const;

private:
    /// A place from which on something holds.
    struct UnitChange
    {
        int from;
        bool isRelative;
    };

    ValueList levels() const { return {m_levels.data(), size()}; }
    int firstAfter(const PointRange &run, double time) const;
    int firstAfterNear(int from, int last, double time, int guess) const;
    int nextGap(int point) const;
    void addColumns(std::vector<Column> &columns, const PointRange &run, double from, double to,
                    int width) const;

    std::vector<double> m_times;
    std::vector<double> m_levels;
    std::vector<RowPlace> m_places;        ///< of every 64th point
    std::vector<int> m_gaps;               ///< points before which there is a gap
    std::vector<int> m_runs;               ///< first points of the stretches in which time rises
    std::vector<UnitChange> m_units;       ///< in their order
    std::vector<PowerStatistics> m_blocks; ///< of 1024 points each, complete ones only
    ValuePyramid m_pyramid;
    double m_begin = 0.0;
    double m_end = 0.0;
};
