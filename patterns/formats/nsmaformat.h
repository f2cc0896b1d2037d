#pragma once

#include "patterns/formats/cut.h"

/// NSMA files, WG16.99.050: lines of six letters and a value, then the rows of each cut. Elevation
/// counts up; the sign of azimuth is the file's.
namespace NsmaFormat {

/// Whether \a text (UTF-8) has a line of a six-letter key and ":,".
bool matches(const QByteArray &text);

/// Reads \a text (UTF-8); \a fileName stands in for a missing MODNUM.
PatternFormats::PatternFile read(const QByteArray &text, const QString &fileName);

/// A file of \a cuts, their levels in dBi, grouped by frequency; a vertical cut is one of
/// elevation, any other of azimuth. Empty without points.
QByteArray write(const QVector<PatternFormats::Cut> &cuts);

} // namespace NsmaFormat
