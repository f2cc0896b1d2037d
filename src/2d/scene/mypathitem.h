#pragma once

#include "2d/data/chartmapping.h"
#include "2d/data/curveindex.h"
#include "2d/scene/curvepicture.h"

#include <QColor>
#include <QGraphicsPathItem>
#include <QList>
#include <QObject>
#include <QVector>

#include <optional>

/// The outline of a curve on the chart's scene: drawn, clicked, and dragged out of the chart.
///
/// It draws the curve itself, from the segments that make a difference on the screen. The positions
/// of all points, and the path through them, are made when somebody asks.
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

    /// Takes over the kind of the chart that the curve lies on: 0 cartesian, 1 polar.
    void setChartKind(int kind) { m_chartKind = kind; }

    /// The curve in chart values.
    QList<QPointF> valuePoints() const { return m_valuePoints.toList(); }
    void setValuePoints(const QVector<QPointF> &points);

    /// Draws the curve through \a values where \a mapping leads. Without values the outline stays
    /// as it is.
    void drawValues(const QVector<QPointF> &values, const ChartMapping &mapping);

    /// The scene positions of the outline.
    QList<QPointF> drawnPoints() const { return positions().toList(); }
    QVector<QPointF> positions() const;
    /// Builds the outline through \a points. Without points the outline stays as it is.
    void setDrawnPoints(const QVector<QPointF> &points);
    QPainterPath path() const;

    /// Where the curve may be drawn, in scene coordinates: for a polar chart the circle in it.
    void setPlotArea(const QRectF &area);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// Pixels of the scene; a selected curve is drawn wider.
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
    /// Holds the mouse, pressed at the scene position \a position, as if the press had come here.
    void takePress(const QPointF &position);
    /// Is selected by a press, and tells so.
    void select();

    /// The highest scene position of the drawn curve in the plot area, if any of it is there.
    std::optional<QPointF> highestPoint() const;

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    bool contains(const QPointF &point) const override;
    bool collidesWithPath(const QPainterPath &path, Qt::ItemSelectionMode mode) const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

signals:
    /// A press selects this curve.
    void selectPathId(int pathId);
    /// The curve is dragged out of its chart (false), or the drag is over (true).
    void setAcceptDropsStatus(bool status);

public slots:
    /// The images of the value points, mirrored across the line through \a point1 and \a point2.
    QList<QPointF> getSymmetricPoint(QPointF point1, QPointF point2);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;

private:
    /// What is drawn from.
    struct Outline
    {
        QVector<QPointF> points;             ///< chart values, or without a mapping scene positions
        std::optional<ChartMapping> mapping; ///< from the values to the scene
    };

    void setOutline(const Outline &outline);
    void measure();
    const QVector<QLineF> &segments(double pixelsPerUnit) const;
    const QVector<QLineF> &segments() const { return segments(m_scale > 0.0 ? m_scale : 1.0); }
    void drawPixels(QPainter &painter, const QVector<CurvePicture::Style> &strokes) const;
    void drawVectors(QPainter &painter, const QVector<CurvePicture::Style> &strokes) const;
    QVector<CurvePicture::Style> strokes() const;
    void forgetDrawing();
    double reach() const;
    void applyPen();
    void dragCurve(QWidget *source);

    int m_pathId;
    int m_chartKind = 0;
    QVector<QPointF> m_valuePoints;
    Outline m_outline;
    CurveIndex m_index; ///< of the outline's points
    QString m_name;
    QColor m_color;
    int m_lineWidth = 1;
    int m_selectionMode = Selectable;
    bool m_curveSelected = false;
    double m_pressX = -1.0; ///< where a press began that may become a drag, -1 for none
    double m_pressY = -1.0;

    QRectF m_plotArea;
    QRectF m_extent;                    ///< what the drawn points reach over
    bool m_clipped = false;             ///< whether the curve leaves the plot area
    mutable QVector<QLineF> m_segments; ///< what is drawn, for m_scale device pixels a unit
    mutable double m_scale = 0.0;
    mutable QVector<CurvePicture> m_pictures;                ///< as painted last
    mutable std::optional<std::optional<QPointF>> m_highest; ///< of the segments, once asked for
};
