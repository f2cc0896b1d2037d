#include "2d/scene/mypathitem.h"

#include "2d/data/chartmapping.h"
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
#include <cmath>

namespace {

constexpr qreal curveLevel = 5.0;
constexpr qreal selectedCurveLevel = 6.0;
constexpr double extraWidthWhenSelected = 1.0;
constexpr double bandBesideLine = 4.0;
constexpr double pressTolerance = 4.0;
constexpr double vectorScale = 4.0; // pixels a unit where there are no pixels

double distanceToSegment(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    const double length2 = QPointF::dotProduct(way, way);
    const double t =
        length2 > 0.0 ? qBound(0.0, QPointF::dotProduct(point - from, way) / length2, 1.0) : 0.0;
    const QPointF gap = point - (from + way * t);
    return std::hypot(gap.x(), gap.y());
}

/// The colour of the band around a selected curve: opaque, so that the grid does not shine through.
QColor bandColor(const QColor &color)
{
    constexpr double strength = 0.32;
    const auto mixed = [](int part) { return static_cast<int>(255.0 - (255.0 - part) * strength); };
    return {mixed(color.red()), mixed(color.green()), mixed(color.blue())};
}

QPen linePen(const QColor &color, double width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A path through \a segments, of which those that join make one line.
QPainterPath pathThrough(const QVector<QLineF> &segments, const QRectF &window)
{
    QPainterPath path;
    QPointF end;
    for (const QLineF &segment : segments) {
        QPointF from = segment.p1();
        QPointF to = segment.p2();
        if (!clipSegment(from, to, window)) // a painter cannot take what lies too far away
            continue;
        if (path.isEmpty() || from != end)
            path.moveTo(from);
        path.lineTo(to);
        end = to;
    }
    return path;
}

} // namespace

MyPathItem::MyPathItem(int pathId, QGraphicsItem *parent)
    : QGraphicsPathItem(parent)
    , m_pathId(pathId)
{
    setZValue(curveLevel);
    setAcceptedMouseButtons(Qt::LeftButton);
}

void MyPathItem::setValuePoints(const QVector<QPointF> &points)
{
    if (points.isEmpty() != m_valuePoints.isEmpty())
        update();
    m_valuePoints = points;
}

void MyPathItem::drawValues(const QVector<QPointF> &values, const ChartMapping &mapping)
{
    if (!values.isEmpty())
        setOutline({values, mapping});
}

void MyPathItem::setDrawnPoints(const QVector<QPointF> &points)
{
    if (!points.isEmpty())
        setOutline({points, std::nullopt});
}

void MyPathItem::setOutline(const Outline &outline)
{
    prepareGeometryChange();
    m_outline = outline;
    if (!m_index.isOf(outline.points))
        m_index = CurveIndex(outline.points);
    measure();
    forgetDrawing();
}

void MyPathItem::forgetDrawing()
{
    m_scale = 0.0;
    m_segments.clear();
    m_pictures.clear();
    m_highest.reset();
    update();
}

QVector<QPointF> MyPathItem::positions() const
{
    return m_outline.mapping ? m_outline.mapping->toScene(m_outline.points) : m_outline.points;
}

QPainterPath MyPathItem::path() const
{
    const QVector<QPointF> points = positions();
    QPainterPath outline;
    outline.reserve(points.size() + 1);
    outline.addPolygon(QPolygonF(points));
    return outline;
}

void MyPathItem::setPlotArea(const QRectF &area)
{
    if (area == m_plotArea)
        return;
    prepareGeometryChange();
    m_plotArea = area;
    measure();
    forgetDrawing();
}

/// Finds out how far the curve reaches, and whether that is beyond the plot area.
void MyPathItem::measure()
{
    const ViewRange bounds = m_index.bounds();
    const QPointF least(bounds.xMin, bounds.yMin);
    const QPointF greatest(bounds.xMax, bounds.yMax);
    if (!m_outline.mapping) {
        m_extent = QRectF(least, greatest);
    } else if (m_outline.mapping->kind == ChartMapping::Kind::Polar) {
        const double radius = m_outline.mapping->distance(greatest.y());
        const QPointF centre = m_outline.mapping->plotArea.center();
        m_extent = QRectF(centre - QPointF(radius, radius), centre + QPointF(radius, radius));
    } else {
        m_extent = QRectF(m_outline.mapping->toScene({least.x(), greatest.y()}),
                          m_outline.mapping->toScene({greatest.x(), least.y()}));
    }
    // A curve that just reaches the edge may differ from it by the last bit.
    constexpr double nearly = 1e-6;
    const QRectF room = m_plotArea.adjusted(-nearly, -nearly, nearly, nearly);
    const QRectF extent(m_extent.topLeft(), m_extent.bottomRight() + QPointF(nearly, nearly));
    const bool mayLeaveTheCircle = !m_outline.mapping && m_chartKind == polarKind;
    m_clipped = mayLeaveTheCircle || !room.contains(extent);
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
    m_pictures.clear();
    update();
}

void MyPathItem::setCurveSelected(bool selected)
{
    if (selected == m_curveSelected)
        return;
    prepareGeometryChange();
    m_curveSelected = selected;
    m_pictures.clear();
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
    if (m_outline.points.isEmpty())
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

const QVector<QLineF> &MyPathItem::segments(double pixelsPerUnit) const
{
    if (!qFuzzyCompare(m_scale, pixelsPerUnit)) {
        m_segments = m_outline.mapping
                         ? visibleSegments(m_outline.points, *m_outline.mapping, pixelsPerUnit,
                                           m_index.pyramid())
                         : visibleSegments(m_outline.points, m_plotArea, pixelsPerUnit);
        m_scale = pixelsPerUnit;
        m_pictures.clear();
        m_highest.reset();
    }
    return m_segments;
}

bool MyPathItem::hits(const QPointF &position) const
{
    if (m_valuePoints.isEmpty() || !boundingRect().contains(position))
        return false;
    const double tolerance = m_lineWidth * 0.5 + pressTolerance;
    const QRectF near(position.x() - tolerance, position.y() - tolerance, 2.0 * tolerance,
                      2.0 * tolerance);
    const QVector<QLineF> &line = segments();
    return std::any_of(line.cbegin(), line.cend(), [&](const QLineF &segment) {
        return !segmentMisses(segment.p1(), segment.p2(), near) &&
               distanceToSegment(position, segment.p1(), segment.p2()) <= tolerance;
    });
}

std::optional<QPointF> MyPathItem::highestPoint() const
{
    const QVector<QLineF> &line = segments();
    if (m_highest)
        return *m_highest;
    std::optional<QPointF> highest;
    for (const QLineF &segment : line) {
        for (const QPointF &point : {segment.p1(), segment.p2()}) {
            if ((!highest || point.y() < highest->y()) && m_plotArea.contains(point))
                highest = point;
        }
    }
    m_highest = highest;
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
    for (const QLineF &segment : segments()) {
        QPointF from = segment.p1();
        QPointF to = segment.p2();
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
    if (CurvePicture::isPossible(*painter))
        drawPixels(*painter, strokes());
    else
        drawVectors(*painter, strokes());
}

/// The line, before it the band around it if the curve is selected.
QVector<CurvePicture::Style> MyPathItem::strokes() const
{
    const bool clipped = m_clipped || m_curveSelected; // the band reaches farther than the line
    CurvePicture::Style line{pen().color(), double(m_lineWidth),
                             clipped ? m_plotArea : boundingRect(),
                             clipped && m_chartKind == polarKind};
    if (!m_curveSelected)
        return {line};
    line.width += extraWidthWhenSelected;
    CurvePicture::Style band = line;
    band.color = bandColor(line.color);
    band.width += 2.0 * bandBesideLine;
    return {band, line};
}

void MyPathItem::drawPixels(QPainter &painter, const QVector<CurvePicture::Style> &strokes) const
{
    const QTransform toDevice = painter.deviceTransform();
    const QVector<QLineF> &line = segments(toDevice.m11());
    if (m_pictures.isEmpty() || !m_pictures.constFirst().fits(toDevice)) {
        m_pictures.clear();
        for (const CurvePicture::Style &stroke : strokes)
            m_pictures.append(CurvePicture(line, stroke, toDevice));
    }
    for (const CurvePicture &picture : qAsConst(m_pictures))
        picture.paint(painter);
}

void MyPathItem::drawVectors(QPainter &painter, const QVector<CurvePicture::Style> &strokes) const
{
    const double margin = 4.0 * reach();
    const QPainterPath line =
        pathThrough(segments(vectorScale), m_plotArea.adjusted(-margin, -margin, margin, margin));
    for (const CurvePicture::Style &stroke : strokes) {
        QPainterPath room;
        if (stroke.round)
            room.addEllipse(stroke.area);
        else
            room.addRect(stroke.area);
        painter.setClipPath(room, Qt::IntersectClip);
        painter.strokePath(line, linePen(stroke.color, stroke.width));
    }
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
    select();
    event->accept();
}

void MyPathItem::select()
{
    setCurveSelected(true);
    emit selectPathId(m_pathId);
}

void MyPathItem::takePress(const QPointF &position)
{
    m_pressX = position.x();
    m_pressY = position.y();
    grabMouse();
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
