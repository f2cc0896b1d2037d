#include "Logic/commandtexts.h"

#include <QString>

namespace {

QString twoDecimals(double value)
{
    return QString::number(value, 'f', 2);
}

} // namespace

namespace CommandTexts {

QByteArray queryIdentity()
{
    return QByteArrayLiteral("*IDN?\n");
}

QByteArray queryFrequency()
{
    return QByteArrayLiteral("FREQ?\n");
}

QByteArray setFrequency(double gigahertz)
{
    return QStringLiteral("FREQ %1\n").arg(twoDecimals(gigahertz)).toLatin1();
}

QByteArray setFrequency(const QString &value, const QString &unit)
{
    return QStringLiteral("FREQ %1%2\n").arg(value, unit).toLatin1();
}

QByteArray queryOffset()
{
    return QByteArrayLiteral("OFFS?\n");
}

QByteArray setOffset(double decibels)
{
    return QStringLiteral("OFFS %1\n").arg(twoDecimals(decibels)).toLatin1();
}

QByteArray queryPowerUnit()
{
    return QByteArrayLiteral("UNIT:POW?\n");
}

QByteArray setPowerUnit(const QString &unit)
{
    return QStringLiteral("UNIT:POW %1\n").arg(unit).toLatin1();
}

QByteArray queryMeasureState()
{
    return QByteArrayLiteral("REL?\n");
}

QByteArray setMeasureState(const QString &state)
{
    return QStringLiteral("REL %1\n").arg(state).toLatin1();
}

QByteArray queryAverageCount()
{
    return QByteArrayLiteral("AVER:COUN?\n");
}

QByteArray setAverageCount(int count)
{
    return QStringLiteral("AVER:COUN %1\n").arg(count).toLatin1();
}

QByteArray setZero()
{
    return QByteArrayLiteral("CAL:ZERO\n");
}

QByteArray calibrate()
{
    return QByteArrayLiteral("CAL\n");
}

QByteArray readPower()
{
    return QByteArrayLiteral("GET?\n");
}

} // namespace CommandTexts
