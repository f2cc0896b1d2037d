#pragma once

#include "recorddata/recorddata.h"
#include "recorddata/recordrow.h"

#include <vector>

/// Makes points of the rows of a record, and gaps of what is missing between them: rows without a
/// level, clocks that were put back, and times without rows. An interval's row tells when it
/// began; the console's tell only their minute, so there it is a pause of more than twice the usual
/// one.
class RecordBuilder
{
public:
    RecordBuilder(RecordData &data, RecordKind kind);

    /// Takes the next row, which \a parser has read from \a place.
    void add(const RecordRow &row, RowParser &parser, const RowPlace &place);
    /// Shows what was held back to the end of its minute. More rows may follow, also of this
    /// minute.
    void show();

private:
    struct MinuteRow
    {
        double level;
        RowPlace place;
    };
    /// What the rows so far tell about the next one.
    struct State
    {
        bool hasRow = false;
        bool isBroken = false; ///< by a row without a level
        double time = 0.0;     ///< of the last row
        double step = 0.0;     ///< the usual time between rows
    };

    void addInterval(const RecordRow &row, RowParser &parser, const RowPlace &place);
    void addMinuteRow(const RecordRow &row, const RowPlace &place);
    void placeMinute();
    void addPoint(double time, double level, bool isRelative, const RowPlace &place);

    RecordData &m_data;
    RecordKind m_kind;
    State m_state;

    double m_minute = 0.0; ///< of the rows held back
    std::vector<MinuteRow> m_minuteRows;
    State m_beforeMinute;
    int m_shownFrom = -1; ///< the first point of rows that are held back and shown all the same
};
