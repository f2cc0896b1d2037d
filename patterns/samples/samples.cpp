#include "patterns/samples/samples.h"

#include "2d/data/curvetext.h"
#include "patterns/formats/msiformat.h"
#include "patterns/formats/nsmaformat.h"
#include "patterns/samples/antennaformulas.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

/// Where a formula gives no power at all the file holds what a good range would still show.
constexpr double floorLevel = -60.0;

double dB(double field, double directivity)
{
    const double level = 20.0 * std::log10(std::max(field, 1e-12)) + 10.0 * std::log10(directivity);
    return std::max(std::round(level * 1000.0) / 1000.0, floorLevel);
}

/// The cut from -\a last to \a last degrees.
QVector<QPointF> cut(double last, double step, double directivity,
                     const std::function<double(double)> &field)
{
    const int half = qRound(last / step);
    QVector<QPointF> points;
    points.reserve(2 * half + 1);
    for (int i = -half; i <= half; ++i)
        points.append({i * step, dB(field(i * step), directivity)});
    return points;
}

constexpr double panelDirectivity = 40.0;
constexpr double panelTilt = 4.0; // degrees below the horizon

/// The panel's cuts on whole degrees of the circle, \a down being the sign of angles below the
/// horizon.
QVector<PatternFormats::Cut> panelCuts(double down)
{
    constexpr double behind = -22.0; // dBi that the reflector lets pass at least
    PatternFormats::Cut azimuth;
    PatternFormats::Cut elevation;
    for (int degree = -179; degree <= 180; ++degree) {
        const double element = AntennaFormulas::horn(degree, 1.0);
        const double array = AntennaFormulas::uniformArray(degree - down * panelTilt, 8);
        azimuth.points.append({double(degree), std::max(behind, dB(element, panelDirectivity))});
        elevation.points.append(
            {double(degree), std::max(behind, dB(element * array, panelDirectivity))});
    }
    azimuth.plane = PatternFormats::Plane::Horizontal;
    elevation.plane = PatternFormats::Plane::Vertical;
    for (PatternFormats::Cut *cut : {&azimuth, &elevation}) {
        cut->frequency = QStringLiteral("1800");
        cut->details = {{QStringLiteral("MODNUM"), QStringLiteral("Panel 1800")},
                        {QStringLiteral("MAKE"), QStringLiteral("Computed sample")},
                        {QStringLiteral("POLARIZATION"), QStringLiteral("V/V")},
                        {QStringLiteral("COMMENT"), QStringLiteral("Tilted 4 degrees down")}};
    }
    return {azimuth, elevation};
}

} // namespace

QVector<SampleCurve> sampleCurves()
{
    using namespace AntennaFormulas;
    // Half the wavelength in a laminate of relative permittivity 2.2, as seen by the E plane.
    constexpr double patchLength = 0.35;
    constexpr double hornWidth = 4.0;
    constexpr double hornHeight = 3.0;
    constexpr int elements = 16;

    return {{QStringLiteral("dipole.csv"), QStringLiteral("Half-wave dipole, plane of the dipole"),
             QStringLiteral("Dipole 900 MHz"),
             cut(180.0, 1.0, halfWaveDipoleDirectivity(), halfWaveDipole)},
            {QStringLiteral("patch.csv"), QStringLiteral("Microstrip patch, E plane"),
             QStringLiteral("Patch 2450 MHz"),
             cut(90.0, 1.0, patchDirectivity(),
                 [](double angle) { return patch(angle, patchLength); })},
            {QStringLiteral("horn.csv"), QStringLiteral("Pyramidal horn, H plane"),
             QStringLiteral("Horn 10 GHz"),
             cut(180.0, 0.5, hornDirectivity(hornWidth, hornHeight),
                 [](double angle) { return horn(angle, hornWidth); })},
            {QStringLiteral("array.csv"), QStringLiteral("Uniform array of 16 elements"),
             QStringLiteral("Array 3.5 GHz"),
             cut(90.0, 0.25, uniformArrayDirectivity(elements),
                 [](double angle) { return uniformArray(angle, elements); })}};
}

QByteArray curveFile(const SampleCurve &curve)
{
    return CurveText::toFile(curve.title, curve.name, curve.points);
}

QByteArray sampleLossTable()
{
    return QByteArrayLiteral("category,path,description,unit,700,900,1800,2450,3500,6000\n"
                             "cable,upside,RG-214 2 m,dB,0.31,0.36,0.54,0.65,0.82,1.16\n"
                             "switch,upside,transmit path,dB,0.2,0.2,0.3,0.35,0.45,0.7\n"
                             "cable,downside,RG-214 5 m,dB,0.78,0.9,1.35,1.63,2.05,2.9\n"
                             "switch,downside,receive path,dB,0.25,0.25,0.35,0.4,0.5,0.75\n");
}

QByteArray samplePanelMsi()
{
    const QVector<PatternFormats::Cut> cuts = panelCuts(1.0);
    return MsiFormat::write({QStringLiteral("Panel 1800"), QStringLiteral("1800"),
                             cuts.first().details, cuts.first().points, cuts.last().points})
        .bytes;
}

QByteArray samplePanelNsma()
{
    return NsmaFormat::write(panelCuts(-1.0));
}
