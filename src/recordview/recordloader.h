#pragma once

#include "recorddata/recordreader.h"

#include <QThread>

#include <atomic>
#include <memory>

/// Reads a record without holding the window up.
class RecordLoader : public QThread
{
    Q_OBJECT

public:
    RecordLoader(const QStringList &paths, QObject *parent);
    ~RecordLoader() override;

    void cancel() { m_isCancelled = true; }
    /// What was read, once the thread has finished.
    RecordReader::Outcome outcome() const { return m_outcome; }
    std::unique_ptr<RecordReader> takeReader() { return std::move(m_reader); }
    QString error() const { return m_reader->error(); }

signals:
    /// \a share of 1000.
    void progressed(int share);

protected:
    void run() override;

private:
    QStringList m_paths;
    std::unique_ptr<RecordReader> m_reader;
    RecordReader::Outcome m_outcome = RecordReader::Outcome::Failed;
    std::atomic<bool> m_isCancelled{false};
};
