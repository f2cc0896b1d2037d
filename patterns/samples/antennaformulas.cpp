#include "patterns/samples/antennaformulas.h"

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;
/// Where a formula's denominator is smaller than this its limit is taken instead.
constexpr double tiny = 1e-12;

double radians(double degrees)
{
    return degrees * pi / 180.0;
}

} // namespace

namespace AntennaFormulas {

double halfWaveDipole(double degrees)
{
    const double t = radians(degrees);
    const double axis = std::sin(t);
    return std::abs(axis) < tiny ? 0.0 : std::abs(std::cos(pi / 2.0 * std::cos(t)) / axis);
}

double halfWaveDipoleDirectivity()
{
    return 1.643;
}

double patch(double degrees, double length)
{
    return std::abs(std::cos(pi * length * std::sin(radians(degrees))));
}

double patchDirectivity()
{
    return 6.6;
}

double horn(double degrees, double width)
{
    const double t = radians(degrees);
    const double u = pi * width * std::sin(t);
    const double taper = 1.0 - std::pow(2.0 * u / pi, 2);
    const double aperture = std::abs(taper) < tiny ? pi / 4.0 : std::cos(u) / taper;
    return std::abs(aperture) * (1.0 + std::cos(t)) / 2.0;
}

double hornDirectivity(double width, double height)
{
    return 8.0 / (pi * pi) * 4.0 * pi * width * height;
}

double uniformArray(double degrees, int elements)
{
    const double half = pi * std::sin(radians(degrees)) / 2.0;
    const double one = std::sin(half);
    return std::abs(one) < tiny ? 1.0 : std::abs(std::sin(elements * half) / (elements * one));
}

double uniformArrayDirectivity(int elements)
{
    return elements;
}

} // namespace AntennaFormulas
