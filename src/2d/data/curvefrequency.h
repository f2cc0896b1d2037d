#pragma once

#include <QString>

#include <optional>

/// The frequency that a curve's name tells, in MHz as text: "Horn 10 GHz" gives "10000", a name
/// that is nothing but a number is that number. Empty when the name tells none.
QString frequencyInName(const QString &name);

/// What a user typed as a frequency, in MHz as text: "2450", "2450 MHz", "2.45 GHz" and
/// "2450000 kHz" all give "2450". An empty text stays empty; nothing when it is no frequency.
std::optional<QString> readFrequency(const QString &text);
