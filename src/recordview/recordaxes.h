#pragma once

#include "2d/data/chartmapping.h"

#include <QFont>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/// The axes of a record's chart: the plot area that their labels leave, and their grid, ticks,
/// labels and title.
///
/// Painted with the curve, in one pass: the axes of the chart library lay out each label as rich
/// text, which would take half of a zoom step.
class RecordAxes
{
public:
    void setTitle(const QString &title) { m_title = title; }

    /// Shows \a range, times in x (s) and levels in y (dBm or dB), on a picture of \a size with
    /// labels in \a font.
    void show(const ViewRange &range, const QSizeF &size, const QFont &font);

    /// The way from times and levels to pixels.
    const ChartMapping &mapping() const { return m_mapping; }

    /// Paints what does not tell the time.
    void paint(QPainter &painter) const;
    /// Paints the clock times below the plot area, and the days of its begin and end below them.
    void paintClock(QPainter &painter) const;

private:
    struct Division
    {
        double place = 0.0; ///< pixels from the left or from the top
        QString label;
    };

    void paintTitle(QPainter &painter) const;

    QString m_title;
    QFont m_font;
    ChartMapping m_mapping;
    QVector<Division> m_times;
    QVector<Division> m_levels;
};
