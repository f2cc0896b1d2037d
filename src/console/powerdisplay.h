#pragma once

class QLabel;
class QSize;

/// Makes the reading as large as \a room (the window without the panel, in pixels) allows, so that
/// it is legible across a bench: \a power in dBm, \a unit behind it on the same line, and the
/// instrument's \a text beside them, which keeps room for as many characters as it usually has.
void fitPowerDisplay(const QSize &room, QLabel *power, QLabel *unit, QLabel *text);
