#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

/// One curve file of the sample set.
struct SampleCurve
{
    QString fileName;        ///< without folder
    QString title;           ///< the chart title, first line of the file
    QString name;            ///< the curve's name, second line
    QVector<QPointF> points; ///< angle in degrees, directivity in dBi with three decimals
};

/// The sample patterns that ship with the workbench: dipole, patch, horn and array.
QVector<SampleCurve> sampleCurves();

/// The content of the curve file of \a curve.
QByteArray curveFile(const SampleCurve &curve);

/// A loss table from 700 MHz to 6000 MHz, so that the horn's 10 GHz lie beyond it.
QByteArray sampleLossTable();

/// A sector panel of eight elements at 1800 MHz, its beam tilted 4 degrees to the ground, as a
/// planning tool's file (elevation counts down) and as a maker's file (elevation counts up).
QByteArray samplePanelMsi();
QByteArray samplePanelNsma();
