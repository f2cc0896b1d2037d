#include "sweep/runstore.h"

#include "2d/data/curvetext.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool sameMeasuring(const RunHeader &a, const RunHeader &b)
{
    return a.plan == b.plan && a.settle == b.settle && a.readings == b.readings &&
           qFuzzyCompare(1.0 + a.tolerance, 1.0 + b.tolerance) && a.floor == b.floor;
}

} // namespace

RunStore::Problem RunStore::open(const QString &curve, const RunHeader &header, Mode mode)
{
    close();
    m_curvePath = QFileInfo(curve).absoluteFilePath();
    m_run = {};
    m_run.header = header;
    m_isResumed = m_hasFile = false;

    m_lock = std::make_unique<QLockFile>(runPath() + QStringLiteral(".lock"));
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock()) {
        const bool inUse = m_lock->error() == QLockFile::LockFailedError;
        m_lock.reset();
        m_reason = QFileInfo(m_curvePath).absolutePath();
        return inUse ? Problem::InUse : Problem::NotWritten;
    }
    Problem problem = Problem::None;
    if (QFileInfo::exists(runPath())) {
        if (mode == Mode::New)
            problem = Problem::RunExists;
        else if (mode == Mode::Resume)
            problem = readRun(header);
    } else if (mode != Mode::Overwrite && QFileInfo(m_curvePath).size() > 0) {
        problem = Problem::CurveExists;
    }
    if (problem != Problem::None)
        close();
    return problem;
}

void RunStore::close()
{
    m_lock.reset();
}

RunStore::Problem RunStore::readRun(const RunHeader &header)
{
    QFile file(runPath());
    if (!file.open(QIODevice::ReadOnly)) {
        m_reason = file.errorString();
        return Problem::NotARun;
    }
    const std::optional<RunFile> run = RunText::read(file.readAll());
    if (!run)
        return Problem::NotARun;
    if (!sameMeasuring(run->header, header))
        return Problem::OtherPlan;
    m_run = *run;
    m_isResumed = true;
    m_hasFile = true;
    return Problem::None;
}

void RunStore::setHeader(const RunHeader &header)
{
    if (!m_isResumed)
        m_run.header = header;
}

bool RunStore::append(const RunRow &row)
{
    m_run.rows.append(row);
    QByteArray bytes = RunText::row(row);
    if (row.flags.testFlag(RunFlag::Drift))
        bytes += RunText::drift(m_run.drift());
    const FileOutcome outcome = m_hasFile
                                    ? appendLine(runPath(), bytes, {})
                                    : replaceFile(runPath(), RunText::header(m_run.header) + bytes);
    if (!take(outcome)) {
        m_run.rows.removeLast();
        return false;
    }
    m_hasFile = true;
    return true;
}

bool RunStore::writeCurve()
{
    const QVector<QPointF> points = m_run.curve();
    return points.isEmpty() ||
           take(replaceFile(m_curvePath,
                            CurveText::toFile(m_run.header.title, m_run.header.curve, points)));
}

bool RunStore::take(const FileOutcome &outcome)
{
    m_reason = outcome.reason;
    return outcome.kind == FileOutcome::Kind::Written;
}
