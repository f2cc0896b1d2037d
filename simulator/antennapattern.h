#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

namespace sim {

/// The level that an antenna on a turntable gives, over the table's angle.
class AntennaPattern
{
public:
    /// Reads a curve file: title, name, the header with "Angle" and "Power", then "degrees,dBm" a
    /// line. Returns nothing, and an explanation in \a error, when it is none.
    static std::optional<AntennaPattern> fromFile(const QString &path, QString *error);

    /// \a points (degrees, dBm) in any order, at least one.
    explicit AntennaPattern(QVector<QPointF> points);

    /// The level in dBm at \a degrees, which count modulo 360: interpolated between the points, and
    /// the lowest of them where they do not reach.
    double level(double degrees) const;

private:
    QVector<QPointF> m_points; ///< by angle
    double m_lowest;           ///< dBm
};

} // namespace sim
