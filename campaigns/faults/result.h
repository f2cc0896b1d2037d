#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QVector>

/// What came of one scenario.
struct Result
{
    struct Failure
    {
        QString check; ///< one of checks
        QString text;
    };
    /// What is checked, in the order of the report.
    static const QStringList checks;

    QString name;
    QMap<QString, int> faults; ///< how often each kind befell a command
    int links = 0;             ///< attempts to open one
    int rows = 0;              ///< recorded and checked
    int boxes = 0;
    QVector<Failure> failures;

    void add(const char *check, const QStringList &texts);

    /// One line, and back; a text that is none gives a result without a name.
    QByteArray toLine() const;
    static Result fromLine(const QByteArray &line);
};
