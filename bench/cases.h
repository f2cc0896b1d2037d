#pragma once

#include "report.h"

/// The work that is measured. Each function runs its cases and returns their lines of the table.
namespace Cases {

/// The time chart with 601 points.
QVector<ReportRow> timeChart();
/// Loading, zoom, resize and press on cartesian curves of 361 to 1,000,000 points.
QVector<ReportRow> cartesianCurves();
/// The same on polar charts.
QVector<ReportRow> polarCurves();

/// Reading and writing a curve file of 1,000,000 rows.
QVector<DuelRow> curveFiles();
/// The analysis of a pattern of 100,000 points.
QVector<DuelRow> patternAnalysis();
/// Loading a loss table of 10,000 frequencies and 100 rows, and asking it.
QVector<DuelRow> lossTable();
/// The console from its start to the first painting; \a starter is the program that shows it.
QVector<DuelRow> startUp(const QString &starter);

} // namespace Cases
