#pragma once

#include <QMap>
#include <QString>

class QTextStream;

/// Ratios of an earlier run, one a line: the ratio, a tabulator, "work to peer".
namespace RatioTable {

/// An empty map when the file cannot be read.
QMap<QString, double> read(const QString &fileName);
bool write(const QString &fileName, const QMap<QString, double> &ratios);

/// Prints each of \a now that is more than 15 % above \a before, and returns how many those are.
int printWorse(const QMap<QString, double> &before, const QMap<QString, double> &now,
               QTextStream &out);

} // namespace RatioTable
