#pragma once

#include "patterns/formats/cut.h"

/// Listings of NEC2 and its relatives: blocks of a frequency and rows of theta, phi and the gains
/// of the vertical, the horizontal and the total field, dBi. Theta counts from the zenith.
namespace NecFormat {

/// Whether \a text (UTF-8) is a listing.
bool matches(const QByteArray &text);

/// Reads \a text (UTF-8). A block is cut over its longer axis; with more than four cuts only those
/// of phi 0, phi 90 and theta 90 are principal. \a title heads the cuts' names.
PatternFormats::PatternFile read(const QByteArray &text, const QString &title);

/// A listing of one block a cut: a horizontal cut over phi at theta 90, any other over theta at phi
/// 0.
QByteArray write(const QVector<PatternFormats::Cut> &cuts);

} // namespace NecFormat
