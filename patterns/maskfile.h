#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

/// A limit line as a file gives it.
struct Mask
{
    QVector<QPointF> corners; ///< angle in degrees, level in dB, by ascending angle
    QString problem;          ///< why it cannot be read, with the line; empty: read
};

/// Reads a mask from a file of two columns parted by comma, semicolon, tab or blanks. Lines that
/// begin with # and whatever stands before the first row of numbers are passed over. Two corners at
/// one angle make a step.
Mask readMask(const QByteArray &bytes);
