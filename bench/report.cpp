#include "report.h"

#include <QTextStream>

namespace {

QString significant(double value)
{
    const int decimals = value < 0.1 ? 4 : value < 10 ? 2 : value < 100 ? 1 : 0;
    return QString::number(value, 'f', decimals);
}

QString cell(const std::optional<double> &time)
{
    return time ? significant(*time) : QStringLiteral("-");
}

QString ratio(const std::optional<double> &own, const std::optional<double> &peer)
{
    return own && peer && *peer > 0 ? QString::number(*own / *peer, 'f', 2) : QStringLiteral("-");
}

void printRow(QTextStream &out, const QStringList &cells)
{
    out << "| " << cells.join(QStringLiteral(" | ")) << " |\n";
    out.flush();
}

} // namespace

namespace Report {

void printCharts(QTextStream &out, const QVector<ReportRow> &rows)
{
    out << "| Work (ms) | ours | QCP | QCP fast | Qwt | ours / QCP | ours / QCP fast | ours / Qwt "
           "|\n"
           "|---|---|---|---|---|---|---|---|\n";
    for (const ReportRow &row : rows) {
        printRow(out,
                 {row.work, cell(row.own), cell(row.qcp), cell(row.qcpFast), cell(row.qwt),
                  ratio(row.own, row.qcp), ratio(row.own, row.qcpFast), ratio(row.own, row.qwt)});
    }
}

void printDuels(QTextStream &out, const QVector<DuelRow> &rows)
{
    out << "| Work (ms) | ours | beside it | takes | ratio |\n|---|---|---|---|---|\n";
    for (const DuelRow &row : rows) {
        printRow(out, {row.work, cell(row.own), row.rival, cell(row.rivalTime),
                       ratio(row.own, row.rivalTime)});
    }
}

} // namespace Report
