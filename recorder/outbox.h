#pragma once

#include <QByteArray>
#include <QString>

#include <deque>
#include <functional>
#include <optional>

/// Lines on their way into files. Those that cannot be written wait, and go out in order as soon as
/// they can; where too many wait, the oldest are given up.
class Outbox
{
public:
    struct Line
    {
        QString file;
        QByteArray header; ///< for a file that is empty
        QByteArray text;
    };
    /// Appends lines that all belong into one file; why that failed, or nothing. The file is as
    /// before after a failure.
    using Append = std::function<std::optional<QString>(const Line &lines)>;

    /// What has just changed.
    struct Change
    {
        bool isFailing = false;
        QString reason; ///< of a failure
    };

    explicit Outbox(Append append, std::size_t capacity = 100000);

    void add(Line line);
    /// Writes what waits; tells when writing begins to fail or goes on again.
    std::optional<Change> flush();

    std::size_t waiting() const { return m_lines.size(); }
    /// The number of lines that were given up since it was last taken.
    qint64 takeLost();

private:
    Append m_append;
    const std::size_t m_capacity;
    std::deque<Line> m_lines;
    qint64 m_lost = 0;
    bool m_isFailing = false;
};
