#include "patterns/formats/textfields.h"

#include "2d/data/curvetext.h"
#include "2d/data/polarorientation.h"

#include <QTextCodec>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr std::string_view blanks = " \t\r\v\f";

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

namespace PatternFormats {

QByteArray decoded(const QByteArray &bytes)
{
    const QByteArray text = CurveText::asUtf8(bytes);
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    const bool valid = state.invalidChars == 0 && state.remainingChars == 0;
    return valid ? text : QString::fromLatin1(text).toUtf8();
}

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool equalsIgnoringCase(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

std::vector<std::string_view> fieldsOf(std::string_view line)
{
    std::vector<std::string_view> fields;
    std::size_t at = line.find_first_not_of(blanks);
    while (at != std::string_view::npos) {
        const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
        fields.push_back(line.substr(at, end - at));
        at = line.find_first_not_of(blanks, end);
    }
    return fields;
}

std::optional<double> toNumber(std::string_view field)
{
    if (!field.empty() && field.front() == '+')
        field.remove_prefix(1);
    double value = 0.0;
    const char *end = field.data() + field.size();
    const std::from_chars_result result = std::from_chars(field.data(), end, value);
    if (field.empty() || result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<int> toCount(std::string_view field)
{
    int value = 0;
    const char *end = field.data() + field.size();
    const std::from_chars_result result = std::from_chars(field.data(), end, value);
    if (field.empty() || result.ec != std::errc() || result.ptr != end || value < 0)
        return std::nullopt;
    return value;
}

bool TextLines::next()
{
    if (m_rest.empty())
        return false;
    const std::size_t feed = m_rest.find('\n');
    m_open = feed == std::string_view::npos;
    m_line = trimmed(m_rest.substr(0, feed));
    m_rest.remove_prefix(m_open ? m_rest.size() : feed + 1);
    ++m_number;
    return true;
}

bool DecimalsWatch::isShortened(std::string_view field, bool open)
{
    const std::size_t point = field.find('.');
    const int decimals =
        point == std::string_view::npos ? 0 : static_cast<int>(field.size() - point - 1);
    if (open && m_decimals > decimals)
        return true;
    if (m_decimals == -1)
        m_decimals = decimals;
    else if (m_decimals != decimals)
        m_decimals = -2;
    return false;
}

double wrappedAngle(double degrees)
{
    if (degrees >= -halfCircle && degrees <= halfCircle)
        return degrees + 0.0; // makes -0 plain
    const double rest = std::remainder(degrees, fullCircle);
    return rest == -halfCircle ? halfCircle : rest + 0.0;
}

double plainLevel(double level)
{
    constexpr double parts = 1e9;
    return std::round(level * parts) / parts;
}

QVector<QPointF> asCut(QVector<QPointF> points)
{
    for (QPointF &point : points)
        point.setX(wrappedAngle(point.x()));
    const auto lowerAngle = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
    std::stable_sort(points.begin(), points.end(), lowerAngle);
    const auto sameAngle = [](const QPointF &a, const QPointF &b) { return a.x() == b.x(); };
    points.erase(std::unique(points.begin(), points.end(), sameAngle), points.end());
    return points;
}

} // namespace PatternFormats
