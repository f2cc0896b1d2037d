#include "2d/scene/generatecolors.h"

#include <QIcon>
#include <QPixmap>
#include <QTextDocument>

#include <array>

QList<QColor> GenerateColors::colors;

QColor curveColor(int pathId)
{
    // The palette of Okabe and Ito without its yellow, which vanishes on white.
    static constexpr std::array<QRgb, 7> palette{0xff0072b2, 0xffd55e00, 0xff009e73, 0xffb5478a,
                                                 0xff56b4e9, 0xffe69f00, 0xff333333};
    constexpr int darker = 140;
    const auto size = static_cast<int>(palette.size());
    const int index = qMax(0, pathId - 1);
    QColor color = QColor::fromRgb(palette[static_cast<std::size_t>(index % size)]);
    for (int round = index / size; round > 0 && round < 4; --round)
        color = color.darker(darker);
    return color;
}

QIcon curveSwatch(const QColor &color)
{
    // Sharp on dense screens too, where one pixel of the layout is up to four of the screen.
    QPixmap field(48, 48);
    field.fill(color.isValid() ? color : QColor(Qt::gray));
    QIcon swatch(field);
    // Its own, or a selected row would tint the colour.
    swatch.addPixmap(field, QIcon::Selected);
    return swatch;
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped())
                                     : text;
}
