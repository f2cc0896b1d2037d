#pragma once

class QLabel;
class QSize;

/// Makes the reading as large as a window of size \a window has room for, so that it is legible
/// across a bench: \a power in dBm, \a unit behind it on the same line, and the instrument's \a
/// text.
void fitPowerDisplay(const QSize &window, QLabel *power, QLabel *unit, QLabel *text);
