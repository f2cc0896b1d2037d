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

} // namespace

void Report::add(const ReportRow &row)
{
    begin(Table::Charts,
          QStringLiteral("| Work (ms) | ours, complete | QCP, adaptive sampling | "
                         "QCP fast, phFastPolylines | Qwt, as it comes | ours / QCP | "
                         "ours / QCP fast | ours / Qwt |\n|---|---|---|---|---|---|---|---|\n"));
    keepRatio(row.work, QStringLiteral("QCP"), row.own, row.qcp);
    keepRatio(row.work, QStringLiteral("QCP fast"), row.own, row.qcpFast);
    keepRatio(row.work, QStringLiteral("Qwt"), row.own, row.qwt);
    print({row.work, cell(row.own), cell(row.qcp), cell(row.qcpFast), cell(row.qwt),
           ratio(row.own, row.qcp), ratio(row.own, row.qcpFast), ratio(row.own, row.qwt)});
}

void Report::add(const DuelRow &row)
{
    begin(Table::Duels, QStringLiteral("| Work (ms) | ours | beside it | takes | ratio |\n"
                                       "|---|---|---|---|---|\n"));
    keepRatio(row.work, row.rival, row.own, row.rivalTime);
    print({row.work, cell(row.own), row.rival, cell(row.rivalTime), ratio(row.own, row.rivalTime)});
}

void Report::begin(Table table, const QString &heading)
{
    if (table == m_table)
        return;
    if (m_table != Table::None)
        m_out << '\n';
    m_out << heading;
    m_table = table;
}

void Report::print(const QStringList &cells)
{
    m_out << "| " << cells.join(QStringLiteral(" | ")) << " |\n";
    m_out.flush();
}

void Report::keepRatio(const QString &work, const QString &peer, const std::optional<double> &own,
                       const std::optional<double> &other)
{
    if (own && other && *other > 0.0)
        m_ratios.insert(QStringLiteral("%1 to %2").arg(work, peer), *own / *other);
}
