#pragma once

#include <QString>

/// \a value as short as it can be said exactly, with a point: "2.45".
QString shortNumber(double value);

/// A level in dB or dBm with two decimals, and up to four where it has them: "-20.00".
QString levelText(double level);

/// \a value with four decimals.
QString fourDecimals(double value);
