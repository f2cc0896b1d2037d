#include "console/powerdisplay.h"

#include <QFontMetrics>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int smallest = 48;
constexpr int largest = 300;

QFont sized(const QLabel *label, int pixels)
{
    QFont font = label->font();
    font.setBold(true);
    font.setPixelSize(pixels);
    return font;
}

int widthOf(const QFont &font, const QString &text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

/// The three sizes hang together: the unit and the instrument's text are parts of the reading's.
struct Fonts
{
    Fonts(int pixels, const QLabel *label)
        : power(sized(label, pixels))
        , unit(sized(label, pixels * 2 / 5))
        , text(sized(label, pixels * 9 / 20))
    {}

    int width(const QString &unitText) const
    {
        return widthOf(power, QStringLiteral("-100.00")) + widthOf(unit, unitText) +
               widthOf(text, QStringLiteral("-100.00dBm"));
    }

    QFont power;
    QFont unit;
    QFont text;
};

} // namespace

void fitPowerDisplay(const QSize &room, QLabel *power, QLabel *unit, QLabel *text)
{
    constexpr int probe = 100;
    const int widthAtProbe = Fonts(probe, power).width(unit->text());
    const Fonts fonts(std::clamp(std::min(room.height() / 8, room.width() * probe / widthAtProbe),
                                 smallest, largest),
                      power);
    power->setFont(fonts.power);
    unit->setFont(fonts.unit);
    text->setFont(fonts.text);
    // Neither the digits nor the line they stand on are to move from one reading to the next.
    power->setMinimumWidth(widthOf(fonts.power, QStringLiteral("-100.00")));
    const int descent = QFontMetrics(fonts.power).descent();
    unit->setContentsMargins(0, 0, 0, descent - QFontMetrics(fonts.unit).descent());
    text->setContentsMargins(0, 0, 0, descent - QFontMetrics(fonts.text).descent());
}
