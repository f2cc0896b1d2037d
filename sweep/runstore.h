#pragma once

#include "storage/filewriting.h"
#include "sweep/runfile.h"

#include <QLockFile>

#include <memory>

/// The two files of a run: the run file, to which every point goes as it is measured, and beside it
/// the curve. While a store is open no other program opens the same files.
class RunStore
{
public:
    enum class Mode { New, Resume, Overwrite };
    enum class Problem {
        None,
        RunExists,
        CurveExists,
        NotARun,   ///< what should be resumed cannot be read as a run
        OtherPlan, ///< what should be resumed has another plan
        InUse,     ///< by another program
        NotWritten,
    };

    /// Opens the files beside the curve file \a curve for a run with \a header. With `Mode::Resume`
    /// the rows that are there count, and the header is that of the file; without a run file it is
    /// a new run. Writes nothing but a lock.
    Problem open(const QString &curve, const RunHeader &header, Mode mode);
    void close();

    const QString &curvePath() const { return m_curvePath; }
    QString runPath() const { return RunText::pathBeside(m_curvePath); }
    const RunFile &run() const { return m_run; }
    /// Whether rows of an earlier start are there.
    bool isResumed() const { return m_isResumed; }
    /// The system's words for the last failure.
    const QString &reason() const { return m_reason; }

    /// Replaces the header of a run without rows.
    void setHeader(const RunHeader &header);

    /// These return false when nothing could be written.
    bool append(const RunRow &row);
    /// Writes the curve as far as it goes; nothing where no point is on it.
    bool writeCurve();

private:
    Problem readRun(const RunHeader &header);
    bool take(const FileOutcome &outcome);

    QString m_curvePath;
    RunFile m_run;
    QString m_reason;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isResumed = false;
    bool m_hasFile = false; ///< the run file is this run's
};
