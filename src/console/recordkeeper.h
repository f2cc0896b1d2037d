#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

#include <optional>

struct Reading;

/// Writes the readings into the records and keeps how that goes.
class RecordKeeper : public QObject
{
    Q_OBJECT

public:
    /// Since when no row could be written, and the system's words for it.
    struct Failure
    {
        QDateTime since;
        QString reason;
    };

    using QObject::QObject;

    /// Appends one row to the record of the day in \a folder: \a frequency and \a offset as the
    /// panel shows them.
    void write(const QString &folder, double frequency, double offset, const Reading &reading);
    /// Forgets what was; another link or folder has begun.
    void reset();

    /// When the last row was written; invalid before the first.
    QDateTime lastRow() const { return m_lastRow; }
    const std::optional<Failure> &failure() const { return m_failure; }

signals:
    /// A row was written or lost.
    void changed();
    /// The first of the rows that are lost, for \a reason.
    void failed(const QString &reason);

private:
    QDateTime m_lastRow;
    std::optional<Failure> m_failure;
};
