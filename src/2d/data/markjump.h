#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

/// Where a marker can be sent along its pattern.
enum class MarkJump {
    Peak,
    NextPeak, ///< from a peak to the next lower one, from the lowest to the highest
    HalfPower ///< 3 dB below the peak, on one side and then on the other
};

/// The tops of the lobes in \a points, angle in degrees and level in dB, the highest first. A top
/// is at least 1 dB above the lowest level between it and any higher one; equal neighbours are one
/// top.
QVector<QPointF> lobeTops(const QVector<QPointF> &points);

/// The angle in degrees to which a marker at \a from jumps; nothing when there is no such place.
std::optional<double> jumpTarget(const QVector<QPointF> &points, MarkJump jump,
                                 std::optional<double> from);
