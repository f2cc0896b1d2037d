#pragma once

#include "patterns/formats/cut.h"

/// MSI or Planet files: a header of keys, then a horizontal and a vertical cut as losses below the
/// gain. Horizontal angles run clockwise from the front; vertical 0 is the horizon, 90 points down.
namespace MsiFormat {

/// Whether \a text (UTF-8) has a section of a cut; \a bySections false: or two of the header's
/// keys.
bool matches(const QByteArray &text, bool bySections);

/// Reads \a text (UTF-8); \a fileName stands in for a missing NAME.
PatternFormats::PatternFile read(const QByteArray &text, const QString &fileName);

/// What a file is made of: levels in dBi, any angles in degrees.
struct Pattern
{
    QString name;
    QString frequency; ///< MHz as text; empty: not written
    PatternFormats::Details details;
    QVector<QPointF> horizontal;
    QVector<QPointF> vertical;
};

/// Writes both cuts resampled to whole degrees 0 to 359, linearly in dB, below the greater of both
/// peaks. Reading it back gives the same levels within 0.0005 dB. Refuses cuts that do not go
/// round.
PatternFormats::Written write(const Pattern &pattern);

/// The name for a file of two curves: what "NAME H" and "NAME V" share, else \a horizontal.
QString commonName(const QString &horizontal, const QString &vertical);

} // namespace MsiFormat
