#pragma once

#include <QList>
#include <QVector>

#include <array>
#include <functional>

class QColor;
class QGraphicsItem;
class QGraphicsPathItem;
class QPointF;
struct BeamWidth;
struct PatternLineValues;
struct ViewRange;

/// The marker lines of one pattern as items of the chart's scene.
///
/// The items are made without a scene and belong to whoever adds them: a scene deletes those that
/// are on it, the others have to be deleted by the owner of this object.
class PatternLines
{
public:
    /// Maps chart values to a scene position.
    using Mapping = std::function<QPointF(const QPointF &)>;

    PatternLines();

    /// The six lines, peak, 3 dB left, 3 dB right, 3 dB level, side lobe left, side lobe right, and
    /// the edges of the beam at the user's levels as one item.
    QList<QGraphicsItem *> items() const;

    void setColor(const QColor &color);

    /// Places the lines. A line is shown only when \a shown is set and its ends lie inside \a axes.
    void update(const PatternLineValues &values, const Mapping &toScene, const ViewRange &axes,
                bool shown);

    /// Places the edges of the main lobe at \a beams: each level from edge to edge, and lines up to
    /// its ends. On a cartesian chart a lobe across the seam is drawn at both ends.
    void updateBeams(const QVector<BeamWidth> &beams, const Mapping &toScene,
                     const ViewRange &axes);

    void hide();

private:
    std::array<QGraphicsPathItem *, 7> m_lines{};
};
