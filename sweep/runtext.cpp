#include "sweep/runfile.h"

#include "2d/data/curvetext.h"

#include <QFile>
#include <QMap>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr std::array<std::pair<RunFlag, const char *>, 5> flagNames{{
    {RunFlag::Unstable, "unstable"},
    {RunFlag::Angle, "angle"},
    {RunFlag::Missing, "missing"},
    {RunFlag::Floor, "floor"},
    {RunFlag::Drift, "drift"},
}};
const QByteArray columns = "time,wanted_deg,read_deg,theta_deg,mean_dbm,sigma_db,n,flags";
constexpr int columnCount = 8;

QByteArray number(double value)
{
    return CurveText::number(value).toLatin1();
}

QByteArray level(const std::optional<double> &value)
{
    return value ? QByteArray::number(*value, 'f', 4) : QByteArray();
}

template<typename Value>
QString textOf(const std::optional<Value> &value)
{
    return value ? CurveText::number(double(*value)) : QString();
}

std::optional<double> finiteNumber(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> finiteNumber(const QByteArray &text)
{
    return finiteNumber(QString::fromUtf8(text));
}

/// Nothing for a name that is unknown, as a torn one is.
std::optional<RunFlags> readFlags(const QByteArray &text)
{
    RunFlags flags;
    if (text.isEmpty())
        return flags;
    const QByteArrayList parts = text.split(';');
    for (const QByteArray &part : parts) {
        const auto *known = std::find_if(flagNames.begin(), flagNames.end(),
                                         [&](const auto &entry) { return part == entry.second; });
        if (known == flagNames.end())
            return std::nullopt;
        flags |= known->first;
    }
    return flags;
}

/// An optional number of a row: false when the field holds something else.
bool readLevel(const QByteArray &field, std::optional<double> &value)
{
    value = finiteNumber(field);
    return field.isEmpty() || value.has_value();
}

std::optional<RunRow> readRow(const QByteArray &line)
{
    const QByteArrayList fields = line.split(',');
    if (fields.size() != columnCount)
        return std::nullopt;
    RunRow row;
    row.time = QString::fromUtf8(fields.at(0));
    const std::optional<double> wanted = finiteNumber(fields.at(1));
    const std::optional<double> read = finiteNumber(fields.at(2));
    const std::optional<double> theta = finiteNumber(fields.at(3));
    const std::optional<RunFlags> flags = readFlags(fields.at(7));
    bool counted = false;
    row.count = fields.at(6).toInt(&counted);
    if (!wanted || !read || !theta || !flags || !counted || !readLevel(fields.at(4), row.mean) ||
        !readLevel(fields.at(5), row.sigma))
        return std::nullopt;
    row.wanted = *wanted;
    row.read = *read;
    row.theta = *theta;
    row.flags = *flags;
    if (row.mean.has_value() == row.flags.testFlag(RunFlag::Missing))
        return std::nullopt;
    return row;
}

using Values = QMap<QString, QString>;

std::optional<TableLimits> readLimits(const QString &text)
{
    const QStringList ends = text.split(QStringLiteral(".."));
    const std::optional<double> min = finiteNumber(ends.first());
    const std::optional<double> max = finiteNumber(ends.last());
    return min && max ? std::optional(TableLimits{*min, *max}) : std::nullopt;
}

/// False when what a run needs to go on is missing.
bool readHeader(const Values &values, RunHeader &header)
{
    const auto text = [&](const char *key) { return values.value(QLatin1String(key)); };
    header.version = text("version");
    header.identity = text("identity");
    header.frequency = finiteNumber(text("frequency_hz"));
    header.offset = finiteNumber(text("offset_db"));
    if (const std::optional<double> count = finiteNumber(text("averaging")))
        header.averaging = int(*count);
    header.rotator = text("rotator");
    header.limits = readLimits(text("limits"));
    header.floor = finiteNumber(text("floor_dbm"));
    header.title = text("title");
    header.curve = text("curve");
    header.zone = text("zone");
    header.started = text("started");
    const auto read = [&](const char *key, auto &value) {
        const std::optional<double> found = finiteNumber(text(key));
        if (found)
            value = static_cast<std::decay_t<decltype(value)>>(*found);
        return found.has_value();
    };
    return read("zero_deg", header.plan.zero) && read("sense", header.plan.sense) &&
           read("from_deg", header.plan.from) && read("to_deg", header.plan.to) &&
           read("step_deg", header.plan.step) && read("settle_ms", header.settle) &&
           read("readings", header.readings) && read("tolerance_deg", header.tolerance);
}

void takeValue(Values &values, const QByteArray &line)
{
    const int colon = line.indexOf(':');
    if (colon > 0)
        values.insert(QString::fromUtf8(line.mid(1, colon - 1)).trimmed(),
                      QString::fromUtf8(line.mid(colon + 1)).trimmed());
}

const QString runSuffix = QStringLiteral(".run.csv");
const QString curveSuffix = QStringLiteral(".csv");

} // namespace

namespace RunText {

QByteArray header(const RunHeader &header)
{
    QByteArray bytes;
    const auto add = [&bytes](const char *key, const QString &value) {
        bytes += QByteArray("# ") + key + ": " + value.simplified().toUtf8() + '\n';
    };
    const SweepPlan &plan = header.plan;
    add("version", header.version);
    add("identity", header.identity);
    add("frequency_hz", header.frequency ? QString::number(*header.frequency, 'f', 0) : QString());
    add("offset_db", textOf(header.offset));
    add("averaging", textOf(header.averaging));
    add("rotator", header.rotator);
    add("limits", header.limits ? CurveText::number(header.limits->min) + QStringLiteral("..") +
                                      CurveText::number(header.limits->max)
                                : QString());
    add("zero_deg", CurveText::number(plan.zero));
    add("sense", QString::number(plan.sense));
    add("from_deg", CurveText::number(plan.from));
    add("to_deg", CurveText::number(plan.to));
    add("step_deg", CurveText::number(plan.step));
    add("settle_ms", QString::number(header.settle));
    add("readings", QString::number(header.readings));
    add("tolerance_deg", CurveText::number(header.tolerance));
    add("floor_dbm", textOf(header.floor));
    add("title", header.title);
    add("curve", header.curve);
    add("zone", header.zone);
    add("started", header.started);
    return bytes + columns + '\n';
}

QByteArray row(const RunRow &row)
{
    const QByteArrayList fields{row.time.toUtf8(),
                                number(row.wanted),
                                number(row.read),
                                number(row.theta),
                                level(row.mean),
                                level(row.sigma),
                                QByteArray::number(row.count),
                                flags(row.flags)};
    return fields.join(',') + '\n';
}

QByteArray flags(RunFlags flags)
{
    QByteArrayList names;
    for (const auto &[flag, name] : flagNames) {
        if (flags.testFlag(flag))
            names.append(name);
    }
    return names.join(';');
}

QByteArray drift(const std::optional<double> &drift)
{
    return "# drift_db: " + level(drift) + '\n';
}

std::optional<RunFile> read(const QByteArray &bytes)
{
    if (!isRunFile(bytes))
        return std::nullopt;
    RunFile run;
    Values values;
    run.isTorn = !bytes.endsWith('\n');
    QByteArrayList lines = bytes.split('\n');
    lines.removeLast(); // empty, or torn
    for (QByteArray &line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
        if (line.startsWith('#'))
            takeValue(values, line);
        else if (const std::optional<RunRow> found = readRow(line))
            run.rows.append(*found);
    }
    if (!readHeader(values, run.header))
        return std::nullopt;
    return run;
}

bool isRunFile(const QByteArray &bytes)
{
    return bytes.startsWith("# version:") && bytes.contains('\n' + columns);
}

bool isRunFileAt(const QString &path)
{
    constexpr qint64 longestHeader = 1 << 16;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isRunFile(file.read(longestHeader));
}

QString pathBeside(const QString &curve)
{
    const bool has = curve.endsWith(curveSuffix, Qt::CaseInsensitive);
    return (has ? curve.left(curve.size() - curveSuffix.size()) : curve) + runSuffix;
}

QString curveBeside(const QString &run)
{
    return run.endsWith(runSuffix, Qt::CaseInsensitive)
               ? run.left(run.size() - runSuffix.size()) + curveSuffix
               : run + curveSuffix;
}

} // namespace RunText
