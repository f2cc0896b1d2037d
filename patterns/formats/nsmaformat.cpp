#include "patterns/formats/nsmaformat.h"

#include "2d/data/curvetext.h"
#include "patterns/formats/textfields.h"

#include <QCoreApplication>
#include <QDate>
#include <QMap>

#include <algorithm>
#include <cmath>

using namespace PatternFormats;

namespace {

constexpr std::size_t keyLength = 6;
constexpr std::string_view keyEnd = ":,";

/// Keys that say what a cut itself tells, or how the file is made.
bool isStructure(const QString &key)
{
    static const QStringList keys{
        QStringLiteral("REVNUM"), QStringLiteral("REVDAT"), QStringLiteral("NOFREQ"),
        QStringLiteral("PATFRE"), QStringLiteral("NUMCUT"), QStringLiteral("PATCUT"),
        QStringLiteral("POLARI"), QStringLiteral("NUPOIN"), QStringLiteral("FSTLST"),
        QStringLiteral("ENDFIL"), QStringLiteral("LOWFRQ"), QStringLiteral("HGHFRQ")};
    return keys.contains(key);
}

/// The key of a line, empty for any other line.
std::string_view keyOf(std::string_view line)
{
    const bool isKey =
        line.substr(0, keyLength).size() == keyLength &&
        line.substr(keyLength, keyEnd.size()) == keyEnd &&
        std::all_of(line.begin(), line.begin() + keyLength, [](char c) {
            return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        });
    return isKey ? line.substr(0, keyLength) : std::string_view();
}

enum class Scale { BelowGain, Isotropic, Dipole, Field };

/// A cut as its rows come in.
struct RawCut
{
    QString kind;
    QString polarisation;
    QString frequency;
    int line = 0;
    int announced = -1;
    QVector<QPointF> rows;
};

class NsmaReader
{
    Q_DECLARE_TR_FUNCTIONS(NsmaFormat)

public:
    PatternFile read(const QByteArray &text, const QString &fileName);

private:
    void takeKey(int line, const QString &key, const QString &value);
    void takeUnits(int line, const QString &value);
    void takeRow(const TextLines &lines);
    void settleGain();
    void checkEnd(int lastLine);
    void checkCounts();
    QString frequency() const;
    void addCut(const RawCut &raw, const QString &fileName);
    double level(double value) const;

    void fail(int line, const QString &text)
    {
        if (!m_file.problem)
            m_file.problem = Problem{line, text};
    }
    void remark(int line, const QString &text)
    {
        m_file.remarks.append(Problem{line, text}.sentence());
    }

    PatternFile m_file;
    QMap<QString, QString> m_values; ///< the latest of each key
    QMap<QString, int> m_linesOf;
    Details m_details;
    QVector<RawCut> m_cuts;
    Scale m_scale = Scale::BelowGain;
    double m_unitOffset = 0.0; ///< dBi of 0 in the gain's unit
    double m_gain = 0.0;       ///< dBi
};

PatternFile NsmaReader::read(const QByteArray &text, const QString &fileName)
{
    m_file.format = Format::Nsma;
    TextLines lines(text);
    const QString end = QStringLiteral("ENDFIL");
    while (!m_file.problem && !m_values.contains(end) && lines.next()) {
        const std::string_view key = keyOf(lines.line());
        if (!key.empty())
            takeKey(lines.number(), toText(key).toUpper(),
                    toText(trimmed(lines.line().substr(keyLength + keyEnd.size()))));
        else if (!lines.line().empty())
            takeRow(lines);
    }
    if (!m_values.contains(end))
        checkEnd(lines.number());
    checkCounts();
    settleGain();
    for (const RawCut &cut : m_cuts)
        addCut(cut, fileName);
    if (m_file.cuts.isEmpty())
        fail(lines.number(), tr("The file holds no cut."));
    if (m_file.problem)
        m_file.cuts.clear();
    return m_file;
}

void NsmaReader::takeKey(int line, const QString &key, const QString &value)
{
    m_values.insert(key, value);
    m_linesOf.insert(key, line);
    if (!isStructure(key) && !value.isEmpty())
        m_details.append({key, value});
    if (key == QStringLiteral("GUNITS")) {
        takeUnits(line, value);
    } else if (key == QStringLiteral("PATCUT")) {
        m_cuts.append({value.toUpper(), QString(), frequency(), line, -1, {}});
    } else if (!m_cuts.isEmpty() && key == QStringLiteral("POLARI")) {
        m_cuts.last().polarisation = value;
    } else if (!m_cuts.isEmpty() && key == QStringLiteral("NUPOIN")) {
        const std::optional<int> count = toCount(value.toStdString());
        if (!count)
            fail(line, tr("NUPOIN is no number: \"%1\".").arg(value));
        m_cuts.last().announced = count.value_or(-1);
    }
}

void NsmaReader::takeUnits(int line, const QString &value)
{
    const QStringList units = value.toUpper().split(QLatin1Char('/'));
    const QString gain = units.first().trimmed();
    const QString rows = units.size() == 2 ? units.last().trimmed() : QStringLiteral("DBR");
    static const QMap<QString, Scale> scales{{QStringLiteral("DBR"), Scale::BelowGain},
                                             {QStringLiteral("DBI"), Scale::Isotropic},
                                             {QStringLiteral("DBD"), Scale::Dipole},
                                             {QStringLiteral("LIN"), Scale::Field}};
    const bool known = gain == QStringLiteral("DBI") || gain == QStringLiteral("DBD");
    if (!known || !scales.contains(rows) || units.size() > 2) {
        fail(line, tr("GUNITS are none that are known: \"%1\".").arg(value));
        return;
    }
    m_unitOffset = gain == QStringLiteral("DBD") ? dipoleGain : 0.0;
    m_scale = scales.value(rows);
}

void NsmaReader::takeRow(const TextLines &lines)
{
    const QString line = toText(lines.line());
    const QStringList fields = line.split(QLatin1Char(','));
    const std::optional<double> angle = toNumber(fields.first().trimmed().toStdString());
    const std::optional<double> value =
        fields.size() > 1 ? toNumber(fields.at(1).trimmed().toStdString()) : std::nullopt;
    const bool unreadable = !angle || !value || (m_scale == Scale::Field && *value < 0.0);
    if (m_cuts.isEmpty())
        fail(lines.number(), tr("Neither a key nor a row of a cut: \"%1\".").arg(line));
    else if (unreadable)
        fail(lines.number(), tr("Not an angle and a level: \"%1\".").arg(line));
    else if (lines.isOpen())
        fail(lines.number(), tr("The file ends within a row: it has been cut off."));
    else
        m_cuts.last().rows.append({*angle, *value});
}

void NsmaReader::settleGain()
{
    if (!m_values.contains(QStringLiteral("GUNITS")))
        remark(0, tr("There are no GUNITS: DBI/DBR is taken."));
    for (const QString &key :
         {QStringLiteral("MDGAIN"), QStringLiteral("HGGAIN"), QStringLiteral("LWGAIN")}) {
        const QString value = m_values.value(key);
        if (value.isEmpty())
            continue;
        const std::optional<double> gain = toNumber(value.toStdString());
        if (gain)
            m_gain = *gain + m_unitOffset;
        else
            fail(m_linesOf.value(key), tr("%1 is no number: \"%2\".").arg(key, value));
        return;
    }
    if (m_scale == Scale::BelowGain || m_scale == Scale::Field)
        remark(0, tr("There is no gain: 0 dBi is taken."));
}

/// The end mark is missing: all that was announced has to be there all the same.
void NsmaReader::checkEnd(int lastLine)
{
    const QString frequencies = m_values.value(QStringLiteral("NOFREQ"));
    const int groups = std::max(1, frequencies.toInt());
    const int cuts = groups * std::max(1, m_values.value(QStringLiteral("NUMCUT")).toInt());
    const bool complete = !m_cuts.isEmpty() && m_cuts.last().announced >= 0 &&
                          m_cuts.last().rows.size() >= m_cuts.last().announced &&
                          m_cuts.size() >= cuts;
    if (complete)
        remark(0, tr("ENDFIL is missing, though all rows are there."));
    else
        fail(lastLine, tr("The file ends before ENDFIL: it has been cut off."));
}

void NsmaReader::checkCounts()
{
    for (const RawCut &cut : m_cuts) {
        if (cut.announced >= 0 && cut.announced != cut.rows.size())
            remark(cut.line, tr("NUPOIN announces %1 rows, but %2 follow.")
                                 .arg(cut.announced)
                                 .arg(cut.rows.size()));
    }
}

/// MHz as text: that of the pattern, or the only one that the antenna is for.
QString NsmaReader::frequency() const
{
    const auto number = [this](const QString &key) {
        return toNumber(m_values.value(key).toStdString()).value_or(0.0);
    };
    double megahertz = number(QStringLiteral("PATFRE"));
    const double low = number(QStringLiteral("LOWFRQ"));
    if (megahertz <= 0.0 && low == number(QStringLiteral("HGHFRQ")))
        megahertz = low;
    return megahertz > 0.0 ? CurveText::number(megahertz) : QString();
}

double NsmaReader::level(double value) const
{
    switch (m_scale) {
    case Scale::BelowGain:
        return m_gain + value;
    case Scale::Dipole:
        return value + dipoleGain;
    case Scale::Field:
        return m_gain + 20.0 * std::log10(value);
    default:
        return value;
    }
}

void NsmaReader::addCut(const RawCut &raw, const QString &fileName)
{
    Cut cut;
    QString model = m_values.value(QStringLiteral("MODNUM"));
    if (model.isEmpty())
        model = fileName;
    cut.title = model;
    cut.plane = raw.kind == QStringLiteral("AZ") || raw.kind == QStringLiteral("H")
                    ? Plane::Horizontal
                    : Plane::Vertical;
    cut.name = QStringLiteral("%1 %2 %3").arg(model, raw.kind, raw.polarisation).simplified();
    cut.frequency = raw.frequency;
    cut.details = m_details;
    if (!raw.polarisation.isEmpty())
        cut.details.append({QStringLiteral("POLARI"), raw.polarisation});
    int without = 0;
    for (const QPointF &row : raw.rows) {
        const double dB = plainLevel(level(row.y()));
        if (std::isfinite(dB))
            cut.points.append({row.x(), dB});
        else
            ++without;
    }
    if (without > 0)
        remark(raw.line, tr("%1 rows without any field were left out.").arg(without));
    cut.points = asCut(cut.points);
    if (cut.points.isEmpty())
        remark(raw.line, tr("The cut holds no row and was left out."));
    else
        m_file.cuts.append(cut);
}

QByteArray keyLine(const char *key, const QString &value)
{
    QString oneLine = value;
    oneLine.replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
    return QByteArray(key) + keyEnd.data() + oneLine.toUtf8() + "\r\n";
}

QByteArray headOf(const QVector<Cut> &cuts, int frequencies)
{
    const Details &details = cuts.first().details;
    const auto known = [&details](const QStringList &keys, const QString &otherwise) {
        const QString value = detail(details, keys);
        return value.isEmpty() ? otherwise : value;
    };
    double gain = cuts.first().points.first().y();
    for (const Cut &cut : cuts) {
        for (const QPointF &point : cut.points)
            gain = std::max(gain, point.y());
    }
    QByteArray text = keyLine("REVNUM", QStringLiteral("NSMA WG16.99.050"));
    text += keyLine("REVDAT", QStringLiteral("19990520"));
    text += keyLine("ANTMAN", known({QStringLiteral("ANTMAN"), QStringLiteral("MAKE")}, {}));
    text += keyLine("MODNUM", known({QStringLiteral("MODNUM")}, cuts.first().title));
    text += keyLine("DESCR1", known({QStringLiteral("DESCR1"), QStringLiteral("COMMENT")}, {}));
    text += keyLine("GUNITS", QStringLiteral("DBI/DBI"));
    text += keyLine("MDGAIN", CurveText::number(gain));
    text += keyLine("PATTYP", QStringLiteral("TYPICAL"));
    return text + keyLine("NOFREQ", QString::number(frequencies));
}

QByteArray section(const Cut &cut)
{
    const bool vertical = cut.plane == Plane::Vertical;
    const QString polarisation =
        detail(cut.details, {QStringLiteral("POLARI"), QStringLiteral("POLARIZATION")});
    QByteArray text = keyLine("PATCUT", vertical ? QStringLiteral("EL") : QStringLiteral("AZ"));
    text += keyLine("POLARI", polarisation.isEmpty() ? QStringLiteral("V/V") : polarisation);
    text += keyLine("NUPOIN", QString::number(cut.points.size()));
    text += keyLine("FSTLST", CurveText::number(cut.points.first().x()) + QLatin1Char(',') +
                                  CurveText::number(cut.points.last().x()));
    for (const QPointF &point : cut.points)
        text += (CurveText::number(point.x()) + QLatin1Char(',') + CurveText::number(point.y()))
                    .toLatin1() +
                "\r\n";
    return text;
}

} // namespace

namespace NsmaFormat {

bool matches(const QByteArray &text)
{
    TextLines lines(text);
    while (lines.next()) {
        if (!keyOf(lines.line()).empty())
            return true;
    }
    return false;
}

PatternFile read(const QByteArray &text, const QString &fileName)
{
    return NsmaReader().read(text, fileName);
}

QByteArray write(const QVector<Cut> &cuts)
{
    QMap<QString, QVector<Cut>> byFrequency;
    QVector<Cut> written;
    for (const Cut &cut : cuts) {
        if (cut.points.isEmpty())
            continue;
        byFrequency[cut.frequency].append(cut);
        written.append(cut);
    }
    if (written.isEmpty())
        return {};
    QByteArray text = headOf(written, byFrequency.size());
    for (auto group = byFrequency.cbegin(); group != byFrequency.cend(); ++group) {
        if (!group.key().isEmpty())
            text += keyLine("PATFRE", group.key());
        text += keyLine("NUMCUT", QString::number(group.value().size()));
        for (const Cut &cut : group.value())
            text += section(cut);
    }
    return text + keyLine("ENDFIL", QStringLiteral("EOF"));
}

} // namespace NsmaFormat
