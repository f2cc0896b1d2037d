#pragma once

class QColor;
class QIcon;

/// A small field in the colour of a curve, to stand before its name in a table.
QIcon curveSwatch(const QColor &color);
