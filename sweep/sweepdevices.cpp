#include "sweep/sweepdevices.h"

namespace {

constexpr quint16 usualPort = 4533;

} // namespace

bool SweepAddresses::setRotator(const QString &text)
{
    QString host = text.trimmed();
    QString port;
    const int bracket = host.indexOf(QStringLiteral("]:"));
    if (host.startsWith(QLatin1Char('[')) && bracket > 0) {
        port = host.mid(bracket + 2);
        host = host.mid(1, bracket - 1);
    } else if (host.count(QLatin1Char(':')) == 1) {
        port = host.section(QLatin1Char(':'), 1);
        host = host.section(QLatin1Char(':'), 0, 0);
    } else {
        port = QString::number(usualPort);
    }
    bool ok = false;
    const ushort number = port.toUShort(&ok);
    if (host.isEmpty() || !ok || number == 0)
        return false;
    rotatorHost = host;
    rotatorPort = number;
    return true;
}

QString SweepAddresses::rotator() const
{
    const QString host =
        rotatorHost.contains(QLatin1Char(':')) ? QStringLiteral("[%1]") : QStringLiteral("%1");
    const QString shown = host.arg(rotatorHost);
    return rotatorPort == usualPort ? rotatorHost
                                    : shown + QLatin1Char(':') + QString::number(rotatorPort);
}

SweepDevices::SweepDevices(const SweepAddresses &addresses, QObject *parent)
    : QObject(parent)
    , m_addresses(addresses)
    , m_meter(addresses.meter)
{
    connect(&m_meter, &Meter::stateChanged, this, &SweepDevices::takeMeterState);
    connect(&m_meter, &Meter::described, this, &SweepDevices::takeDescription);
    connect(&m_meter, &Meter::reading, this, &SweepDevices::takeReading);
    connect(&m_rotator, &RotatorClient::described, this, [this](double azimuth) {
        m_findings.azimuth = azimuth;
        m_findings.table = m_rotator.description();
    });
    connect(&m_rotator, &RotatorClient::up, this, [this] {
        m_hasRotator = true;
        m_rotatorTrouble.clear();
        if (m_stage == Stage::Checked)
            emit linksChanged();
        finishCheck();
    });
    connect(&m_rotator, &RotatorClient::down, this, [this](const QString &reason) {
        m_rotatorTrouble = tr("Rotator: %1").arg(reason);
        if (m_stage == Stage::Checked)
            emit linksChanged();
        giveUp(Device::Rotator, reason);
    });
}

void SweepDevices::check()
{
    m_stage = Stage::Checking;
    m_meter.open(Meter::Keeping::Forever);
    m_rotator.open(m_addresses.rotatorHost, m_addresses.rotatorPort);
}

QString SweepDevices::trouble() const
{
    return m_meterTrouble.isEmpty() ? m_rotatorTrouble : m_meterTrouble;
}

void SweepDevices::takeMeterState(MeterState state, const QString &reason)
{
    if (state == MeterState::Open)
        m_meterTrouble.clear();
    else if (!reason.isEmpty())
        m_meterTrouble = tr("Meter: %1").arg(reason);
    if (m_stage == Stage::Checked)
        emit linksChanged();
    if (state == MeterState::Lost)
        giveUp(Device::Meter, reason);
}

void SweepDevices::takeDescription(const MeterDescription &description)
{
    if (m_stage != Stage::Checking || m_hasMeter)
        return;
    if (description.identity.isEmpty()) {
        giveUp(Device::Meter, tr("It does not tell what it is."));
        return;
    }
    m_hasMeter = true;
    m_findings.meter = description;
    m_meter.read();
}

void SweepDevices::takeReading(const MeterReading &reading)
{
    if (m_stage != Stage::Checking || !m_hasMeter)
        return;
    m_findings.reading = reading;
    m_hasReading = true;
    finishCheck();
}

void SweepDevices::giveUp(Device device, const QString &reason)
{
    if (m_stage != Stage::Checking)
        return;
    m_stage = Stage::Absent;
    m_meter.stop();
    m_rotator.close();
    emit absent(device, reason);
}

void SweepDevices::finishCheck()
{
    if (m_stage != Stage::Checking || !m_hasReading || !m_hasRotator)
        return;
    m_stage = Stage::Checked;
    emit checked();
}
