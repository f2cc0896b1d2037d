#include "recorder/isotime.h"

#include <QDateTime>
#include <QLocale>

#include <cstdlib>

QString isoTime(qint64 wall)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(wall);
    const int minutes = local.offsetFromUtc() / 60;
    const QLatin1Char zero('0');
    // Qt writes "Z" for an offset of nothing, and files are easier to read with one form.
    return QStringLiteral("%1%2%3:%4")
        .arg(QLocale::c().toString(QDateTime(local.date(), local.time(), Qt::UTC),
                                   QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")),
             QString(QLatin1Char(minutes < 0 ? '-' : '+')))
        .arg(std::abs(minutes) / 60, 2, 10, zero)
        .arg(std::abs(minutes) % 60, 2, 10, zero);
}

QDate localDate(qint64 wall)
{
    return QDateTime::fromMSecsSinceEpoch(wall).date();
}
