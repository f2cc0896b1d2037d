#include "console/recordkeeper.h"

#include "console/powerdisplay.h"
#include "measure/reading.h"
#include "storage/filewriting.h"
#include "storage/recordfile.h"

#include <QDebug>

void RecordKeeper::write(const QString &folder, double frequency, double offset,
                         const Reading &reading)
{
    // One look at the clock, so that no row of the new day ends up in the old day's file.
    const QDateTime now = QDateTime::currentDateTime();
    const QString path = RecordFile::path(folder, now.date());
    const FileOutcome outcome =
        RecordFile::append(path, RecordFile::row(now, frequency, offset,
                                                 PowerDisplay::figures(reading), reading.text));
    if (outcome.kind == FileOutcome::Kind::Written) {
        if (m_failure)
            qInfo().noquote() << "Records are written again to" << path;
        m_failure.reset();
        m_lastRow = now;
        emit changed();
        return;
    }
    const bool isFirst = !m_failure;
    m_failure = Failure{isFirst ? now : m_failure->since, outcome.reason};
    if (isFirst)
        qWarning().noquote() << "Record not written to" << path << ":" << outcome.reason;
    emit changed();
    if (isFirst)
        emit failed(outcome.reason);
}

void RecordKeeper::reset()
{
    m_lastRow = {};
    m_failure.reset();
    emit changed();
}
