#include "2d/data/curvetext.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view header = "Angle,Power";
constexpr qint64 bytesBetweenReports = 1 << 20;

/// More than the longest number: sign, 17 digits, point, exponent, or 21 plain places.
constexpr std::size_t numberSize = 40;

/// Walks over the lines of a text; a last line without a line feed counts, an empty one does not.
class Lines
{
public:
    explicit Lines(const QByteArray &text)
        : m_begin(text.constData())
        , m_at(m_begin)
        , m_end(m_begin + text.size())
    {}

    bool next(std::string_view &line)
    {
        if (m_at == m_end)
            return false;
        const auto rest = static_cast<std::size_t>(m_end - m_at);
        const auto *feed = static_cast<const char *>(std::memchr(m_at, '\n', rest));
        const char *end = feed ? feed : m_end;
        line = std::string_view(m_at, static_cast<std::size_t>(end - m_at));
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        m_at = feed ? feed + 1 : m_end;
        return true;
    }

    qint64 done() const { return m_at - m_begin; }
    int linesLeft() const { return static_cast<int>(std::count(m_at, m_end, '\n')) + 1; }

private:
    const char *m_begin;
    const char *m_at;
    const char *m_end;
};

QString decoded(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

bool isHeader(std::string_view line)
{
    return line.find("Angle") != std::string_view::npos &&
           line.find("Power") != std::string_view::npos;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The first two fields of a line; nothing when it has fewer.
std::optional<std::pair<std::string_view, std::string_view>> twoFields(std::string_view line,
                                                                       char separator)
{
    const std::size_t first = line.find(separator);
    if (first == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = line.substr(first + 1);
    return std::make_pair(line.substr(0, first), rest.substr(0, rest.find(separator)));
}

/// The two numbers of a row as its text has them.
struct Row
{
    double x = 0.0;
    double y = 0.0;
    bool isNumeric = false; ///< both fields are numbers
    bool hasMore = false;   ///< there are further fields
};

QString unquoted(const QString &cell)
{
    QString text = cell.trimmed();
    if (text.size() > 1 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"')))
        text = text.mid(1, text.size() - 2);
    return text;
}

/// A cell whose decimal sign is that of the user's country.
double cellNumber(const QString &cell, bool &isNumber)
{
    return QString(cell).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
}

/// A row of cells parted by \a separator; a blank stands for any number of them.
std::optional<Row> rowOfCells(std::string_view line, char separator)
{
    const QStringList cells = decoded(line).split(
        QLatin1Char(separator), separator == ' ' ? Qt::SkipEmptyParts : Qt::KeepEmptyParts);
    // Blanks part two numbers, and the words of a sentence too.
    if (cells.size() < 2 || (separator == ' ' && cells.size() > 2))
        return std::nullopt;
    Row row;
    bool xOk = false;
    bool yOk = false;
    row.x = cellNumber(unquoted(cells.at(0)), xOk);
    row.y = cellNumber(unquoted(cells.at(1)), yOk);
    row.isNumeric = xOk && yOk;
    // Spreadsheets pad short rows with empty cells.
    row.hasMore = std::any_of(cells.begin() + 2, cells.end(),
                              [](const QString &cell) { return !cell.trimmed().isEmpty(); });
    return row;
}

std::optional<Row> rowByCommas(std::string_view line)
{
    const auto fields = twoFields(line, ',');
    if (!fields)
        return std::nullopt;
    Row row;
    bool xOk = false;
    bool yOk = false;
    row.x = decoded(fields->first).toDouble(&xOk);
    row.y = decoded(fields->second).toDouble(&yOk);
    row.isNumeric = xOk && yOk;
    row.hasMore = std::count(line.begin(), line.end(), ',') > 1;
    return row;
}

/// Whether \a field is a plain number, which is read into \a value.
bool plainNumber(std::string_view field, double &value)
{
    const std::size_t sign = !field.empty() && field.front() == '-' ? 1 : 0;
    if (field.size() <= sign || !isDigit(field[sign]))
        return false;
    const char *end = field.data() + field.size();
    const std::from_chars_result result = std::from_chars(field.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

/// The row in \a line; nothing when it has fewer than two fields. Plain numbers take the fast path:
/// a million rows would feel any other.
std::optional<Row> readRow(std::string_view line)
{
    if (const auto fields = twoFields(line, ',')) {
        Row row;
        if (plainNumber(fields->first, row.x) && plainNumber(fields->second, row.y)) {
            row.isNumeric = true;
            row.hasMore =
                fields->second.data() + fields->second.size() != line.data() + line.size();
            return row;
        }
    }
    std::optional<Row> fallback = rowByCommas(line);
    if (fallback && fallback->isNumeric && line.find(';') == std::string_view::npos)
        return fallback;
    bool byCells = false;
    for (const char separator : {'\t', ';', ' '}) {
        const std::optional<Row> row = rowOfCells(line, separator);
        const bool parts = row && (row->isNumeric || separator != ' ');
        if (parts && (row->isNumeric || !byCells))
            fallback = row;
        byCells = byCells || parts;
        if (row && row->isNumeric)
            break;
    }
    return fallback && line.find_first_not_of(" \t;,") != std::string_view::npos ? fallback
                                                                                 : std::nullopt;
}

/// Appends the point of \a line, if it holds one, and counts what was odd about it.
void appendRow(CurveText::Curve &curve, std::string_view line)
{
    if (line.find_first_not_of(" \t;,") == std::string_view::npos &&
        line.find(',') == std::string_view::npos)
        return; // an empty row
    const std::optional<Row> row = readRow(line);
    if (!row) {
        ++curve.rows.tooShort;
        return;
    }
    curve.rows.moreFields += row->hasMore;
    if (!std::isfinite(row->x) || !std::isfinite(row->y)) {
        ++curve.rows.notFinite;
        return;
    }
    curve.rows.noNumbers += !row->isNumeric;
    curve.points.append(QPointF(row->x, row->y));
}

/// Whether \a line is nothing but two numbers and a comma.
bool isRowByCommas(std::string_view line)
{
    const std::optional<Row> row = rowByCommas(line);
    return row && row->isNumeric && !row->hasMore;
}

/// Whether \a line is a row of two numbers that no comma parts.
bool isRowOfCells(std::string_view line)
{
    for (const char separator : {'\t', ';', ' '}) {
        const std::optional<Row> row = rowOfCells(line, separator);
        if (row && row->isNumeric)
            return true;
    }
    return false;
}

/// A heading line without the empty cells that spreadsheets put behind it.
std::string_view withoutEmptyCells(std::string_view line)
{
    const std::size_t last = line.find_last_not_of("\t;");
    return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

char *copyText(char *out, std::string_view text)
{
    return std::copy(text.begin(), text.end(), out);
}

/// A finite number other than zero as 0.DIGITS * 10^point.
struct Decimal
{
    std::array<char, 24> text{};
    std::string_view digits;
    int point = 0;
};

Decimal shortestDecimal(double magnitude)
{
    Decimal decimal;
    std::array<char, numberSize> scientific{};
    const std::to_chars_result end =
        std::to_chars(scientific.data(), scientific.data() + scientific.size(), magnitude,
                      std::chars_format::scientific);
    const std::string_view text(scientific.data(),
                                static_cast<std::size_t>(end.ptr - scientific.data()));
    const std::size_t mark = text.find('e');

    decimal.text[0] = text[0];
    const std::string_view fraction = mark > 2 ? text.substr(2, mark - 2) : std::string_view();
    copyText(decimal.text.data() + 1, fraction);
    decimal.digits = std::string_view(decimal.text.data(), fraction.size() + 1);

    int exponent = 0;
    std::from_chars(text.data() + mark + 2, end.ptr, exponent);
    decimal.point = (text[mark + 1] == '-' ? -exponent : exponent) + 1;
    return decimal;
}

/// Whether Qt's shortest style writes a number with an exponent: where that takes fewer characters,
/// and below 0.0001.
bool takesExponent(const Decimal &decimal)
{
    const int count = static_cast<int>(decimal.digits.size());
    if (decimal.point == count)
        return false;
    if (decimal.point <= 0)
        return decimal.point <= -4;
    const int exponentForm =
        count + (decimal.point > 100 ? 6 : 5) + (count > decimal.point ? 1 : 0);
    return decimal.point > exponentForm;
}

char *writeWithExponent(char *out, const Decimal &decimal)
{
    *out++ = decimal.digits.front();
    if (decimal.digits.size() > 1) {
        *out++ = '.';
        out = copyText(out, decimal.digits.substr(1));
    }
    const int exponent = decimal.point - 1;
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    if (std::abs(exponent) < 10)
        *out++ = '0';
    return std::to_chars(out, out + 4, std::abs(exponent)).ptr;
}

char *writePlain(char *out, const Decimal &decimal)
{
    const int count = static_cast<int>(decimal.digits.size());
    if (decimal.point <= 0) {
        out = copyText(out, "0.");
        out = std::fill_n(out, -decimal.point, '0');
        return copyText(out, decimal.digits);
    }
    if (decimal.point >= count) {
        out = copyText(out, decimal.digits);
        return std::fill_n(out, decimal.point - count, '0');
    }
    const auto whole = static_cast<std::size_t>(decimal.point);
    out = copyText(out, decimal.digits.substr(0, whole));
    *out++ = '.';
    return copyText(out, decimal.digits.substr(whole));
}

/// Writes \a value as QLocale::FloatingPointShortest does and returns the end; \a out has room for
/// numberSize characters.
char *writeNumber(char *out, double value)
{
    if (value == 0.0)
        return copyText(out, "0");
    if (!std::isfinite(value)) {
        const QByteArray word = QByteArray::number(value);
        return copyText(out,
                        std::string_view(word.constData(), static_cast<std::size_t>(word.size())));
    }
    if (value < 0.0)
        *out++ = '-';
    const double magnitude = std::abs(value);
    if (magnitude >= 1e-4 && magnitude < 1e5) // both styles agree here
        return std::to_chars(out, out + numberSize, magnitude, std::chars_format::fixed).ptr;
    const Decimal decimal = shortestDecimal(magnitude);
    return takesExponent(decimal) ? writeWithExponent(out, decimal) : writePlain(out, decimal);
}

/// A line of text, kept one line: a line feed in a title would shift the lines below it.
QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\r'), QLatin1Char(' '))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
}

void appendRows(QByteArray &text, const QVector<QPointF> &points)
{
    constexpr int usualRowSize = 24;
    constexpr std::size_t greatestRow = 2 * numberSize + 2;
    text.reserve(text.size() + points.size() * usualRowSize);
    std::array<char, 1 << 14> block{};
    const char *full = block.data() + block.size() - greatestRow;
    char *end = block.data();
    const auto flush = [&] {
        text.append(block.data(), static_cast<int>(end - block.data()));
        end = block.data();
    };
    for (const QPointF &point : points) {
        end = writeNumber(end, point.x());
        *end++ = ',';
        end = writeNumber(end, point.y());
        *end++ = '\n';
        if (end > full)
            flush();
    }
    flush();
}

QByteArray curveBytes(const QString &heading, const QVector<QPointF> &points)
{
    QByteArray text = heading.toUtf8();
    text.append(header.data(), static_cast<int>(header.size())).append('\n');
    appendRows(text, points);
    return text;
}

} // namespace

namespace CurveText {

QString number(double value)
{
    std::array<char, numberSize> text{};
    const char *end = writeNumber(text.data(), value);
    return QString::fromLatin1(text.data(), static_cast<int>(end - text.data()));
}

QString toClipboard(const QString &name, const QVector<QPointF> &points)
{
    return QString::fromUtf8(curveBytes(oneLine(name) + QLatin1Char('\n'), points));
}

QByteArray toFile(const QString &title, const QString &name, const QVector<QPointF> &points)
{
    return curveBytes(oneLine(title) + QLatin1Char('\n') + oneLine(name) + QLatin1Char('\n'),
                      points);
}

Curve fromFile(const QByteArray &bytes, const Progress &progress)
{
    const QByteArray text = asUtf8(bytes);
    Lines lines(text);
    std::string_view line;
    Curve curve;
    if (lines.next(line))
        curve.title = decoded(withoutEmptyCells(line));
    if (lines.next(line))
        curve.name = decoded(withoutEmptyCells(line));
    if (!lines.next(line) || !isHeader(line)) {
        curve.status = Status::WrongHeader;
        return curve;
    }
    curve.points.reserve(lines.linesLeft());
    qint64 reported = 0;
    while (lines.next(line)) {
        appendRow(curve, line);
        if (!progress || lines.done() - reported < bytesBetweenReports)
            continue;
        reported = lines.done();
        if (!progress(reported, text.size())) {
            curve.points.clear();
            curve.status = Status::Cancelled;
            return curve;
        }
    }
    return curve;
}

Curve fromClipboard(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    Lines lines(bytes);
    std::string_view line;
    Curve curve;
    lines.next(line);
    const auto isCellHeader = [](std::string_view head) {
        return isHeader(head) && head.find_first_of("\t;") != std::string_view::npos;
    };
    bool headed = isCellHeader(line);
    bool isCurve = headed;
    std::string_view second;
    Lines ahead = lines;
    // Two numbers above a header are the name of a curve, elsewhere its first point.
    const bool isPoint = isRowByCommas(line) && !(ahead.next(second) && isHeader(second));
    if (isPoint || isRowOfCells(line)) {
        isCurve = true;
        appendRow(curve, line);
    } else if (!headed) {
        curve.name = decoded(line.substr(0, line.find_first_of("\t;")));
    }

    curve.points.reserve(lines.linesLeft());
    while (lines.next(line)) {
        if (!headed && isHeader(line)) {
            headed = true;
            isCurve = true;
            continue;
        }
        const auto before = curve.points.size();
        const qint64 oddBefore = curve.rows.noNumbers;
        appendRow(curve, line);
        isCurve = isCurve || (curve.points.size() > before && curve.rows.noNumbers == oddBefore);
    }
    if (!isCurve)
        curve.status = Status::NoCurve;
    return curve;
}

} // namespace CurveText
