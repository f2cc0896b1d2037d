#include "picturecheck.h"

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

/// How many of 16 points of each pixel the stroke covers; painted in pieces that share a segment,
/// for one long path takes minutes.
QVector<int> strokeCover(const QVector<QPointF> &positions, const QRectF &area, bool round)
{
    constexpr int finer = 4;
    constexpr int piece = 8;
    QImage fine(pictureSize * finer, QImage::Format_ARGB32_Premultiplied);
    fine.fill(Qt::black);
    QPainter painter(&fine);
    painter.scale(finer, finer);
    QPainterPath room;
    if (round)
        room.addEllipse(area);
    else
        room.addRect(area.adjusted(-1, -1, 1, 1));
    painter.setClipPath(room);
    painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    for (int i = 0; i + 1 < positions.size(); i += piece - 1)
        painter.drawPolyline(positions.constData() + i, qMin(piece + 1, positions.size() - i));
    painter.end();
    QVector<int> covers(pictureSize.width() * pictureSize.height(), 0);
    for (int y = 0; y < fine.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(fine.constScanLine(y));
        for (int x = 0; x < fine.width(); ++x)
            covers[y / finer * pictureSize.width() + x / finer] += qRed(line[x]) / 255;
    }
    return covers;
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
    const QVector<int> stroke =
        strokeCover(path->pathItem()->positions(), view.chart()->plotArea(), kind == 1);
    int covered = 0;
    int missing = 0;
    int beside = 0;
    for (int i = 0; i < stroke.size(); ++i) {
        const int seen = qRed(own.pixel(i % own.width(), i / own.width()));
        covered += stroke[i] >= 8 ? 1 : 0;
        missing += stroke[i] >= 8 && seen < 64 ? 1 : 0;
        beside += stroke[i] < 4 && seen >= 128 ? 1 : 0;
    }
    const auto percent = [covered](int pixels) {
        return QString::number(100.0 * pixels / qMax(1, covered), 'f', 2);
    };
    return QStringLiteral("missing %1 %, beside %2 %").arg(percent(missing), percent(beside));
}
