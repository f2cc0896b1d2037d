#include "console/logdays.h"

#include "messagelog.h"

#include <QDebug>
#include <QDir>

void LogDays::begin(int keep)
{
    m_keep = keep;
    enter(QDate::currentDate());
}

void LogDays::tick(const QDate &today)
{
    if (m_day.isValid() && today != m_day)
        enter(today);
}

void LogDays::enter(const QDate &day)
{
    m_day = day;
    const QString folder = QDir().absoluteFilePath(MessageLog::folder(day));
    qInfo().noquote() << "The log of this day is in" << QDir::toNativeSeparators(folder);
    MessageLog::removeOld(day, m_keep);
}
