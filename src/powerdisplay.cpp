#include "powerdisplay.h"

#include <QFontMetrics>
#include <QLabel>

#include <algorithm>

void fitPowerDisplay(const QSize &window, QLabel *power, QLabel *unit, QLabel *text)
{
    const int pixels = std::clamp(std::min(window.height() / 10, window.width() / 14), 60, 240);
    QFont font = power->font();
    font.setBold(true);
    font.setPixelSize(pixels);
    const QFontMetrics metrics(font);
    power->setFont(font);
    // The unit is not to move with every digit.
    power->setMinimumWidth(metrics.horizontalAdvance(QStringLiteral("-100.00")));

    font.setPixelSize(pixels * 2 / 5);
    unit->setFont(font);
    unit->setContentsMargins(0, 0, 0, metrics.descent() - QFontMetrics(font).descent());
    font.setPixelSize(pixels * 3 / 5);
    text->setFont(font);
}
