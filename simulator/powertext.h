#pragma once

#include <QByteArray>

namespace sim {

/// \a value with two decimals, "0.00" also for what rounds to minus nothing.
QByteArray twoDecimals(double value);

/// A power given in dBm as watts with two decimals and an engineering prefix from p to none:
/// "10.00uW" for -20 dBm. The prefix for a millionth is "u", or the two-byte micro sign when \a
/// microSign is set.
QByteArray wattText(double dBm, bool microSign);

} // namespace sim
