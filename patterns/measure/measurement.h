#pragma once

#include "2d/form/curveset.h"
#include "patterns/measure/measureinputs.h"

#include <QObject>
#include <QPointer>
#include <QRectF>

#include <memory>

class CurveDesk;
class MeasureStrip;

/// A measurement under way in a window: its curve grows in both charts, and a strip below them
/// tells where it stands. When it is put away the table is stopped.
class Measurement : public QObject
{
    Q_OBJECT

public:
    /// Takes over a run that was begun with \a devices; \a desk must outlive this object.
    Measurement(CurveDesk &desk, std::unique_ptr<SweepDevices> devices,
                std::unique_ptr<SweepSession> session, QObject *parent = nullptr);
    ~Measurement() override;

signals:
    /// The run has ended; the curve is an ordinary one now. To be put away later, not at once.
    void ended();

private:
    void showCurve();
    void fit();
    void showProgress();
    void takeEnd();

    CurveDesk &m_desk;
    std::unique_ptr<SweepDevices> m_devices;
    std::unique_ptr<SweepSession> m_session; ///< goes before its devices
    QPointer<MeasureStrip> m_strip;
    int m_key = 0;   ///< of the curve; 0: it is not there yet
    QRectF m_fitted; ///< the ranges of the cartesian chart as they were chosen last
};

/// What is known of the curve of \a run in the file \a curve.
CurveRecord recordOfRun(const RunFile &run, const QString &curve);
