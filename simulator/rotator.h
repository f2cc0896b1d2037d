#pragma once

#include <QByteArray>
#include <QList>

namespace sim {

/// A turntable that turns at a constant speed, and the line protocol of Hamlib's rotctld that it
/// is asked by. Times are in ms from any common start and never go back.
class Rotator
{
public:
    /// \a speed in degrees a second.
    explicit Rotator(double speed);

    /// The reply to the command \a line, its newlines included: "p" position, "P AZ EL" move (its
    /// reply comes as the move starts), "S" stop, "K" park at 0, "_" model, "\dump_state" limits.
    /// Nothing for anything else, as with rotctld.
    QByteArray answer(const QByteArray &line, qint64 now);

    /// The command of \a line, empty for a blank one.
    static QByteArray command(const QByteArray &line)
    {
        return line.simplified().split(' ').first();
    }
    /// Every command that is known.
    static QList<QByteArray> commands();

    /// Where the table stands at \a now, in degrees.
    double azimuth(qint64 now) const { return m_azimuth.at(now, m_speed); }

private:
    struct Axis
    {
        double at(qint64 now, double speed) const;
        void turn(double to, qint64 now, double speed);

        double from = 0.0; ///< degrees
        double to = 0.0;
        qint64 started = 0; ///< ms
    };

    bool move(const QByteArray &azimuth, const QByteArray &elevation, qint64 now);
    void turn(double azimuth, double elevation, qint64 now);

    double m_speed;
    Axis m_azimuth;
    Axis m_elevation;
};

} // namespace sim
