#include "recorder/numbertext.h"

#include <QLocale>

QString shortNumber(double value)
{
    return QString::number(value + 0.0, 'f', QLocale::FloatingPointShortest);
}

QString levelText(double level)
{
    QString text = fourDecimals(level);
    for (int zeros = 0; zeros < 2 && text.endsWith(QLatin1Char('0')); ++zeros)
        text.chop(1);
    return text;
}

QString fourDecimals(double value)
{
    const QString text = QString::number(value, 'f', 4);
    return text == QLatin1String("-0.0000") ? text.mid(1) : text;
}
