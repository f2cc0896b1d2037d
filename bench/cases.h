#pragma once

#include "report.h"

/// The work that is measured. Each function runs its cases and hands their lines of the table over.
namespace Cases {

/// The time chart with 601 points.
void timeChart(const ChartSink &add);
/// Loading, zoom, resize and press on cartesian curves of 361 to 1,000,000 points.
void cartesianCurves(const ChartSink &add);
/// A zoom step on curves of other shapes.
void curveShapes(const ChartSink &add);
/// Loading, zoom, resize and press on polar charts.
void polarCurves(const ChartSink &add);

/// Reading and writing a curve file of 1,000,000 rows.
void curveFiles(const DuelSink &add);
/// The analysis of a pattern of 100,000 points.
void patternAnalysis(const DuelSink &add);
/// Loading a loss table of 10,000 frequencies and 100 rows, and asking it.
void lossTable(const DuelSink &add);
/// A day's record of six million rows: opened, zoomed, saved.
void records(const DuelSink &add);
/// The console from its start to the first painting; \a starter is the program that shows it.
void startUp(const QString &starter, const DuelSink &add);

} // namespace Cases
