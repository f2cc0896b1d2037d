#include "patterns/formats/necformat.h"

#include "2d/data/curvetext.h"
#include "patterns/formats/textfields.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

using namespace PatternFormats;

namespace {

constexpr std::size_t numbersInRow = 5;
constexpr double noField = -999.0; ///< the listing writes -999.99

struct Row
{
    double theta = 0.0; ///< degrees, as phi
    double phi = 0.0;
    double vertical = 0.0; ///< dBi, as the others
    double horizontal = 0.0;
    double total = 0.0;
};

struct Block
{
    int line = 0;
    int announced = 0; ///< rows; 0: the listing does not tell
    QString frequency;
    QVector<Row> rows;
};

bool contains(std::string_view line, const char *words)
{
    return QByteArray::fromRawData(line.data(), static_cast<int>(line.size()))
        .toUpper()
        .contains(words);
}

bool isBlockHeading(std::string_view line)
{
    return contains(line, "RADIATION PATTERN");
}

/// The fields of a row. In full columns a minus sign is all that parts two numbers.
std::vector<std::string_view> rowFields(std::string_view line)
{
    std::vector<std::string_view> fields;
    for (std::string_view field : fieldsOf(line)) {
        for (std::size_t i = 1; i < field.size(); ++i) {
            if (field[i] != '-' || field[i - 1] == 'E' || field[i - 1] == 'e')
                continue;
            fields.push_back(field.substr(0, i));
            field.remove_prefix(i);
            i = 0;
        }
        fields.push_back(field);
    }
    return fields;
}

bool hasDecimalComma(std::string_view field)
{
    std::string changed(field);
    std::replace(changed.begin(), changed.end(), ',', '.');
    return changed != field && toNumber(changed);
}

/// The angles that occur, ascending.
QVector<double> distinct(const QVector<Row> &rows, double Row::*angle)
{
    QVector<double> angles;
    angles.reserve(rows.size());
    for (const Row &row : rows)
        angles.append(row.*angle);
    std::sort(angles.begin(), angles.end());
    angles.erase(std::unique(angles.begin(), angles.end()), angles.end());
    return angles;
}

double fromZeroTo360(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

void append(QVector<QPointF> &points, double angle, double level)
{
    if (level > noField)
        points.append({angle, level});
}

void append(Cut &cut, double angle, const Row &row)
{
    append(cut.points, angle, row.total);
    append(cut.vertical, angle, row.vertical);
    append(cut.horizontal, angle, row.horizontal);
}

/// The cuts of a block by the angle that each of them holds.
std::map<double, Cut> cutsOverTheta(const Block &block)
{
    QVector<double> phis;
    for (const double phi : distinct(block.rows, &Row::phi))
        phis.append(fromZeroTo360(phi));
    std::map<double, Cut> cuts;
    for (const Row &row : block.rows) {
        const double phi = fromZeroTo360(row.phi);
        const double opposite = phi - 180.0;
        const bool joins = opposite >= 0.0 && phis.contains(opposite);
        append(cuts[joins ? opposite : phi], joins ? -row.theta : row.theta, row);
    }
    return cuts;
}

std::map<double, Cut> cutsOverPhi(const Block &block)
{
    std::map<double, Cut> cuts;
    for (const Row &row : block.rows)
        append(cuts[row.theta], row.phi, row);
    return cuts;
}

double peakOf(const Cut &cut)
{
    double peak = noField;
    for (const QPointF &point : cut.points)
        peak = std::max(peak, point.y());
    return peak;
}

class NecReader
{
    Q_DECLARE_TR_FUNCTIONS(NecFormat)

public:
    PatternFile read(const QByteArray &text, const QString &title);

private:
    void takeLine(const TextLines &lines);
    bool takeRow(const TextLines &lines);
    void takeHeading(const TextLines &lines);
    void checkEnd();
    void addCuts(const Block &block, const QString &title, bool severalFrequencies);
    void choosePrincipal();

    void fail(int line, const QString &text)
    {
        if (!m_file.problem)
            m_file.problem = Problem{line, text};
    }

    PatternFile m_file;
    QVector<Block> m_blocks;
    bool m_inBlock = false;
    bool m_inComments = false;
    QString m_comment;
    QString m_frequency;
    int m_announced = 0;
    DecimalsWatch m_decimals;
};

PatternFile NecReader::read(const QByteArray &text, const QString &title)
{
    m_file.format = Format::Nec;
    TextLines lines(text);
    while (!m_file.problem && lines.next())
        takeLine(lines);
    checkEnd();
    if (m_file.problem)
        return m_file;
    const bool several = std::any_of(m_blocks.begin(), m_blocks.end(), [this](const Block &block) {
        return block.frequency != m_blocks.first().frequency;
    });
    for (const Block &block : m_blocks)
        addCuts(block, title, several);
    if (m_file.cuts.isEmpty())
        fail(lines.number(), tr("The listing holds no radiation pattern."));
    choosePrincipal();
    return m_file;
}

void NecReader::takeLine(const TextLines &lines)
{
    const std::string_view line = lines.line();
    if (line.empty()) {
        m_inComments = m_inComments && m_comment.isEmpty();
        return;
    }
    if (isBlockHeading(line)) {
        m_blocks.append({lines.number(), m_announced, m_frequency, {}});
        m_inBlock = true;
        m_decimals = {};
    } else if (!m_inBlock || !takeRow(lines)) {
        takeHeading(lines);
    }
}

/// False for a line that is no row: a heading, or what follows the block.
bool NecReader::takeRow(const TextLines &lines)
{
    const std::vector<std::string_view> fields = rowFields(lines.line());
    if (!toNumber(fields.front())) {
        if (hasDecimalComma(fields.front()))
            fail(lines.number(), tr("The numbers have a decimal comma instead of a point."));
        m_inBlock = m_blocks.last().rows.isEmpty();
        return false;
    }
    std::array<double, numbersInRow> numbers{};
    for (std::size_t i = 0; i < numbersInRow; ++i) {
        const std::optional<double> number = i < fields.size() ? toNumber(fields[i]) : std::nullopt;
        if (!number) {
            fail(lines.number(), tr("Fewer than five numbers in a row of the pattern."));
            return true;
        }
        numbers[i] = *number;
    }
    const bool ends = lines.isOpen() && fields.size() == numbersInRow;
    if (m_decimals.isShortened(fields[numbersInRow - 1], ends))
        fail(lines.number(), tr("The file ends within a row: it has been cut off."));
    m_blocks.last().rows.append({numbers[0], numbers[1], numbers[2], numbers[3], numbers[4]});
    return true;
}

void NecReader::takeHeading(const TextLines &lines)
{
    static const QRegularExpression frequency(
        QStringLiteral("FREQUENCY\\s*[:=]?\\s*([-+.0-9E]+)\\s*MHZ"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression card(QStringLiteral("\\bRP\\s+-?\\d+\\s+(\\d+)\\s+(\\d+)\\s"));
    const QString line = toText(lines.line());
    const QRegularExpressionMatch megahertz = frequency.match(line);
    const std::optional<double> value = toNumber(megahertz.captured(1).toStdString());
    if (value && *value > 0.0)
        m_frequency = CurveText::number(*value);
    const QRegularExpressionMatch rows = card.match(line);
    if (rows.hasMatch())
        m_announced = std::max(1, rows.captured(1).toInt()) * std::max(1, rows.captured(2).toInt());
    if (m_inComments)
        m_comment += (m_comment.isEmpty() ? QString() : QStringLiteral(" ")) + line;
    m_inComments = m_inComments || contains(lines.line(), "- COMMENTS -");
}

/// A listing that was cut off lacks rows of its last block.
void NecReader::checkEnd()
{
    for (const Block &block : m_blocks) {
        const int rows = block.rows.size();
        const auto grid = qint64(distinct(block.rows, &Row::theta).size()) *
                          distinct(block.rows, &Row::phi).size();
        const bool last = &block == &m_blocks.last() && m_inBlock;
        if (block.announced != 0 ? rows < block.announced : last && rows < grid)
            fail(block.line, tr("The pattern has %1 rows of %2: the listing has been cut off.")
                                 .arg(rows)
                                 .arg(block.announced != 0 ? qint64(block.announced) : grid));
    }
    if (!m_file.problem && m_inBlock && m_announced == 0)
        m_file.remarks.append(
            tr("The listing ends with a row of the pattern: it may have been cut off."));
}

void NecReader::addCuts(const Block &block, const QString &title, bool severalFrequencies)
{
    const bool overTheta =
        distinct(block.rows, &Row::theta).size() >= distinct(block.rows, &Row::phi).size();
    const QString axis = overTheta ? QStringLiteral("phi") : QStringLiteral("theta");
    for (auto &[angle, cut] : overTheta ? cutsOverTheta(block) : cutsOverPhi(block)) {
        cut.title = title;
        cut.name = QStringLiteral("%1 %2 %3°").arg(title, axis, CurveText::number(angle));
        if (severalFrequencies && !block.frequency.isEmpty())
            cut.name += QStringLiteral(" %1 MHz").arg(block.frequency);
        cut.frequency = block.frequency;
        if (!overTheta && angle == 90.0)
            cut.plane = Plane::Horizontal;
        else if (overTheta)
            cut.plane = Plane::Vertical;
        cut.points = asCut(cut.points);
        cut.vertical = asCut(cut.vertical);
        cut.horizontal = asCut(cut.horizontal);
        if (!m_comment.isEmpty())
            cut.details.append({QStringLiteral("COMMENT"), m_comment});
        cut.principal = angle == 90.0 || (overTheta && angle == 0.0);
        if (!cut.points.isEmpty())
            m_file.cuts.append(cut);
    }
}

void NecReader::choosePrincipal()
{
    QVector<Cut> &cuts = m_file.cuts;
    if (cuts.size() <= cutsWithoutAsking) {
        for (Cut &cut : cuts)
            cut.principal = true;
        return;
    }
    if (std::any_of(cuts.begin(), cuts.end(), [](const Cut &cut) { return cut.principal; }))
        return;
    const auto strongest = std::max_element(
        cuts.begin(), cuts.end(), [](const Cut &a, const Cut &b) { return peakOf(a) < peakOf(b); });
    strongest->principal = true;
}

} // namespace

namespace NecFormat {

bool matches(const QByteArray &text)
{
    TextLines lines(text);
    while (lines.next()) {
        if (isBlockHeading(lines.line()) ||
            contains(lines.line(), "NUMERICAL ELECTROMAGNETICS CODE"))
            return true;
    }
    return false;
}

PatternFile read(const QByteArray &text, const QString &title)
{
    return NecReader().read(text, title);
}

QByteArray write(const QVector<Cut> &cuts)
{
    QByteArray text;
    for (const Cut &cut : cuts) {
        text += "\n   --------- FREQUENCY --------\n";
        if (!cut.frequency.isEmpty())
            text += "   FREQUENCY : " + cut.frequency.toUtf8() + " MHZ\n";
        text += "\n   ---------- RADIATION PATTERNS -----------\n\n"
                "   THETA      PHI       VERTC    HORIZ    TOTAL\n"
                " DEGREES   DEGREES        DB       DB       DB\n";
        for (const QPointF &point : cut.points) {
            const QByteArray level = CurveText::number(point.y()).toUtf8();
            const QByteArray angle = CurveText::number(point.x()).toUtf8();
            const bool overPhi = cut.plane == Plane::Horizontal;
            text += (overPhi ? " 90.00 " + angle : ' ' + angle + " 0.00") + " -999.99 -999.99 " +
                    level + '\n';
        }
    }
    return text + "\n   TOTAL RUN TIME: 0 msec\n";
}

} // namespace NecFormat
