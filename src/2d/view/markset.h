#pragma once

#include "2d/scene/guidelines.h"
#include "2d/scene/mymarkitem.h"

#include <QMap>

#include <functional>
#include <optional>

class ChartStage;
class PathInfo;
struct ViewRange;

QT_BEGIN_NAMESPACE
class QGraphicsScene;
QT_END_NAMESPACE

/// The smallest positive number that is not yet a key of \a taken: a number given back is used
/// again.
template<typename Value>
int smallestFreeId(const QMap<int, Value> &taken)
{
    int id = 1;
    while (taken.contains(id))
        ++id;
    return id;
}

/// The markers of a chart view, by their numbers. A marker belongs to the curve that knows its
/// number.
class MarkSet : public MarkListener
{
public:
    using Paths = QMap<int, PathInfo *>;

    /// All three must outlive this object, which deletes its markers. \a shown tells the range in
    /// view.
    MarkSet(const ChartStage &stage, QGraphicsScene &scene, const Paths &paths,
            std::function<ViewRange()> shown);
    ~MarkSet() override;

    const QMap<int, MyMarkItem *> &all() const { return m_marks; }
    MyMarkItem *selected() const;
    /// Selects \a mark alone; null deselects.
    void select(const MyMarkItem *mark);

    /// Whether one is seen at the scene position \a place, or next to it.
    bool cover(const QPointF &place) const;

    /// Puts a marker under the smallest free number at the scene position \a position.
    MyMarkItem *add(const QPointF &position, const QColor &color);
    void remove(int markId);
    void clear();

    /// Puts every marker where its value is now; those out of view or of hidden curves are hidden.
    void reposition();
    /// Gives the markers of \a path its colour, and shows them while it is shown.
    void recolor(const PathInfo &path);
    /// Puts the markers of \a path onto its curve, each at its own x.
    void snap(const PathInfo &path);

    /// The point of the curve at \a x; round a polar chart in that direction.
    std::optional<QPointF> pointAt(const PathInfo &path, double x) const;

    /// Selects the marker after the selected one (\a step 1) or before it (-1), in their order.
    void selectNext(int step);
    /// Moves the selected marker along its curve by \a part of the range in view.
    void moveSelected(double part);

    void markPressed(MyMarkItem &mark) override;
    /// Moves the marker along its curve, as far as the curve and the range in view go.
    void markDragged(MyMarkItem &mark, const QPointF &position) override;

private:
    void moveTo(MyMarkItem &mark, double x);
    PathInfo *pathOf(const MyMarkItem &mark) const;
    void place(MyMarkItem &mark);
    /// Leads from the selected marker, if it is seen, to the axes.
    void placeGuides();

    const ChartStage &m_stage;
    QGraphicsScene &m_scene;
    const Paths &m_paths;
    std::function<ViewRange()> m_shown;
    QMap<int, MyMarkItem *> m_marks;
    GuideLines m_guides;
};
