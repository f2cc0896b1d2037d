#pragma once

#include "meter/meter.h"
#include "sweep/rotatorclient.h"

#include <QObject>

/// Where the two devices are reached.
struct SweepAddresses
{
    MeterAddress meter;
    QString rotatorHost;
    quint16 rotatorPort = 4533;

    /// Reads HOST[:PORT] of a rotator; an IPv6 address with a port stands in brackets. False for an
    /// empty host or a port that there is none of.
    bool setRotator(const QString &text);
    /// HOST, with the port where it is not the usual one.
    QString rotator() const;
};

/// What the devices told before anything moved.
struct SweepFindings
{
    MeterDescription meter;
    MeterReading reading;
    TableDescription table;
    double azimuth = 0.0; ///< degrees
};

/// The meter and the rotator of a run: brings both links up, asks both what they are, and keeps
/// both links up from then on. Nothing here blocks or moves the table by itself.
class SweepDevices : public QObject
{
    Q_OBJECT

public:
    enum class Device { Meter, Rotator };

    explicit SweepDevices(const SweepAddresses &addresses, QObject *parent = nullptr);

    /// Begins; answered by `checked` or `absent`. To be called once.
    void check();

    const SweepAddresses &addresses() const { return m_addresses; }
    const SweepFindings &findings() const { return m_findings; }
    bool isMeterUp() const { return m_meter.state() == MeterState::Open; }
    bool isRotatorUp() const { return m_rotator.isUp(); }
    /// Why a link is down, in one sentence; empty while both are up.
    QString trouble() const;

    Meter &meter() { return m_meter; }
    RotatorClient &rotator() { return m_rotator; }

signals:
    /// Both devices answer; see findings().
    void checked();
    /// A device cannot be reached or does not answer. Comes once, and `checked` no more.
    void absent(SweepDevices::Device device, const QString &reason);
    /// A link came up or went down, after `checked`.
    void linksChanged();

private:
    enum class Stage { Idle, Checking, Checked, Absent };

    void takeMeterState(MeterState state, const QString &reason);
    void takeDescription(const MeterDescription &description);
    void takeReading(const MeterReading &reading);
    void giveUp(Device device, const QString &reason);
    void finishCheck();

    const SweepAddresses m_addresses;
    Meter m_meter;
    RotatorClient m_rotator;
    SweepFindings m_findings;
    Stage m_stage = Stage::Idle;
    bool m_hasMeter = false;
    bool m_hasReading = false;
    bool m_hasRotator = false;
    QString m_meterTrouble;
    QString m_rotatorTrouble;
};
