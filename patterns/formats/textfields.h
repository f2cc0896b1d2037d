#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>
#include <string_view>
#include <vector>

/// What the readers of pattern files share: lines, fields, numbers, angles.
namespace PatternFormats {

constexpr double dipoleGain = 2.15; ///< dBi of 0 dBd

/// \a bytes as UTF-8: any Unicode form by its byte-order mark, else UTF-8 if it is valid, else
/// Latin-1.
QByteArray decoded(const QByteArray &bytes);

QString toText(std::string_view text);
std::string_view trimmed(std::string_view text);

/// Whether both are equal but for the case of ASCII letters.
bool equalsIgnoringCase(std::string_view left, std::string_view right);

/// The fields between blanks and tabs.
std::vector<std::string_view> fieldsOf(std::string_view line);

/// A finite number in the C locale that takes the whole of \a field; nothing otherwise.
std::optional<double> toNumber(std::string_view field);

/// A count that takes the whole of \a field.
std::optional<int> toCount(std::string_view field);

/// Walks over the lines of a text, which end with LF or CRLF.
class TextLines
{
public:
    /// \a text must outlive the walk.
    explicit TextLines(const QByteArray &text)
        : m_rest(text.constData(), static_cast<std::size_t>(text.size()))
    {}

    /// Goes to the next line; false at the end.
    bool next();
    /// Without its end and the blanks on both sides.
    std::string_view line() const { return m_line; }
    int number() const { return m_number; } ///< from 1
    /// Whether this is a last line that nothing ends.
    bool isOpen() const { return m_open; }

private:
    std::string_view m_rest;
    std::string_view m_line;
    int m_number = 0;
    bool m_open = false;
};

/// Tells a number that a cut through the file has shortened: all others have the same decimals, and
/// the last one, which no line end follows, has fewer.
class DecimalsWatch
{
public:
    /// Returns whether \a field looks shortened, \a open saying that it ends the file.
    bool isShortened(std::string_view field, bool open);

private:
    int m_decimals = -1; ///< -2: they vary
};

/// The direction \a degrees within -180 to 180: 360 is 0, and 180 stays 180.
double wrappedAngle(double degrees);

/// \a level in dB without the noise that sums of decimal fractions leave behind: a billionth of a
/// dB.
double plainLevel(double level);

/// \a points with their angles wrapped, ascending; of equal angles the first is kept.
QVector<QPointF> asCut(QVector<QPointF> points);

} // namespace PatternFormats
