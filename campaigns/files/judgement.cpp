#include "judgement.h"

#include <QRegularExpression>

#include <algorithm>
#include <csignal>

#include <sys/wait.h>

namespace {

/// A file of lines, compared with what it held before.
struct Lines
{
    bool keepsBefore = false;
    QList<QByteArray> added; ///< whole ones
    QByteArray torn;         ///< a last line without an end
};

Lines compare(const QByteArray &found, const QByteArray &before, const QByteArray &lineEnd)
{
    Lines lines;
    lines.keepsBefore = found.startsWith(before);
    int from = before.size();
    int to = 0;
    while (lines.keepsBefore && (to = found.indexOf(lineEnd, from)) >= 0) {
        lines.added.append(found.mid(from, to - from));
        from = to + lineEnd.size();
    }
    lines.torn = found.mid(from);
    return lines;
}

bool isLogLine(const QByteArray &line)
{
    static const QRegularExpression whole(
        QStringLiteral("\\A(Debug|Info|Warning|Critical): .*\\(\\d{4}-\\d\\d-\\d\\d "
                       "\\d\\d:\\d\\d:\\d\\d \\d{3}\\)\\z"),
        QRegularExpression::DotMatchesEverythingOption);
    return whole.match(QString::fromUtf8(line)).hasMatch();
}

QString quoted(const QString &text, const QByteArray &bytes)
{
    constexpr int shown = 200;
    return text + QStringLiteral(" \"") + QString::fromUtf8(bytes.left(shown)) + QLatin1Char('"');
}

/// What is wrong with \a found, which held \a before and is to hold the lines \a wanted behind it.
QStringList faultsOfLines(const WrittenFile &file, const Lines &found, const Lines &wanted)
{
    if (!found.keepsBefore)
        return {file.path + QStringLiteral(": earlier lines are gone")};
    QStringList faults;
    for (const QByteArray &line : found.added) {
        if (!(file.isFree ? isLogLine(line) : wanted.added.contains(line)))
            faults.append(quoted(file.path + QStringLiteral(": a broken line"), line));
    }
    if (!file.isFree && found.added.size() > wanted.added.size())
        faults.append(file.path + QStringLiteral(": a line stands there twice"));
    return faults;
}

QList<QByteArray> missing(const Lines &found, const Lines &wanted)
{
    QList<QByteArray> lines;
    for (const QByteArray &line : wanted.added) {
        if (!found.added.contains(line))
            lines.append(line);
    }
    return lines;
}

QStringList faultsOfEnd(const Performance &performance, bool isKilled)
{
    const int status = performance.status;
    const bool isAsPlanned = isKilled ? WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL
                                      : WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (isAsPlanned)
        return {};
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
        return {QStringLiteral("the program hangs")};
    return {quoted(QStringLiteral("the program ended with status %1").arg(status),
                   performance.said.right(200))};
}

/// Whether what looks well need not last: no sync has told that all is on the disk, and neither has
/// the close that stands for it.
bool mayNotBeOnDisk(const Performance &performance)
{
    const Call last = performance.calls.contains(Call::Sync) ? Call::Sync : Call::Close;
    const int failed = performance.failed.count(last);
    return failed > 0 && failed == performance.calls.count(last);
}

QStringList strangers(const Files &files, const Writer &writer, const Files &known)
{
    QStringList names;
    for (const QString &name : files.keys()) {
        bool isExpected = known.contains(name);
        for (const WrittenFile &file : writer.files)
            isExpected = isExpected || file.path == name;
        if (!isExpected)
            names.append(QStringLiteral("left behind: ") + name);
    }
    return names;
}

} // namespace

Judgement::Judgement(const Stage &stage, const Writer &writer)
    : m_writer(writer)
    , m_before(writer.startsEmpty ? Files() : stage.perform(writer, 0, {}).files)
    , m_undisturbed(stage.perform(writer, 1, m_before))
    , m_next(stage.perform(writer, 2, m_undisturbed.files).files)
    , m_fromNothing(stage.perform(writer, 2, {}).files)
{}

QStringList Judgement::faults() const
{
    QStringList faults = faultsOfEnd(m_undisturbed, false);
    faults += strangers(m_undisturbed.files, m_writer, {});
    for (const WrittenFile &file : m_writer.files) {
        if (m_undisturbed.files.value(file.path) == m_before.value(file.path))
            faults.append(file.path + QStringLiteral(": nothing was written"));
    }
    if (m_undisturbed.calls.isEmpty())
        faults.append(QStringLiteral("no system call was seen"));
    return faults;
}

QStringList Judgement::faultsOf(const Performance &performance, const Failure &failure) const
{
    QStringList faults = faultsOfEnd(performance, failure.kills());
    if (!failure.kills() && !performance.failed.contains(Call::Unlink))
        faults += strangers(performance.files, m_writer, m_before);
    Loss loss;
    for (const WrittenFile &file : m_writer.files) {
        if (file.kind == WrittenFile::Kind::Whole)
            faults += faultsOfWhole(file, performance, &loss);
        else
            faults += faultsOfAdded(file, performance, failure, &loss);
    }
    if (!failure.kills())
        faults += faultsOfTelling(performance, failure, loss);
    return faults;
}

QStringList Judgement::faultsOfWhole(const WrittenFile &file, const Performance &performance,
                                     Loss *loss) const
{
    const QByteArray now = performance.files.value(file.path);
    if (now == m_undisturbed.files.value(file.path))
        return {};
    loss->isContent = true;
    const bool isAsBefore = now == m_before.value(file.path) &&
                            performance.files.contains(file.path) == m_before.contains(file.path);
    if (isAsBefore)
        return {};
    return {quoted(file.path + QStringLiteral(": neither old nor new"), now)};
}

QStringList Judgement::faultsOfAdded(const WrittenFile &file, const Performance &performance,
                                     const Failure &failure, Loss *loss) const
{
    const QByteArray before = m_before.value(file.path);
    const Lines wanted = compare(m_undisturbed.files.value(file.path), before, file.lineEnd);
    const Lines found = compare(performance.files.value(file.path), before, file.lineEnd);
    QStringList faults = faultsOfLines(file, found, wanted);
    if (!found.torn.isEmpty() && !failure.kills() && !performance.failed.contains(Call::Truncate))
        faults.append(quoted(file.path + QStringLiteral(": a torn line"), found.torn));
    const QList<QByteArray> lost = missing(found, wanted);
    if (file.isFree)
        loss->messages += lost;
    else
        loss->isContent = loss->isContent || !lost.isEmpty();
    return faults;
}

QStringList Judgement::faultsOfTelling(const Performance &performance, const Failure &failure,
                                       const Loss &loss) const
{
    // Where the log gets no folder its messages are dropped: there is no place left to tell it.
    const bool hasLog = std::any_of(m_writer.files.begin(), m_writer.files.end(),
                                    [](const WrittenFile &file) { return file.isFree; });
    const bool isMute = hasLog && performance.failed.contains(Call::MakeFolder);
    const bool isTold =
        !m_writer.complaint.isEmpty() && QRegularExpression(m_writer.complaint)
                                             .match(QString::fromUtf8(performance.said))
                                             .hasMatch();
    const bool isDoubtful = !failure.isHarmless() && mayNotBeOnDisk(performance);
    QStringList faults;
    if ((loss.isContent || isDoubtful) && !isTold && !isMute && !m_writer.complaint.isEmpty())
        faults.append(QStringLiteral("the user was not told"));
    for (const QByteArray &message : loss.messages) {
        if (!isMute && !performance.said.contains(message))
            faults.append(quoted(QStringLiteral("nowhere to be read:"), message));
    }
    if (failure.isHarmless() && (loss.isContent || isTold || !loss.messages.isEmpty()))
        faults.append(QStringLiteral("not written, though it could have been"));
    return faults;
}

QStringList Judgement::faultsOfNext(const Performance &next, const Performance &performance) const
{
    QStringList faults = faultsOfEnd(next, false);
    faults += strangers(next.files, m_writer, performance.files);
    for (const WrittenFile &file : m_writer.files) {
        QByteArray before = performance.files.value(file.path);
        const QByteArray now = next.files.value(file.path);
        if (file.kind == WrittenFile::Kind::Whole) {
            if (now != m_next.value(file.path))
                faults.append(quoted(file.path + QStringLiteral(": not the next content"), now));
            continue;
        }
        const Lines wanted = compare(nextLines(file, before), {}, file.lineEnd);
        if (!before.isEmpty() && !before.endsWith(file.lineEnd))
            before += file.lineEnd; // the next line is one of its own
        const Lines found = compare(now, before, file.lineEnd);
        faults += faultsOfLines(file, found, wanted);
        if (!found.torn.isEmpty())
            faults.append(quoted(file.path + QStringLiteral(": a torn line"), found.torn));
        if (!file.isFree && !missing(found, wanted).isEmpty())
            faults.append(file.path + QStringLiteral(": the next line is missing"));
    }
    for (QString &fault : faults)
        fault.prepend(QStringLiteral("at the next write, "));
    return faults;
}

/// What round 2 adds to \a file, which held \a before.
QByteArray Judgement::nextLines(const WrittenFile &file, const QByteArray &before) const
{
    return before.isEmpty()
               ? m_fromNothing.value(file.path)
               : m_next.value(file.path).mid(m_undisturbed.files.value(file.path).size());
}
