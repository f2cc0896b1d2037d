#include "2d/scene/curveswatch.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>

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
