#include "ratiotable.h"

#include <QFile>
#include <QTextStream>

namespace RatioTable {

QMap<QString, double> read(const QString &fileName)
{
    QMap<QString, double> ratios;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return ratios;
    QTextStream in(&file);
    while (!in.atEnd()) {
        const QString line = in.readLine();
        const int tab = line.indexOf(QLatin1Char('\t'));
        if (tab > 0)
            ratios.insert(line.mid(tab + 1), line.left(tab).toDouble());
    }
    return ratios;
}

bool write(const QString &fileName, const QMap<QString, double> &ratios)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream out(&file);
    for (auto it = ratios.cbegin(); it != ratios.cend(); ++it)
        out << QString::number(it.value(), 'f', 3) << '\t' << it.key() << '\n';
    return true;
}

int printWorse(const QMap<QString, double> &before, const QMap<QString, double> &now,
               QTextStream &out)
{
    constexpr double tolerated = 1.15;
    int worse = 0;
    for (auto it = now.cbegin(); it != now.cend(); ++it) {
        const auto known = before.constFind(it.key());
        if (known == before.cend()) {
            out << "not in the table: " << it.key() << '\n';
            continue;
        }
        if (it.value() <= tolerated * known.value())
            continue;
        ++worse;
        out << "worse: " << it.key() << ", " << QString::number(it.value(), 'f', 2)
            << " instead of " << QString::number(known.value(), 'f', 2) << '\n';
    }
    return worse;
}

} // namespace RatioTable
