#include "antennapattern.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double turn = 360.0; // degrees

QString tr(const char *text)
{
    return QCoreApplication::translate("sim::AntennaPattern", text);
}

std::optional<QPointF> readPoint(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char(','));
    if (fields.size() != 2)
        return std::nullopt;
    bool hasAngle = false;
    bool hasLevel = false;
    const QPointF point(fields.first().toDouble(&hasAngle), fields.last().toDouble(&hasLevel));
    if (!hasAngle || !hasLevel || !std::isfinite(point.x()) || !std::isfinite(point.y()))
        return std::nullopt;
    return point;
}

} // namespace

std::optional<AntennaPattern> AntennaPattern::fromFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("Cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    QTextStream lines(&file);
    lines.setCodec("UTF-8");
    lines.readLine(); // the title
    lines.readLine(); // the curve's name
    const QString header = lines.readLine();
    if (!header.contains(QLatin1String("Angle")) || !header.contains(QLatin1String("Power"))) {
        *error = tr("%1 is not a curve file: its third line is not \"Angle,Power\".").arg(path);
        return std::nullopt;
    }
    QVector<QPointF> points;
    QString line;
    for (int number = 4; lines.readLineInto(&line); ++number) {
        line = line.trimmed();
        if (line.isEmpty())
            continue;
        const auto point = readPoint(line);
        if (!point) {
            *error = tr("%1, line %2: \"%3\" is not an angle and a level.")
                         .arg(path)
                         .arg(number)
                         .arg(line);
            return std::nullopt;
        }
        points.append(*point);
    }
    if (points.isEmpty()) {
        *error = tr("%1 has no points.").arg(path);
        return std::nullopt;
    }
    return AntennaPattern(points);
}

AntennaPattern::AntennaPattern(QVector<QPointF> points)
    : m_points(std::move(points))
{
    std::stable_sort(m_points.begin(), m_points.end(),
                     [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    m_lowest =
        std::min_element(m_points.cbegin(), m_points.cend(), [](const auto &a, const auto &b) {
            return a.y() < b.y();
        })->y();
}

double AntennaPattern::level(double degrees) const
{
    const double first = m_points.first().x();
    const double last = m_points.last().x();
    // The angle itself counts before its equals: a curve may hold both -180 and 180.
    if (degrees < first || degrees > last)
        degrees = first + std::fmod(std::fmod(degrees - first, turn) + turn, turn);
    if (degrees > last)
        return m_lowest;
    const auto next =
        std::lower_bound(m_points.cbegin(), m_points.cend(), degrees,
                         [](const QPointF &point, double angle) { return point.x() < angle; });
    if (next == m_points.cbegin() || next->x() == degrees)
        return next->y();
    const QPointF before = *(next - 1);
    const double share = (degrees - before.x()) / (next->x() - before.x());
    return before.y() + share * (next->y() - before.y());
}

} // namespace sim
