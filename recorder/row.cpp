#include "recorder/row.h"

#include "recorder/isotime.h"
#include "recorder/numbertext.h"

#include <QRegularExpression>
#include <QVector>

#include <array>

namespace {

/// How the line protocol and JSON write a column.
enum class Kind { Time, Whole, Decimal, Text };

struct Cell
{
    const char *name;
    Kind kind;
    std::optional<QString> text; // as in csv; nothing where the value is missing
};

template<typename Value, typename Write>
std::optional<QString> written(const std::optional<Value> &value, Write write)
{
    return value ? std::optional<QString>(write(*value)) : std::nullopt;
}

QString whole(double value)
{
    return QString::number(value, 'f', 0);
}

/// The cells of \a row in the order of the columns.
std::array<Cell, 15> cells(const Row &row)
{
    const auto number = [](qint64 value) { return QString::number(value); };
    return {{
        {"time", Kind::Time, isoTime(row.time)},
        {"start", Kind::Time, isoTime(row.start)},
        {"n_valid", Kind::Whole, number(row.valid)},
        {"n_invalid", Kind::Whole, number(row.invalid)},
        {"mean_dbm", Kind::Decimal, written(row.mean, fourDecimals)},
        {"min_dbm", Kind::Decimal, written(row.minimum, levelText)},
        {"max_dbm", Kind::Decimal, written(row.maximum, levelText)},
        {"sigma_db", Kind::Decimal, written(row.sigma, fourDecimals)},
        {"last_dbm", Kind::Decimal, written(row.last, levelText)},
        {"frequency_hz", Kind::Whole, written(row.frequencyHz, whole)},
        {"offset_db", Kind::Decimal, written(row.offset, shortNumber)},
        {"relative", Kind::Whole, written(row.isRelative, number)},
        {"averaging", Kind::Whole, written(row.averaging, number)},
        {"valid", Kind::Whole, number(row.valid > 0)},
        {"reason", Kind::Text, row.reason},
    }};
}

QByteArray csvLine(const Row &row)
{
    QByteArray line;
    for (const Cell &cell : cells(row))
        line += cell.text.value_or(QString()).toUtf8() + ',';
    line.back() = '\n';
    return line;
}

QByteArray jsonLine(const Row &row)
{
    QByteArray line;
    for (const Cell &cell : cells(row)) {
        line += line.isEmpty() ? "{\"" : ",\"";
        line += cell.name;
        line += "\":";
        const QByteArray text = cell.text.value_or(QStringLiteral("null")).toUtf8();
        const bool isQuoted = cell.kind == Kind::Time || cell.kind == Kind::Text;
        line += isQuoted ? '"' + text + '"' : text;
    }
    return line + "}\n";
}

QByteArray escapedTag(const QString &value)
{
    QByteArray escaped;
    for (const char byte : value.toUtf8()) {
        if (byte == ',' || byte == '=' || byte == ' ')
            escaped += '\\';
        escaped += byte;
    }
    return escaped;
}

QByteArray influxLine(const Row &row, const QString &meter)
{
    const auto nanoseconds = [](qint64 wall) { return QByteArray::number(wall * 1000000); };
    QByteArray fields;
    for (const Cell &cell : cells(row)) {
        const QByteArray name = cell.name;
        if (name == "time" || !cell.text)
            continue;
        fields += (fields.isEmpty() ? "" : ",") + name + '=';
        if (cell.kind == Kind::Time)
            fields += nanoseconds(row.start) + 'i';
        else if (cell.kind == Kind::Text)
            fields += '"' + cell.text->toUtf8() + '"';
        else
            fields += cell.text->toUtf8() + (cell.kind == Kind::Whole ? "i" : "");
    }
    return "mz6218,meter=" + escapedTag(meter) + ' ' + fields + ' ' + nanoseconds(row.time) + '\n';
}

} // namespace

namespace RowText {

QString fileEnding(RowFormat format)
{
    switch (format) {
    case RowFormat::JsonLines:
        return QStringLiteral(".jsonl");
    case RowFormat::Influx:
        return QStringLiteral(".lp");
    case RowFormat::Csv:
        break;
    }
    return QStringLiteral(".csv");
}

QByteArray header(RowFormat format)
{
    if (format != RowFormat::Csv)
        return {};
    QByteArray names;
    for (const Cell &cell : cells({}))
        names += QByteArray(cell.name) + ',';
    names.back() = '\n';
    return names;
}

bool isTag(const QString &name)
{
    static const QRegularExpression escaping(QStringLiteral("\\\\([,= ]|$)"));
    return !name.contains(escaping);
}

QByteArray line(RowFormat format, const Row &row, const QString &meter)
{
    switch (format) {
    case RowFormat::JsonLines:
        return jsonLine(row);
    case RowFormat::Influx:
        return influxLine(row, meter);
    case RowFormat::Csv:
        break;
    }
    return csvLine(row);
}

} // namespace RowText
