#include "sweep/sweepsession.h"

#include <QDir>

QString SweepSession::refusalText(Refusal refusal) const
{
    const QString run = QDir::toNativeSeparators(m_store.runPath());
    switch (refusal) {
    case Refusal::None:
        return {};
    case Refusal::Plan:
        return PlanText::problem(m_layout.problem, m_limits);
    case Refusal::Relative:
        return tr("The meter measures relative to a reference; turn that off first.");
    case Refusal::OtherSettings:
        return tr("Frequency, offset or averaging of the meter are not those of the run.");
    case Refusal::Files:
        break;
    }
    switch (m_problem) {
    case RunStore::Problem::None:
        return {};
    case RunStore::Problem::RunExists:
        return tr("There is a run file already: %1").arg(run);
    case RunStore::Problem::CurveExists:
        return tr("The file exists already: %1").arg(QDir::toNativeSeparators(m_store.curvePath()));
    case RunStore::Problem::NotARun:
        return tr("This is no run file that can be resumed: %1").arg(run);
    case RunStore::Problem::OtherPlan:
        return tr("This run was begun with another plan: %1").arg(run);
    case RunStore::Problem::InUse:
        return tr("Another program is measuring into this file: %1").arg(run);
    case RunStore::Problem::NotWritten:
        break;
    }
    return tr("Nothing can be written here: %1").arg(run);
}

QString SweepSession::causeText() const
{
    switch (cause()) {
    case SweepRun::Cause::None:
    case SweepRun::Cause::User:
        return {};
    case SweepRun::Cause::Stalled:
        return tr("The table does not move on; it was stopped.");
    case SweepRun::Cause::RotatorFailed:
        return tr("The rotator failed three times in a row (error %1).").arg(m_run->code());
    case SweepRun::Cause::OutOfLimits:
        return tr("The rotator refuses the angle: it is out of its limits.");
    case SweepRun::Cause::RotatorRefused:
        return tr("The rotator refuses to work (error %1).").arg(m_run->code());
    case SweepRun::Cause::NotWritten:
        return tr("The point could not be written: %1").arg(m_store.reason());
    case SweepRun::Cause::OtherSettings:
        break;
    }
    return tr("The meter is set otherwise than at the start.");
}

QString SweepSession::waitText() const
{
    // Before it begins as well: a link may have been lost since the check.
    const bool waits = m_run && (m_run->state() == SweepRun::State::Waiting || m_locating);
    return waits ? m_devices->trouble() : QString();
}
