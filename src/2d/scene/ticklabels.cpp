#include "2d/scene/ticklabels.h"

#include <QFontMetricsF>
#include <QValueAxis>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

using namespace QtCharts;

namespace {

/// The ticks of an axis if it had so many divisions.
class Ticks
{
public:
    Ticks(const QValueAxis &axis, int divisions)
        : Ticks(axis.min(), axis.max(), divisions)
    {}
    Ticks(double min, double max, int divisions)
        : m_min(min)
        , m_max(max)
        , m_divisions(std::max(1, divisions))
    {}

    int count() const { return m_divisions + 1; }
    double stride() const { return (m_max - m_min) / m_divisions; }
    /// To the last bit as the chart computes it.
    double number(int tick) const { return m_min + tick * (m_max - m_min) / m_divisions; }

private:
    double m_min;
    double m_max;
    int m_divisions;
};

bool isNextToNothing(double number, double stride)
{
    constexpr double little = 1e-9;
    return std::abs(number) < little * stride;
}

/// The most that a number differs from what \a unit lets be written, in steps; more than any when
/// one would be written as "-0".
double strayFrom(const Ticks &ticks, double unit)
{
    double most = 0.0;
    for (int tick = 0; tick < ticks.count(); ++tick) {
        const double number = ticks.number(tick) * unit;
        const double written = std::round(number);
        const double stride = ticks.stride() * unit;
        if (written == 0.0 && number < 0.0 && !isNextToNothing(number, stride))
            return std::numeric_limits<double>::infinity();
        most = std::max(most, std::abs(number - written) / stride);
    }
    return most;
}

/// The decimals that \a ticks need; nothing where the general notation or that of \a format does.
std::optional<int> fittingDecimals(const Ticks &ticks, const QString &format)
{
    if (!(ticks.stride() > 0.0) || !std::isfinite(ticks.stride()))
        return std::nullopt;
    constexpr int mostDecimals = 9;
    constexpr double exactly = 1e-9;
    constexpr double nearly = 0.05;
    const bool isGeneral = format == QLatin1String("%g");
    if (isGeneral && strayFrom(ticks, 1.0) < exactly)
        return std::nullopt;
    for (int decimals = isGeneral ? 0 : 1; decimals <= mostDecimals; ++decimals) {
        if (strayFrom(ticks, std::pow(10.0, decimals)) <= nearly)
            return decimals;
    }
    return std::nullopt;
}

double widestLabel(const QValueAxis &axis, const Ticks &ticks, const QString &format)
{
    const QFontMetricsF metrics(axis.labelsFont());
    const std::optional<int> decimals = fittingDecimals(ticks, format);
    double widest = 0.0;
    for (int tick = 0; tick < ticks.count(); ++tick) {
        const double number = ticks.number(tick);
        const QString label =
            decimals ? QString::number(number, 'f', *decimals) : QString::number(number);
        widest = std::max(widest, metrics.horizontalAdvance(label));
    }
    return widest;
}

} // namespace

namespace TickLabels {

QString fittingFormat(const QValueAxis &axis, const QString &format)
{
    const std::optional<int> decimals = fittingDecimals(Ticks(axis, axis.tickCount() - 1), format);
    return decimals ? QStringLiteral("%.%1f").arg(*decimals) : format;
}

int fittingDivisions(const QValueAxis &axis, int wanted, const QString &format, double width)
{
    constexpr double room = 10.0; // pixels, with what the chart keeps free round a label
    for (int divisions = wanted; divisions > 1; --divisions) {
        if (wanted % divisions == 0 &&
            (widestLabel(axis, Ticks(axis, divisions), format) + room) * divisions <= width)
            return divisions;
    }
    return 1;
}

double settledMin(double min, double max, int divisions)
{
    constexpr int tries = 16;
    double settled = min;
    for (int i = 0; i < tries; ++i) {
        const Ticks ticks(settled, max, divisions);
        bool isBelow = false;
        for (int tick = 0; tick < ticks.count(); ++tick) {
            const double number = ticks.number(tick);
            isBelow = isBelow || (number < 0.0 && isNextToNothing(number, ticks.stride()));
        }
        if (!isBelow)
            break;
        settled = std::nextafter(settled, max);
    }
    return settled;
}

void settleZero(QValueAxis &axis)
{
    const double settled = settledMin(axis.min(), axis.max(), axis.tickCount() - 1);
    if (settled > axis.min()) // each call has the chart lay itself out
        axis.setMin(settled);
}

} // namespace TickLabels
