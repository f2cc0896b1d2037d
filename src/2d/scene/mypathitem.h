#pragma once

#include "2d/data/polylinedecimation.h"
#include "2d/data/viewrange.h"

#include <QColor>
#include <QGraphicsPathItem>
#include <QList>
#include <QObject>
#include <QVector>

#include <optional>

/// The outline of a curve on the chart's scene: drawn, clicked, and dragged out of the chart.
///
/// It draws the curve itself, since stroking its path (as the base class would) takes a hundred
/// times as long on a dense curve. Of the points that share a pixel column only those that make a
/// difference are drawn.
class MyPathItem : public QObject, public QGraphicsPathItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    enum { Type = UserType + 1 };

    /// What a press on the curve does; 2 takes it out of the reach of the mouse.
    enum SelectionMode { Selectable = 1, NotSelectable = 2 };

    explicit MyPathItem(int pathId, QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }
    int pathId() const { return m_pathId; }

    /// Takes over the chart's kind (0 cartesian, 1 polar) and range as they are now.
    void adoptView(int chartKind, const ViewRange &range);
    int chartKind() const { return m_chartKind; }
    ViewRange viewRange() const { return m_viewRange; }

    /// The curve in chart values.
    QList<QPointF> valuePoints() const { return m_valuePoints.toList(); }
    void setValuePoints(const QVector<QPointF> &points);

    /// The scene positions of the outline.
    QList<QPointF> drawnPoints() const { return m_drawnPoints.toList(); }
    const QVector<QPointF> &positions() const { return m_drawnPoints; }
    /// Gives the positions away, for their memory: new ones must follow at once.
    QVector<QPointF> recycledPositions();
    /// Builds the outline through \a points. Without points the outline stays as it is.
    void setDrawnPoints(const QVector<QPointF> &points);

    /// Where the curve may be drawn, in scene coordinates: for a polar chart the circle in it.
    void setPlotArea(const QRectF &area);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    int lineWidth() const { return m_lineWidth; }
    void setLineWidth(int width);
    /// The name under which the curve is dragged to another chart.
    void setName(const QString &name) { m_name = name; }

    /// A selected curve is drawn wider, on a bright band, and above the others.
    bool isCurveSelected() const { return m_curveSelected; }
    void setCurveSelected(bool selected);
    int selectionMode() const { return m_selectionMode; }
    void setSelectionMode(int mode) { m_selectionMode = mode; }

    /// Whether the scene position \a position lies on the drawn curve, give or take a few pixels.
    bool hits(const QPointF &position) const;

    /// The highest scene position of the drawn curve in the plot area, if any of it is there.
    std::optional<QPointF> highestPoint() const;

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    bool contains(const QPointF &point) const override;
    bool collidesWithPath(const QPainterPath &path, Qt::ItemSelectionMode mode) const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

signals:
    void selectPathId(int pathId);
    void setAcceptDropsStatus(bool status);

public slots:
    /// The images of the value points, mirrored across the line through \a point1 and \a point2.
    QList<QPointF> getSymmetricPoint(QPointF point1, QPointF point2);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void measure();
    const ThinnedLine &visibleLine(double pixelsPerUnit) const;
    void drawLine(QPainter &painter) const;
    double reach() const;
    void applyPen();
    void dragCurve(QWidget *source);

    int m_pathId;
    int m_chartKind = 0;
    ViewRange m_viewRange;
    QVector<QPointF> m_valuePoints;
    QVector<QPointF> m_drawnPoints;
    QString m_name;
    QColor m_color;
    int m_lineWidth = 1;
    int m_selectionMode = Selectable;
    bool m_curveSelected = false;
    double m_pressX = -1.0; ///< where a press began that may become a drag, -1 for none
    double m_pressY = -1.0;

    QRectF m_plotArea;
    QRectF m_extent;            ///< the bounds of the drawn points
    bool m_clipped = false;     ///< whether the curve leaves the plot area
    mutable ThinnedLine m_line; ///< what is drawn, for m_lineScale device pixels a unit
    mutable QVector<ColumnStretch> m_solid;
    mutable double m_lineScale = 0.0;
};
