#include "patterns/formats/msiformat.h"

#include "2d/data/curvefrequency.h"
#include "2d/data/curvetext.h"
#include "patterns/formats/circle.h"
#include "patterns/formats/textfields.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

using namespace PatternFormats;

namespace {

constexpr std::array<std::string_view, 2> sections{"HORIZONTAL", "VERTICAL"};
constexpr std::array<std::string_view, 12> headerKeys{
    "NAME", "MAKE", "FREQUENCY",       "H_WIDTH",         "V_WIDTH",      "FRONT_TO_BACK",
    "GAIN", "TILT", "ELECTRICAL_TILT", "MECHANICAL_TILT", "POLARIZATION", "COMMENT"};
/// What an export hands on; the others are the data's own matter. NSMA has other keys for some.
constexpr std::array<std::string_view, 6> keptKeys{
    "MAKE", "TILT", "ELECTRICAL_TILT", "MECHANICAL_TILT", "POLARIZATION", "COMMENT"};

QString keptKey(const QString &key)
{
    if (key == QStringLiteral("ANTMAN"))
        return QStringLiteral("MAKE");
    if (key == QStringLiteral("POLARI"))
        return QStringLiteral("POLARIZATION");
    return key == QStringLiteral("DESCR1") ? QStringLiteral("COMMENT") : key;
}

template<typename Keys>
bool isOneOf(std::string_view key, const Keys &keys)
{
    return std::any_of(keys.begin(), keys.end(),
                       [key](std::string_view known) { return equalsIgnoringCase(key, known); });
}

bool startsLikeNumber(std::string_view field)
{
    const char c = field.front();
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.';
}

/// The rows of one cut, as (angle, loss).
struct Section
{
    QString key;
    int declared = 0;
    int line = 0; ///< of its heading; 0: there is no such section
    int negative = 0;
    QVector<QPointF> rows;
};

class MsiReader
{
    Q_DECLARE_TR_FUNCTIONS(MsiFormat)

public:
    PatternFile read(const QByteArray &text, const QString &fileName);

private:
    void takeLine(const TextLines &lines);
    void takeRow(const TextLines &lines, const std::vector<std::string_view> &fields);
    void open(int line, const std::vector<std::string_view> &fields);
    void close(int line);
    void takeHeader(int line, std::string_view key, std::string_view value);
    void takeGain(int line, const QString &value);
    void takeFrequency(int line, const QString &value);
    void settleName(const QString &fileName);
    void addCut(const Section &section, const QString &letter);

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
    Details m_details;
    std::array<Section, 2> m_sections;
    Section *m_current = nullptr;
    DecimalsWatch m_decimals;
    QString m_firstLine; ///< when that is no known key
    QString m_firstKey;
    QString m_name;
    QString m_frequency;
    std::optional<double> m_gain;
};

PatternFile MsiReader::read(const QByteArray &text, const QString &fileName)
{
    m_file.format = Format::Msi;
    TextLines lines(text);
    while (!m_file.problem && lines.next()) {
        if (!lines.line().empty())
            takeLine(lines);
    }
    close(lines.number());
    settleName(fileName);
    if (!m_gain)
        remark(0, tr("There is no GAIN: 0 dBi is taken."));
    for (const Section &section : m_sections)
        addCut(section, &section == m_sections.data() ? QStringLiteral("H") : QStringLiteral("V"));
    if (m_file.cuts.isEmpty())
        fail(lines.number(), tr("There is neither a HORIZONTAL nor a VERTICAL cut."));
    if (m_file.problem)
        m_file.cuts.clear();
    return m_file;
}

void MsiReader::takeLine(const TextLines &lines)
{
    const std::vector<std::string_view> fields = fieldsOf(lines.line());
    const std::string_view key = fields.front();
    const bool known = isOneOf(key, sections) || isOneOf(key, headerKeys);
    if (lines.number() == 1 && !known) {
        // Perhaps a bare name, which may well be a number.
        m_firstLine = toText(lines.line());
        m_firstKey = fields.size() > 1 ? toText(key) : QString();
        return;
    }
    if (startsLikeNumber(key)) {
        takeRow(lines, fields);
        return;
    }
    close(lines.number());
    if (isOneOf(key, sections))
        open(lines.number(), fields);
    else
        takeHeader(lines.number(), key, trimmed(lines.line().substr(key.size())));
}

void MsiReader::takeRow(const TextLines &lines, const std::vector<std::string_view> &fields)
{
    if (m_current == nullptr) {
        fail(lines.number(), tr("A row of numbers before HORIZONTAL and VERTICAL."));
        return;
    }
    const std::optional<double> angle = toNumber(fields.front());
    const std::optional<double> loss = fields.size() == 2 ? toNumber(fields[1]) : std::nullopt;
    if (!angle || !loss) {
        fail(lines.number(), tr("Not an angle and a loss: \"%1\".").arg(toText(lines.line())));
        return;
    }
    if (m_decimals.isShortened(fields[1], lines.isOpen())) {
        fail(lines.number(), tr("The file ends within a row: it has been cut off."));
        return;
    }
    if (fields[1].front() == '-')
        ++m_current->negative;
    m_current->rows.append({*angle, std::abs(*loss)});
    if (m_current->rows.size() > m_current->declared + 1)
        fail(lines.number(), tr("%1 announces %2 rows, but more follow.")
                                 .arg(m_current->key)
                                 .arg(m_current->declared));
}

void MsiReader::open(int line, const std::vector<std::string_view> &fields)
{
    const std::size_t which = equalsIgnoringCase(fields.front(), sections[0]) ? 0 : 1;
    const std::optional<int> declared = fields.size() == 2 ? toCount(fields[1]) : std::nullopt;
    Section &section = m_sections[which];
    if (!declared) {
        fail(line, tr("No number of rows: \"%1\".").arg(toText(fields.front())));
        return;
    }
    if (section.line != 0) {
        fail(line, tr("There is a second cut %1.").arg(section.key));
        return;
    }
    section.key = toText(sections[which]);
    section.declared = *declared;
    section.line = line;
    m_current = &section;
}

void MsiReader::close(int line)
{
    const Section *section = m_current;
    m_current = nullptr;
    if (section == nullptr || section->rows.size() == section->declared)
        return;
    const QString text = tr("%1 announces %2 rows, but %3 follow.")
                             .arg(section->key)
                             .arg(section->declared)
                             .arg(section->rows.size());
    if (std::abs(section->rows.size() - section->declared) > 1)
        fail(line, text);
    else
        remark(section->line, text);
}

void MsiReader::takeHeader(int line, std::string_view key, std::string_view value)
{
    const QString text = toText(value);
    if (equalsIgnoringCase(key, "NAME")) {
        m_name = text.simplified(); // as it is written
    } else if (equalsIgnoringCase(key, "FREQUENCY")) {
        takeFrequency(line, text);
    } else {
        if (equalsIgnoringCase(key, "GAIN"))
            takeGain(line, text);
        else if (!isOneOf(key, headerKeys))
            remark(line, tr("Unknown key: %1.").arg(toText(key)));
        m_details.append({toText(key).toUpper(), text});
    }
}

void MsiReader::takeGain(int line, const QString &value)
{
    QString number = value;
    double offset = dipoleGain;
    for (const QString &unit : {QStringLiteral("dBi"), QStringLiteral("dBd")}) {
        if (!number.endsWith(unit, Qt::CaseInsensitive))
            continue;
        number.chop(unit.size());
        offset = unit == QStringLiteral("dBi") ? 0.0 : dipoleGain;
        break;
    }
    number = number.trimmed();
    if (number.isEmpty())
        return;
    const std::optional<double> gain = toNumber(number.toStdString());
    if (!gain)
        fail(line, tr("GAIN is no number: \"%1\".").arg(value));
    else
        m_gain = *gain + offset;
}

void MsiReader::takeFrequency(int line, const QString &value)
{
    if (const std::optional<QString> frequency = readFrequency(value))
        m_frequency = *frequency;
    else
        remark(line, tr("FREQUENCY is no frequency and was left out: \"%1\".").arg(value));
}

/// A first line that is no key is the name where no other line tells it.
void MsiReader::settleName(const QString &fileName)
{
    const bool isName = m_name.isEmpty() || m_firstKey.isEmpty();
    if (!m_firstLine.isEmpty() && !isName)
        remark(1, tr("Unknown key: %1.").arg(m_firstKey));
    if (m_name.isEmpty())
        m_name = m_firstLine;
    if (!m_name.isEmpty())
        return;
    remark(0, tr("There is no NAME: the file's name is taken."));
    m_name = fileName;
}

void MsiReader::addCut(const Section &section, const QString &letter)
{
    if (section.rows.isEmpty()) {
        remark(0, letter == QStringLiteral("H") ? tr("There is no HORIZONTAL cut.")
                                                : tr("There is no VERTICAL cut."));
        return;
    }
    if (section.negative > 0)
        remark(section.line, tr("%1: the minus sign of %2 losses is ignored.")
                                 .arg(section.key)
                                 .arg(section.negative));
    Cut cut;
    cut.title = m_name;
    cut.plane = letter == QStringLiteral("H") ? Plane::Horizontal : Plane::Vertical;
    cut.name = m_name + QLatin1Char(' ') + letter;
    cut.frequency = m_frequency;
    cut.details = m_details;
    cut.points = section.rows;
    const double gain = m_gain.value_or(0.0);
    for (QPointF &point : cut.points)
        point.setY(plainLevel(gain - point.y()));
    cut.points = asCut(cut.points);
    m_file.cuts.append(cut);
}

double peakOf(const QVector<QPointF> &cut)
{
    return std::max_element(cut.begin(), cut.end(),
                            [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); })
        ->y();
}

QByteArray section(const char *key, const QVector<QPointF> &cut, double gain)
{
    constexpr int directions = 360;
    QByteArray text = QByteArray(key) + ' ' + QByteArray::number(directions) + '\n';
    for (int angle = 0; angle < directions; ++angle) {
        const double loss = std::max(0.0, gain - Circle::levelAt(cut, angle));
        text += QByteArray::number(angle) + ' ' + QByteArray::number(loss, 'f', 3) + '\n';
    }
    return text;
}

QByteArray headerLine(const QString &key, const QString &value)
{
    return (key + QLatin1Char(' ') + value.simplified()).toUtf8() + '\n';
}

/// Why a cut cannot be written, empty when it can.
QString refusal(const QString &what, const QVector<QPointF> &cut)
{
    const std::optional<Circle::Gap> gap = Circle::gapIn(cut);
    if (!gap)
        return {};
    return QCoreApplication::translate(
               "MsiFormat", "%1 does not go round the circle: there is nothing from %2° to %3°.")
        .arg(what, CurveText::number(gap->from), CurveText::number(gap->to));
}

} // namespace

namespace MsiFormat {

bool matches(const QByteArray &text, bool bySections)
{
    TextLines lines(text);
    QVector<std::string_view> found;
    while (lines.next()) {
        const std::vector<std::string_view> fields = fieldsOf(lines.line());
        if (fields.empty())
            continue;
        if (isOneOf(fields[0], sections) && fields.size() == 2 && toCount(fields[1]))
            return true;
        if (!bySections && isOneOf(fields[0], headerKeys) && !found.contains(fields[0]))
            found.append(fields[0]);
    }
    return found.size() >= 2;
}

PatternFile read(const QByteArray &text, const QString &fileName)
{
    return MsiReader().read(text, fileName);
}

Written write(const Pattern &pattern)
{
    Written written;
    const QVector<QPointF> horizontal = asCut(pattern.horizontal);
    const QVector<QPointF> vertical = asCut(pattern.vertical);
    const QStringList refusals{
        refusal(QCoreApplication::translate("MsiFormat", "The horizontal cut"), horizontal),
        refusal(QCoreApplication::translate("MsiFormat", "The vertical cut"), vertical)};
    written.problem = refusals.join(QLatin1Char(' ')).trimmed();
    if (!written.problem.isEmpty())
        return written;

    const double gain = std::max(peakOf(horizontal), peakOf(vertical));
    written.bytes = headerLine(QStringLiteral("NAME"), pattern.name);
    if (!pattern.frequency.isEmpty())
        written.bytes += headerLine(QStringLiteral("FREQUENCY"), pattern.frequency);
    written.bytes +=
        headerLine(QStringLiteral("GAIN"), CurveText::number(gain) + QStringLiteral(" dBi"));
    for (const Detail &detail : pattern.details) {
        const QString key = keptKey(detail.key);
        if (isOneOf(key.toStdString(), keptKeys))
            written.bytes += headerLine(key, detail.value);
    }
    written.bytes += section("HORIZONTAL", horizontal, gain) + section("VERTICAL", vertical, gain);
    return written;
}

QString commonName(const QString &horizontal, const QString &vertical)
{
    const QString stem = horizontal.left(horizontal.size() - 2);
    const bool shared = horizontal == stem + QStringLiteral(" H") &&
                        vertical == stem + QStringLiteral(" V") && !stem.isEmpty();
    return shared ? stem : horizontal;
}

} // namespace MsiFormat
