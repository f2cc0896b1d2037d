#pragma once

#include "sweep/sweepsession.h"

#include <QJsonObject>

constexpr double megahertz = 1e6; ///< Hz

/// What the user enters to measure a pattern.
struct MeasureInputs
{
    bool isSerial = false; ///< the meter is at a serial port
    QString meter = QStringLiteral("127.0.0.1");
    QString rotator = QStringLiteral("127.0.0.1");
    RunHeader header; ///< plan, settling, readings, tolerance, floor, title and curve
    QString file;     ///< the curve file
    bool returns = true;
    double diameter = 0.0; ///< of the antenna, metres; 0: not given

    /// The addresses; nothing when one of them is none.
    std::optional<SweepAddresses> addresses() const;

    /// For the settings; title, name and file belong to one measurement and are not kept.
    QJsonObject toJson() const;
    static MeasureInputs fromJson(const QJsonObject &json);
};
