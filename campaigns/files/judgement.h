#pragma once

#include "stage.h"

#include <QStringList>

/// What a writer is held to. Measured by letting it write undisturbed.
class Judgement
{
public:
    /// \a writer must outlive the judgement.
    Judgement(const Stage &stage, const Writer &writer);

    /// The files before anything goes wrong.
    const Files &before() const { return m_before; }
    /// The calls of an undisturbed performance, each of which can go wrong.
    const QVector<Call> &calls() const { return m_undisturbed.calls; }
    /// What is wrong without any failure.
    QStringList faults() const;

    /// What is wrong with \a performance of round 1, in which \a failure took place.
    QStringList faultsOf(const Performance &performance, const Failure &failure) const;
    /// What is wrong with the undisturbed performance \a next of round 2 after \a performance.
    QStringList faultsOfNext(const Performance &next, const Performance &performance) const;

private:
    /// What is missing in the files.
    struct Loss
    {
        bool isContent = false;
        QList<QByteArray> messages; ///< of the log
    };

    QStringList faultsOfWhole(const WrittenFile &file, const Performance &performance,
                              Loss *loss) const;
    QStringList faultsOfAdded(const WrittenFile &file, const Performance &performance,
                              const Failure &failure, Loss *loss) const;
    QStringList faultsOfTelling(const Performance &performance, const Failure &failure,
                                const Loss &loss) const;
    QByteArray nextLines(const WrittenFile &file, const QByteArray &before) const;

    const Writer &m_writer;
    Files m_before;
    Performance m_undisturbed; ///< round 1
    Files m_next;              ///< after round 2
    Files m_fromNothing;       ///< after round 2 without any file before
};
