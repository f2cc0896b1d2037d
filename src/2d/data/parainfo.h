#pragma once

#include <QMetaType>
#include <QPair>

/// The figures of one radiation pattern: ten pairs of an angle in degrees and a level in dB.
///
/// What was not found is marked by levels and angles that lie outside any sensible axis range
/// (-100 and 10000), so that its marker line is hidden by the same test as a line out of view.
struct ParaInfo
{
    QPair<double, double> gain;           ///< angle and level of the main lobe's peak
    QPair<double, double> halfPowerLeft;  ///< left 3 dB angle, peak - 3; (0, -100) when missing
    QPair<double, double> halfPowerRight; ///< right 3 dB angle, peak - 3; (0, 10000) when missing
    QPair<double, double> firstNullLeft;  ///< first minimum left of the peak
    QPair<double, double> firstNullRight; ///< first minimum right of the peak; (10000, 10000)
    QPair<double, double> firstSideLobeLeft;  ///< first maximum beyond the left null; (-100, -100)
    QPair<double, double> firstSideLobeRight; ///< the same right of the peak; (10000, 10000)
    QPair<double, double> backLobe;   ///< direction opposite the peak, level there; (-100, -100)
    QPair<double, double> axialRatio; ///< 0, greatest level - least level
    QPair<double, double> crossPolarRatio; ///< 0, cross-polar ratio; never filled by the analysis
};

Q_DECLARE_METATYPE(ParaInfo)
