#pragma once

#include <QString>
#include <QStringList>

#include <QMap>

#include <functional>
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

/// Takes the lines of a table one by one, as soon as they are known.
using ChartSink = std::function<void(const ReportRow &)>;
using DuelSink = std::function<void(const DuelRow &)>;

/// Prints the results as tables that a Markdown page can take as they are.
class Report
{
public:
    explicit Report(QTextStream &out)
        : m_out(out)
    {}

    void add(const ReportRow &row);
    void add(const DuelRow &row);
    /// The ratios of all lines so far, ours to a peer's, by "work to peer".
    const QMap<QString, double> &ratios() const { return m_ratios; }

private:
    enum class Table { None, Charts, Duels };

    void begin(Table table, const QString &heading);
    void print(const QStringList &cells);

    void keepRatio(const QString &work, const QString &peer, const std::optional<double> &own,
                   const std::optional<double> &other);

    QTextStream &m_out;
    QMap<QString, double> m_ratios;
    Table m_table = Table::None;
};
