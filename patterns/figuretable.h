#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

/// The figures of curves as CSV: comma, line feed, quotes where a text needs them. Numbers have as
/// many digits as it takes to read back the same one.
namespace FigureTable {

/// The names of the columns, as a line.
QByteArray header();

/// The line of one curve: \a file and \a curve as they are, \a frequency in MHz as text, then the
/// figures of \a points (degrees, dB). A figure that the curve does not show is an empty cell.
QByteArray row(const QString &file, const QString &curve, const QString &frequency,
               const QVector<QPointF> &points);

} // namespace FigureTable
