#pragma once

#include "patterns/curveoperation.h"

#include <QPointF>
#include <QVector>

#include <memory>

/// The gain of an antenna by comparison with a reference of known gain, which was measured with the
/// same plan: G = G_ref + P − P_ref + L − L_ref.
namespace GainComparison {

struct Inputs
{
    double referenceGain = 0.0;  ///< dBi
    double referenceLevel = 0.0; ///< dBm, of the reference where it looks at the source
    double loss = 0.0;           ///< dB, between the antenna and the meter
    double referenceLoss = 0.0;  ///< dB, between the reference and the meter
};

/// The levels of \a measured, dBm, as gains in dBi.
QVector<QPointF> gains(const QVector<QPointF> &measured, const Inputs &inputs);

/// The entry of the *Edit* menu.
std::unique_ptr<CurveOperation> operation();

} // namespace GainComparison
