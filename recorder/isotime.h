#pragma once

#include <QDate>
#include <QString>

/// Local time of \a wall (ms since 1970 in UTC) as "2026-11-21T20:03:02.117+01:00".
QString isoTime(qint64 wall);

/// The local date of \a wall.
QDate localDate(qint64 wall);
