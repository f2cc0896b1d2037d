#include "replay.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace sim {

namespace {

/// The bytes of the escape sequence behind the backslash at \a i, which is moved to its last
/// character.
QByteArray unescaped(const QByteArray &line, int &i)
{
    const char kind = line.at(++i);
    const int digits = kind == 'x' ? 2 : kind == 'u' ? 4 : kind == 'U' ? 8 : 0;
    if (digits > 0) {
        const uint code = line.mid(i + 1, digits).toUInt(nullptr, 16);
        i += digits;
        return kind == 'x' ? QByteArray(1, static_cast<char>(code))
                           : QString::fromUcs4(&code, 1).toUtf8();
    }
    constexpr const char *letters = "nrtbfav0";
    constexpr const char *meanings = "\n\r\t\b\f\a\v\0";
    const char *const found = std::find(letters, letters + 8, kind);
    return QByteArray(1, found == letters + 8 ? kind : meanings[found - letters]);
}

/// The text in the quotation marks that Qt's messages put around it, the first in \a line behind
/// \a start.
QByteArray quoted(const QByteArray &line, int start)
{
    QByteArray text;
    for (int i = line.indexOf('"', start) + 1; i > 0 && i < line.size(); ++i) {
        if (line.at(i) == '"') {
            // A pair of marks only keeps a number in hexadecimal from its neighbour.
            if (line.mid(i, 2) != "\"\"")
                break;
            ++i;
        } else if (line.at(i) == '\\' && i + 1 < line.size()) {
            text += unescaped(line, i);
        } else {
            text += line.at(i);
        }
    }
    return text;
}

/// The time at the end of \a line, "(2026-01-31 09:15:02 117)", in ms since the epoch.
qint64 timeOf(const QByteArray &line)
{
    const int start = line.lastIndexOf('(');
    const QString text = QString::fromLatin1(line.mid(start + 1, 23));
    return QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss zzz"))
        .toMSecsSinceEpoch();
}

} // namespace

std::optional<Replay> Replay::fromLog(const QString &path, QString *error)
{
    QStringList files{path};
    if (QFileInfo(path).isDir()) {
        const QDir folder(path);
        files.clear();
        for (const QString &name : folder.entryList({QStringLiteral("*.txt")}, QDir::Files))
            files.append(folder.filePath(name));
    }
    Replay replay;
    for (const QString &name : qAsConst(files)) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            *error = tr("Cannot read %1: %2").arg(name, file.errorString());
            return std::nullopt;
        }
        replay.read(file.readAll());
    }
    if (replay.isEmpty()) {
        *error = tr("%1 holds no command that was sent to an instrument.").arg(path);
        return std::nullopt;
    }
    return replay;
}

void Replay::read(const QByteArray &log)
{
    static const QByteArray command("Debug: send cmd:");
    static const QByteArray reply("Debug: read data");
    static const QByteArray silence("Debug: Read time out");
    for (const QByteArray &line : log.split('\n')) {
        if (line.startsWith(command)) {
            m_command = quoted(line, command.size()).trimmed();
            m_sent = timeOf(line);
            m_replies[m_command].replies.append(Reply());
        } else if (m_command.isEmpty()) {
            continue;
        } else if (line.startsWith(reply)) {
            // The console's buffer grows from line to line: the last one holds all.
            const qint64 delay = std::max<qint64>(0, timeOf(line) - m_sent);
            m_replies[m_command].replies.last() = {quoted(line, reply.size()),
                                                   static_cast<int>(delay)};
        } else if (line.startsWith(silence)) {
            m_replies[m_command].replies.last() = Reply();
        }
    }
}

std::optional<Replay::Reply> Replay::next(const QByteArray &line)
{
    const auto found = m_replies.find(line.trimmed());
    if (found == m_replies.end())
        return std::nullopt;
    const int last = found->replies.size() - 1;
    return found->replies.at(std::min(found->given++, last));
}

} // namespace sim
