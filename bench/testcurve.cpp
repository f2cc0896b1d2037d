#include "testcurve.h"

#include <QRandomGenerator>
#include <QtMath>

#include <cmath>

namespace {

double patternLevel(double degrees)
{
    constexpr double wavelengths = 20.0;
    constexpr double floor = 1e-3; // -60 dB
    const double phase = M_PI * wavelengths * std::sin(qDegreesToRadians(degrees));
    const double field = std::abs(phase) < 1e-9 ? 1.0 : std::abs(std::sin(phase) / phase);
    return 20 * std::log10(field + floor);
}

double noiseHeight(CurveShape shape)
{
    switch (shape) {
    case CurveShape::Pattern:
        return 0.5;
    case CurveShape::Smooth:
        return 0.0;
    case CurveShape::Noise:
        break;
    }
    return 40.0;
}

} // namespace

double testLevel(CurveShape shape, double degrees)
{
    switch (shape) {
    case CurveShape::Pattern:
        return patternLevel(degrees);
    case CurveShape::Smooth:
        return -30 + 25 * std::cos(qDegreesToRadians(6 * degrees));
    case CurveShape::Noise:
        break;
    }
    return -30;
}

QVector<QPointF> testCurve(CurveShape shape, int count)
{
    QRandomGenerator random(6218);
    const double height = noiseHeight(shape);
    QVector<QPointF> points;
    points.reserve(count);
    for (int i = 0; i < count; ++i) {
        const double degrees = -180 + 360.0 * i / (count - 1);
        const double noise = height * (random.generateDouble() - 0.5);
        points.append(QPointF(degrees, testLevel(shape, degrees) + noise));
    }
    return points;
}
