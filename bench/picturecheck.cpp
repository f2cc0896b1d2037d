#include "picturecheck.h"

#include "bench/strokecover.h"

#include "2d/scene/mypathitem.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"

#include <QChart>
#include <QImage>
#include <QPainter>

namespace {

constexpr QSize pictureSize(1000, 600);

QImage ownPicture(MyPathItem &item)
{
    QImage picture(pictureSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    item.paint(&painter, nullptr, nullptr);
    return picture;
}

} // namespace

QString comparedWithStroke(int kind, const QVector<QPointF> &points)
{
    GraphicsBase view(kind);
    view.resize(pictureSize);
    view.show();
    if (kind == 0)
        view.setXRange(-180, 180);
    view.setYRange(-80, 20, 5);
    PathInfo *path = view.addCurve(QStringLiteral("curve"), points);
    path->setColor(Qt::white);
    const QImage own = ownPicture(*path->pathItem());
    const auto [missing, beside] =
        comparedWithStroke(own, path->pathItem()->positions(), view.chart()->plotArea(), kind == 1);
    return QStringLiteral("missing %1 %, beside %2 %")
        .arg(missing, 0, 'f', 2)
        .arg(beside, 0, 'f', 2);
}
