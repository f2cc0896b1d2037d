#pragma once

#include <QByteArray>

class QString;

/// The command lines that the instrument understands, as they go over the wire: Latin-1, each ended
/// by one newline.
namespace CommandTexts {

QByteArray queryIdentity();

QByteArray queryFrequency();
/// The form that every instrument understands; \a gigahertz is sent with two decimals and no unit.
QByteArray setFrequency(double gigahertz);
/// \a value and \a unit ("GHz", "MHz", "KHz") as given, with nothing between them.
QByteArray setFrequency(const QString &value, const QString &unit);

QByteArray queryOffset();
/// \a decibels is sent with two decimals.
QByteArray setOffset(double decibels);

QByteArray queryPowerUnit();
/// \a unit is "dBm" or "W".
QByteArray setPowerUnit(const QString &unit);

QByteArray queryMeasureState();
/// \a state is "ON" or "OFF".
QByteArray setMeasureState(const QString &state);

QByteArray queryAverageCount();
QByteArray setAverageCount(int count);

QByteArray setZero();
QByteArray calibrate();
QByteArray readPower();

} // namespace CommandTexts
