#include "storage/recordfile.h"

#include <QDateTime>
#include <QDebug>
#include <QLocale>

namespace RecordFile {

QString path(const QString &directory, const QDate &day)
{
    return QStringLiteral("%1/%2.csv")
        .arg(directory, QLocale::c().toString(day, QStringLiteral("yyyy-MM-dd")));
}

QString header()
{
    return QStringLiteral("Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n");
}

QString row(const QDateTime &when, double frequency, double offset, const QString &power,
            const QString &converted)
{
    // One call for all places: a text of the instrument may hold a "%1" of its own.
    return QStringLiteral("%1,%2,%3,%4dBm,%5\n")
        .arg(QLocale::c().toString(when, QStringLiteral("yyyy/MM/dd hh:mm")),
             QString::number(frequency), QString::number(offset), power, converted);
}

FileOutcome append(const QString &path, const QString &row)
{
    const FileOutcome outcome = appendLine(path, row.toUtf8(), header().toUtf8());
    if (outcome.kind == FileOutcome::Kind::OpenFailed)
        qDebug("open failed");
    return outcome;
}

} // namespace RecordFile
