#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace sim {

/// The replies that an instrument gave a console, out of the console's log.
class Replay
{
    Q_DECLARE_TR_FUNCTIONS(sim::Replay)

public:
    /// What followed a command.
    struct Reply
    {
        QByteArray bytes; ///< as they came, line ends included; empty: silence
        int delay = 0;    ///< ms from the command to the last of them
    };

    /// Reads the log \a path: the file of an hour, or the folder of a day with one file an hour.
    /// Returns nothing, and an explanation in \a error, when it cannot be read or holds no command.
    static std::optional<Replay> fromLog(const QString &path, QString *error);

    /// Takes in the lines of a log that follow those before.
    void read(const QByteArray &log);
    bool isEmpty() const { return m_replies.isEmpty(); }

    /// The reply to \a line, a command without its line end: that of the log's first such command,
    /// then of its second, and so on; when there is none left the last one again. Nothing when the
    /// log does not have the command.
    std::optional<Reply> next(const QByteArray &line);

private:
    struct Queue
    {
        QList<Reply> replies;
        int given = 0;
    };

    QHash<QByteArray, Queue> m_replies;
    QByteArray m_command; ///< the one whose reply is being read
    qint64 m_sent = 0;    ///< ms since the epoch
};

} // namespace sim
