#include "patterns/measure/measurement.h"

#include "2d/data/curvetext.h"
#include "2d/form/listchart.h"
#include "2d/view/graphicsbase.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/measure/measurestrip.h"

#include <QDir>
#include <QTimer>

namespace {

/// The points of \a run with a flag, by their angles.
QString anglesWith(const RunFile &run, RunFlag flag)
{
    QStringList angles;
    for (const RunRow &row : run.rows) {
        if (row.flags.testFlag(flag) && run.row(row.wanted) == &row)
            angles.append(CurveText::number(row.theta) + QStringLiteral("°"));
    }
    return angles.join(QStringLiteral(", "));
}

} // namespace

CurveRecord recordOfRun(const RunFile &run, const QString &curve)
{
    const RunHeader &header = run.header;
    CurveRecord record;
    record.file = curve;
    record.title = header.title;
    if (header.frequency)
        record.frequency = CurveText::number(*header.frequency / megahertz);
    record.notes.append(Measurement::tr("Measured %1 with %2, rotator %3")
                            .arg(header.started, header.identity, header.rotator));
    const std::optional<double> drift = run.drift();
    if (drift) {
        const QString value = QString::number(*drift, 'f', 2);
        record.notes.append(run.isMarked()
                                ? Measurement::tr("Marked: the level drifted by %1 dB").arg(value)
                                : Measurement::tr("Drift %1 dB").arg(value));
    }
    const auto tell = [&](RunFlag flag, const QString &text) {
        const QString angles = anglesWith(run, flag);
        if (!angles.isEmpty())
            record.notes.append(text.arg(angles));
    };
    tell(RunFlag::Missing, Measurement::tr("No reading at %1"));
    tell(RunFlag::Angle, Measurement::tr("The table did not stay at %1"));
    tell(RunFlag::Unstable, Measurement::tr("Unsteady readings at %1"));
    tell(RunFlag::Floor, Measurement::tr("Near the floor at %1"));
    return record;
}

Measurement::Measurement(CurveDesk &desk, std::unique_ptr<SweepDevices> devices,
                         std::unique_ptr<SweepSession> session, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_devices(std::move(devices))
    , m_session(std::move(session))
    , m_strip(new MeasureStrip)
{
    m_desk.addStrip(m_strip);
    SweepSession *run = m_session.get();
    connect(m_strip, &MeasureStrip::pauseWished, run, &SweepSession::pause);
    connect(m_strip, &MeasureStrip::resumeWished, run, &SweepSession::resume);
    connect(m_strip, &MeasureStrip::stopWished, run, &SweepSession::stop);
    connect(run, &SweepSession::measured, this, &Measurement::showCurve);
    connect(run, &SweepSession::progressed, this, &Measurement::showProgress);
    connect(run, &SweepSession::ended, this, &Measurement::takeEnd);
    showProgress();
    // What a run that is resumed brings along, once the strip has its place.
    QTimer::singleShot(0, this, &Measurement::showCurve);
}

Measurement::~Measurement()
{
    m_session.reset();
    delete m_strip;
}

void Measurement::showCurve()
{
    const QVector<QPointF> points = m_session->store().run().curve();
    if (points.isEmpty())
        return;
    CurveSet &curves = m_desk.curves();
    if (m_key != 0) {
        // A curve that the user removed meanwhile stays away; the files have it all.
        const int id = curves.idOf(m_key);
        if (id != 0) {
            curves.setPoints(id, points);
            fit();
        }
        return;
    }
    const CurveHistory::Step noStep(m_desk.history(), {}, CurveHistory::Kind::Final);
    const RunFile &run = m_session->store().run();
    const int id = curves.add(curves.freeName(run.header.curve), points,
                              recordOfRun(run, m_session->store().curvePath()));
    m_key = curves.state(id).key;
    curves.select(id);
    fit();
}

/// Makes room for the curve as it grows, unless the user looks at a part of it.
void Measurement::fit()
{
    const GraphicsBase &chart = m_desk.form().cartesianChart();
    const auto shown = [&chart] {
        const ViewRange range = chart.shownRange();
        return QRectF(range.xMin, range.yMin, range.xMax - range.xMin, range.yMax - range.yMin);
    };
    if (!m_fitted.isNull() && shown() != m_fitted)
        return;
    m_desk.form().fit();
    m_fitted = shown();
}

void Measurement::showProgress()
{
    const QString wait = m_session->waitText();
    m_strip->show(m_session->progress(), wait.isEmpty() ? m_session->causeText() : wait);
}

void Measurement::takeEnd()
{
    showCurve();
    const RunStore &store = m_session->store();
    const RunFile &run = store.run();
    CurveSet &curves = m_desk.curves();
    const int id = m_key == 0 ? 0 : curves.idOf(m_key);
    if (id != 0) {
        const CurveHistory::Step noStep(m_desk.history(), {}, CurveHistory::Kind::Final);
        CurveRecord record = recordOfRun(run, store.curvePath());
        record.isSaved = m_session->isWritten();
        curves.setRecord(id, record);
    }
    m_strip->hide();
    emit ended(); // before a message that waits for the user
    const QString file = QDir::toNativeSeparators(store.curvePath());
    const QString cause = m_session->causeText();
    if (!m_session->isWritten()) {
        m_desk.warn(tr("The curve could not be written: %1\n%2").arg(file, store.reason()));
    } else if (!cause.isEmpty()) {
        m_desk.warn(tr("The measurement has ended early. %1").arg(cause));
    } else if (run.isMarked()) {
        m_desk.warn(tr("The level drifted by %1 dB while the pattern was measured.")
                        .arg(*run.drift(), 0, 'f', 2));
    } else if (m_session->cause() == SweepRun::Cause::User) {
        m_desk.tell(tr("Stopped; measured so far: %1").arg(file));
    } else {
        m_desk.tell(tr("Measured: %1").arg(file));
    }
}
