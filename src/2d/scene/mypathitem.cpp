#include "2d/scene/mypathitem.h"

#include "2d/data/curvemaths.h"
#include "2d/data/polylinedecimation.h"
#include "2d/scene/curvedrag.h"

#include <QApplication>
#include <QDebug>
#include <QDrag>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QMimeData>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr int polarKind = 1;
constexpr qreal curveLevel = 5.0;
constexpr qreal selectedCurveLevel = 6.0;
constexpr double extraWidthWhenSelected = 1.0;
constexpr double bandBesideLine = 4.0;
constexpr double pressTolerance = 4.0;
constexpr int pointsWorthCaching = 2000;
constexpr double thinLine = 3.5;
constexpr int segmentsOfPiece = 16;

double distanceToSegment(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    const double length2 = QPointF::dotProduct(way, way);
    const double t =
        length2 > 0.0 ? qBound(0.0, QPointF::dotProduct(point - from, way) / length2, 1.0) : 0.0;
    const QPointF gap = point - (from + way * t);
    return std::hypot(gap.x(), gap.y());
}

/// The colour of the band around a selected curve: opaque, since its pieces overlap at their ends.
QColor bandColor(const QColor &color)
{
    constexpr double strength = 0.32;
    const auto mixed = [](int part) { return static_cast<int>(255.0 - (255.0 - part) * strength); };
    return {mixed(color.red()), mixed(color.green()), mixed(color.blue())};
}

bool insideCircle(const QVector<QPointF> &points, const QRectF &square)
{
    const QPointF centre = square.center();
    const double radius = square.width() * 0.5;
    return std::all_of(points.cbegin(), points.cend(), [&](const QPointF &point) {
        const QPointF offset = point - centre;
        return QPointF::dotProduct(offset, offset) <= radius * radius;
    });
}

/// A pen for pieces of a line. Thin lines show no difference between round and plain corners, and
/// plain ones are drawn in half the time; square ends close the corners between the pieces.
QPen linePen(const QColor &color, double width)
{
    return width < thinLine ? QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin)
                            : QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void drawApart(QPainter &painter, const QPointF *piece, int count)
{
    std::array<QLineF, segmentsOfPiece> lines;
    for (int i = 0; i + 1 < count; ++i)
        lines[static_cast<std::size_t>(i)] = QLineF(piece[i], piece[i + 1]);
    painter.drawLines(lines.data(), count - 1);
}

} // namespace

MyPathItem::MyPathItem(int pathId, QGraphicsItem *parent)
    : QGraphicsPathItem(parent)
    , m_pathId(pathId)
{
    setZValue(curveLevel);
    setAcceptedMouseButtons(Qt::LeftButton);
}

void MyPathItem::adoptView(int chartKind, const ViewRange &range)
{
    m_chartKind = chartKind;
    m_viewRange = range;
}

void MyPathItem::setValuePoints(const QVector<QPointF> &points)
{
    if (points.isEmpty() != m_valuePoints.isEmpty())
        update();
    m_valuePoints = points;
}

QVector<QPointF> MyPathItem::recycledPositions()
{
    return std::exchange(m_drawnPoints, {});
}

void MyPathItem::setDrawnPoints(const QVector<QPointF> &points)
{
    if (points.isEmpty())
        return;
    prepareGeometryChange();
    m_drawnPoints = points;
    m_lineScale = 0.0;
    measure();
    const CacheMode mode = points.size() > pointsWorthCaching ? DeviceCoordinateCache : NoCache;
    if (mode != cacheMode())
        setCacheMode(mode);
    // The former path goes first: setPath() would compare the two, point by point.
    setPath(QPainterPath());
    QPainterPath outline;
    outline.reserve(points.size() + 1);
    outline.addPolygon(QPolygonF(points));
    setPath(outline);
    update();
}

void MyPathItem::setPlotArea(const QRectF &area)
{
    if (area == m_plotArea)
        return;
    prepareGeometryChange();
    m_plotArea = area;
    m_lineScale = 0.0;
    measure();
}

void MyPathItem::measure()
{
    if (m_drawnPoints.isEmpty())
        return;
    QPointF least = m_drawnPoints.constFirst();
    QPointF greatest = least;
    for (const QPointF &point : qAsConst(m_drawnPoints)) {
        least = {std::min(least.x(), point.x()), std::min(least.y(), point.y())};
        greatest = {std::max(greatest.x(), point.x()), std::max(greatest.y(), point.y())};
    }
    m_extent = QRectF(least, greatest);
    m_clipped = m_chartKind == polarKind
                    ? !insideCircle(m_drawnPoints, m_plotArea)
                    : !m_plotArea.contains(least) || !m_plotArea.contains(greatest);
}

void MyPathItem::setColor(const QColor &color)
{
    m_color = color;
    applyPen();
}

void MyPathItem::setLineWidth(int width)
{
    prepareGeometryChange();
    m_lineWidth = width;
    applyPen();
}

void MyPathItem::applyPen()
{
    setPen(linePen(m_color.isValid() ? m_color : QColor(Qt::black), m_lineWidth));
    update();
}

void MyPathItem::setCurveSelected(bool selected)
{
    if (selected == m_curveSelected)
        return;
    prepareGeometryChange();
    m_curveSelected = selected;
    setZValue(selected ? selectedCurveLevel : curveLevel);
    update();
}

/// Half the width of what is drawn or can be hit, beside the line.
double MyPathItem::reach() const
{
    return m_lineWidth * 0.5 + extraWidthWhenSelected + bandBesideLine;
}

QRectF MyPathItem::boundingRect() const
{
    if (m_drawnPoints.isEmpty())
        return {};
    const double margin = reach() + 1.0;
    QRectF bounds = m_extent;
    if (!m_plotArea.isEmpty())
        bounds = QRectF(QPointF(qBound(m_plotArea.left(), bounds.left(), m_plotArea.right()),
                                qBound(m_plotArea.top(), bounds.top(), m_plotArea.bottom())),
                        QPointF(qBound(m_plotArea.left(), bounds.right(), m_plotArea.right()),
                                qBound(m_plotArea.top(), bounds.bottom(), m_plotArea.bottom())));
    return bounds.adjusted(-margin, -margin, margin, margin);
}

const ThinnedLine &MyPathItem::visibleLine(double pixelsPerUnit) const
{
    if (!qFuzzyCompare(m_lineScale, pixelsPerUnit)) {
        m_line = thinnedLine(m_drawnPoints, {m_chartKind == polarKind, m_plotArea, pixelsPerUnit});
        m_solid = solidStretches(m_line, pixelsPerUnit);
        m_lineScale = pixelsPerUnit;
    }
    return m_line;
}

bool MyPathItem::hits(const QPointF &position) const
{
    if (m_valuePoints.isEmpty() || !boundingRect().contains(position))
        return false;
    const double tolerance = m_lineWidth * 0.5 + pressTolerance;
    const QVector<QPointF> &line = visibleLine(m_lineScale > 0.0 ? m_lineScale : 1.0).points;
    const QRectF near(position.x() - tolerance, position.y() - tolerance, 2.0 * tolerance,
                      2.0 * tolerance);
    for (int i = 0; i < line.size(); ++i) {
        const QPointF &from = line[i];
        const QPointF &to = line[i + 1 < line.size() ? i + 1 : i];
        if (!segmentMisses(from, to, near) && distanceToSegment(position, from, to) <= tolerance)
            return true;
    }
    return false;
}

std::optional<QPointF> MyPathItem::highestPoint() const
{
    std::optional<QPointF> highest;
    const QVector<QPointF> &line = visibleLine(m_lineScale > 0.0 ? m_lineScale : 1.0).points;
    for (const QPointF &point : line) {
        if ((!highest || point.y() < highest->y()) && m_plotArea.contains(point))
            highest = point;
    }
    return highest;
}

bool MyPathItem::contains(const QPointF &point) const
{
    return hits(point);
}

// The scene asks with a path of one pixel for every press; intersecting paths for it would cost
// more than all the rest of the press.
bool MyPathItem::collidesWithPath(const QPainterPath &path, Qt::ItemSelectionMode mode) const
{
    if (mode == Qt::IntersectsItemShape || mode == Qt::ContainsItemShape)
        return hits(path.controlPointRect().center());
    return QGraphicsPathItem::collidesWithPath(path, mode);
}

QPainterPath MyPathItem::shape() const
{
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    const double tolerance = m_lineWidth * 0.5 + pressTolerance;
    const QVector<QPointF> &line = visibleLine(m_lineScale > 0.0 ? m_lineScale : 1.0).points;
    for (int i = 0; i + 1 < line.size(); ++i) {
        QPointF from = line[i];
        QPointF to = line[i + 1];
        if (segmentMisses(from, to, boundingRect()) || !clipSegment(from, to, boundingRect()))
            continue;
        const QLineF along(from, to);
        const QLineF across =
            along.length() > 0.0 ? along.normalVector().unitVector() : QLineF(0.0, 0.0, 0.0, 1.0);
        const QPointF side(across.dx() * tolerance, across.dy() * tolerance);
        const QPointF ahead(side.y(), -side.x());
        from += ahead;
        to -= ahead;
        outline.addPolygon(QPolygonF({from + side, to + side, to - side, from - side}));
        outline.closeSubpath();
    }
    return outline;
}

void MyPathItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(option)
    Q_UNUSED(widget)
    if (m_valuePoints.isEmpty())
        return;
    const bool clipped = m_clipped || m_curveSelected; // the band reaches farther than the line
    if (clipped && m_chartKind == polarKind) {
        QPainterPath circle;
        circle.addEllipse(m_plotArea);
        painter->setClipPath(circle, Qt::IntersectClip);
    } else if (clipped) {
        painter->setClipRect(m_plotArea, Qt::IntersectClip);
    }
    const double pixelsPerUnit =
        painter->combinedTransform().m11() * painter->device()->devicePixelRatioF();
    visibleLine(pixelsPerUnit > 0.0 ? pixelsPerUnit : 1.0);
    const QColor lineColor = pen().color();
    double width = m_lineWidth;
    if (m_curveSelected) {
        width += extraWidthWhenSelected;
        painter->setPen(linePen(bandColor(lineColor), width + 2.0 * bandBesideLine));
        drawLine(*painter);
    }
    painter->setPen(linePen(lineColor, width));
    drawLine(*painter);
}

/// Draws the line in short pieces, since the stroke of a long path has to be tested against all of
/// itself. Where the line fills the pixels between its lowest and highest points, these are filled.
void MyPathItem::drawLine(QPainter &painter) const
{
    const QVector<QPointF> &points = m_line.points;
    if (points.size() == 1) {
        painter.drawPoint(points.first());
        return;
    }
    const QPen pen = painter.pen();
    const double margin = 4.0 * reach();
    const QRectF window = m_plotArea.adjusted(-margin, -margin, margin, margin);
    // Where every point has a column to itself, single lines make the same picture in half the
    // time; closer together their smoothed ends would add up to a heavier line.
    const bool apart = pen.widthF() < thinLine && pointsStandApart(m_line);
    const auto drawRange = [&](int from, int to) {
        forEachPiece(points.constData() + from, to - from + 1, window,
                     [&painter, apart](const QPointF *piece, int count) {
                         if (apart)
                             drawApart(painter, piece, count);
                         else
                             painter.drawPolyline(piece, count);
                     });
    };
    int from = 0;
    for (const ColumnStretch &stretch : qAsConst(m_solid)) {
        drawRange(from, m_line.columns[stretch.from].last);
        painter.setPen(Qt::NoPen);
        painter.setBrush(pen.color());
        forEachBand(m_line, stretch, pen.widthF() * 0.5, window,
                    [&painter](const QPointF *band, int count) {
                        painter.drawPolygon(band, count, Qt::WindingFill);
                    });
        painter.setPen(pen);
        from = m_line.columns[stretch.to].first;
    }
    drawRange(from, points.size() - 1);
}

QList<QPointF> MyPathItem::getSymmetricPoint(QPointF point1, QPointF point2)
{
    const MirrorLine mirror(point1, point2);
    QList<QPointF> images;
    images.reserve(m_valuePoints.size());
    for (const QPointF &point : qAsConst(m_valuePoints)) {
        qWarning() << "2k b .." << mirror.perpendicularSlope()
                   << mirror.perpendicularIntercept(point) << point;
        qWarning() << "mPoint .." << mirror.foot(point);
        const QPointF image = mirror.image(point);
        qWarning() << "aPoint .." << image;
        images.append(image);
    }
    return images;
}

void MyPathItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_selectionMode == NotSelectable) {
        event->ignore();
        return;
    }
    m_pressX = event->scenePos().x();
    m_pressY = event->scenePos().y();
    setCurveSelected(true);
    emit selectPathId(m_pathId);
    event->accept();
}

void MyPathItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    const bool pressed = m_pressX >= 0.0 && m_pressY >= 0.0;
    if (!pressed || !(event->buttons() & Qt::LeftButton))
        return;
    const QPointF way = event->scenePos() - QPointF(m_pressX, m_pressY);
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressX = -1.0;
    m_pressY = -1.0;
    dragCurve(event->widget());
}

void MyPathItem::dragCurve(QWidget *source)
{
    // A curve is not dropped on its own chart.
    emit setAcceptDropsStatus(false);
    auto *drag = new QDrag(source);
    drag->setMimeData(curveDragData(m_name, m_valuePoints));
    const QPixmap picture = curveDragPixmap(m_chartKind, m_color, m_valuePoints);
    drag->setPixmap(picture);
    const QSizeF size = QSizeF(picture.size()) / picture.devicePixelRatioF();
    drag->setHotSpot(QPointF(size.width() / 2.0, size.height() / 2.0).toPoint());
    drag->exec(Qt::CopyAction);
    emit setAcceptDropsStatus(true);
    // The drag has swallowed the release that would have ended the grab.
    if (scene() && scene()->mouseGrabberItem() == this)
        ungrabMouse();
}
