#pragma once

#include <QMap>
#include <QStringList>
#include <QTextStream>

/// What came of one scenario.
struct Result
{
    QMap<QString, int> faults; ///< how often each kind befell a command
    int links = 0;             ///< attempts to open one
    int rows = 0;              ///< recorded and checked
    int boxes = 0;
    QStringList wrong;

    /// Adds \a texts, each once: a fault that lasts shows in every row.
    void add(const char *check, const QStringList &texts)
    {
        for (const QString &text : texts)
            wrong.append(QLatin1String(check) + QStringLiteral(": ") + text);
        wrong.removeDuplicates();
    }

    /// Prints the lines that scripts/campaign.sh reads, its figures to be counted under \a group.
    void print(const QString &group) const
    {
        QTextStream out(stdout);
        int sum = 0;
        for (const int count : faults)
            sum += count;
        const QList<QPair<const char *, int>> figures{
            {"scenarios", 1}, {"faults", sum}, {"links", links}, {"boxes", boxes}, {"rows", rows}};
        for (const auto &figure : figures)
            out << "figure\t" << group << '\t' << figure.first << '\t' << figure.second << '\n';
        for (const QString &text : wrong)
            out << "WRONG: " << text << '\n';
    }
};
