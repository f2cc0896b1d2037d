#pragma once

#include <QString>
#include <QVector>

#include <optional>

class QTextStream;

/// One line of the table: what a piece of work costs, here and with the peers, in ms.
struct ReportRow
{
    QString work;
    std::optional<double> own;
    std::optional<double> qcp;     ///< QCustomPlot as it comes
    std::optional<double> qcpFast; ///< QCustomPlot with fast polylines
    std::optional<double> qwt;
};

/// One line of the table for work that has one rival: times in ms.
struct DuelRow
{
    QString work;
    double own = 0.0;
    QString rival;
    std::optional<double> rivalTime;
};

/// Prints the results as tables that a Markdown page can take as they are.
namespace Report {

void printCharts(QTextStream &out, const QVector<ReportRow> &rows);
void printDuels(QTextStream &out, const QVector<DuelRow> &rows);

} // namespace Report
