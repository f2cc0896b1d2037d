#include "judge.h"

#include <cmath>

void judgeRows(const QStringList &rows, Verdict &verdict)
{
    QString end;
    for (const QString &row : rows) {
        const QStringList cells = row.split(QLatin1Char(','));
        verdict.expect(cells.size() == 15, QStringLiteral("not 15 cells: ") + row);
        if (cells.size() != 15)
            continue;
        ++verdict.rows;
        verdict.expect(end.isEmpty() || cells[1] == end,
                       QStringLiteral("does not follow %1: %2").arg(end, row));
        end = cells[0];
        const bool isValid = cells[13] == QLatin1String("1");
        verdict.valid += isValid;
        verdict.expect(isValid == (cells[2].toInt() > 0), QStringLiteral("validity: ") + row);
        for (const int level : {4, 5, 6, 8})
            verdict.expect(isValid ? std::abs(cells[level].toDouble() + 20) < 1
                                   : cells[level].isEmpty(),
                           QStringLiteral("level: ") + row);
        verdict.expect(isValid || cells[14] != QLatin1String("ok"),
                       QStringLiteral("reason: ") + row);
    }
}
