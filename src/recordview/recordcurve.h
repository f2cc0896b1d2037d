#pragma once

#include "2d/data/chartmapping.h"
#include "recorddata/recorddata.h"

class QPainter;

/// Draws the part of a record that a chart shows, from the columns that share a pixel.
class RecordCurve
{
public:
    /// Chooses what is drawn: the time \a from to \a to, \a width pixels wide. A null record is
    /// none.
    void show(const RecordData *data, double from, double to, int width);

    /// The lowest and the highest level of it; false when there is none.
    bool levels(double &low, double &high) const;

    /// Draws it at the places of its times and levels.
    void draw(QPainter &painter, const ChartMapping &mapping) const;

private:
    void drawBars(QPainter &painter, const ChartMapping &mapping) const;
    void drawLines(QPainter &painter, const ChartMapping &mapping) const;

    const RecordData *m_data = nullptr;
    double m_from = 0.0;
    double m_to = 1.0;
    int m_width = 1; ///< pixels
    std::vector<RecordData::Column> m_columns;
};
