#include "2d/view/markset.h"

#include "2d/data/curvemaths.h"
#include "2d/scene/chartstage.h"
#include "2d/view/pathinfo.h"

#include <QDebug>
#include <QGraphicsScene>

#include <algorithm>

MarkSet::MarkSet(const ChartStage &stage, QGraphicsScene &scene, const Paths &paths,
                 std::function<ViewRange()> shown)
    : m_stage(stage)
    , m_scene(scene)
    , m_paths(paths)
    , m_shown(std::move(shown))
    , m_guides(scene)
{}

MarkSet::~MarkSet()
{
    clear();
}

MyMarkItem *MarkSet::selected() const
{
    const auto found = std::find_if(m_marks.cbegin(), m_marks.cend(),
                                    [](const MyMarkItem *mark) { return mark->isMarkSelected(); });
    return found == m_marks.cend() ? nullptr : *found;
}

void MarkSet::select(const MyMarkItem *mark)
{
    for (MyMarkItem *each : qAsConst(m_marks))
        each->setMarkSelected(each == mark);
    placeGuides();
}

bool MarkSet::cover(const QPointF &place) const
{
    return std::any_of(m_marks.cbegin(), m_marks.cend(), [&place](const MyMarkItem *mark) {
        return mark->isVisible() && mark->sceneBoundingRect().contains(place);
    });
}

MyMarkItem *MarkSet::add(const QPointF &position, const QColor &color)
{
    const int number = smallestFreeId(m_marks);
    qDebug().noquote() << QStringLiteral("Add M%1").arg(number);
    auto *mark = new MyMarkItem(number, color, *this);
    mark->setValuePoint(m_stage.toValue(position));
    mark->setTip(position);
    m_scene.addItem(mark);
    m_marks.insert(number, mark);
    return mark;
}

void MarkSet::remove(int markId)
{
    delete m_marks.take(markId);
    placeGuides();
}

void MarkSet::clear()
{
    qDeleteAll(m_marks);
    m_marks.clear();
    placeGuides();
}

void MarkSet::reposition()
{
    for (MyMarkItem *mark : qAsConst(m_marks))
        place(*mark);
    placeGuides();
}

void MarkSet::place(MyMarkItem &mark)
{
    mark.setTip(m_stage.toScene(mark.valuePoint()));
    const PathInfo *path = pathOf(mark);
    mark.setVisible(m_shown().contains(mark.valuePoint()) && !(path && path->isHidden()));
}

void MarkSet::placeGuides()
{
    const MyMarkItem *mark = selected();
    if (mark && mark->isVisible())
        m_guides.show(mark->valuePoint(), mark->color(), m_stage, m_shown());
    else
        m_guides.hide();
}

void MarkSet::recolor(const PathInfo &path)
{
    const QList<int> numbers = path.markIds();
    for (const int number : numbers) {
        if (MyMarkItem *mark = m_marks.value(number))
            mark->setColor(path.color());
    }
    reposition();
}

void MarkSet::snap(const PathInfo &path)
{
    const QVector<QPointF> points = path.points();
    const QList<int> numbers = path.markIds();
    for (const int number : numbers) {
        MyMarkItem *mark = m_marks.value(number);
        if (!mark)
            continue;
        const double x = mark->valuePoint().x();
        if (const std::optional<double> y = interpolateAt(points, x)) {
            mark->setValuePoint({x, *y});
            place(*mark);
        }
    }
    placeGuides();
}

PathInfo *MarkSet::pathOf(const MyMarkItem &mark) const
{
    for (PathInfo *path : m_paths) {
        if (path->containsMarkid(mark.markId()))
            return path;
    }
    return nullptr;
}

std::optional<QPointF> MarkSet::pointAt(const PathInfo &path, double x) const
{
    if (m_shown().isRound)
        return pointInDirection(path.points(), x);
    const std::optional<double> y = interpolateAt(path.points(), x);
    return y ? std::optional(QPointF(x, *y)) : std::nullopt;
}

void MarkSet::markPressed(MyMarkItem &mark)
{
    select(&mark);
}

void MarkSet::markDragged(MyMarkItem &mark, const QPointF &position)
{
    moveTo(mark, m_stage.toValue(position).x());
}

void MarkSet::selectNext(int step)
{
    const QList<MyMarkItem *> marks = m_marks.values();
    if (marks.isEmpty())
        return;
    const int now = marks.indexOf(selected());
    const int next = now < 0 ? (step > 0 ? 0 : marks.size() - 1) : now + step;
    select(marks[(next + marks.size()) % marks.size()]);
}

void MarkSet::moveSelected(double part)
{
    if (MyMarkItem *mark = selected()) {
        const ViewRange shown = m_shown();
        moveTo(*mark, mark->valuePoint().x() + part * (shown.xMax - shown.xMin));
    }
}

void MarkSet::moveTo(MyMarkItem &mark, double wanted)
{
    PathInfo *path = pathOf(mark);
    if (!path)
        return;
    const std::optional<HorizontalExtent> extent = horizontalExtent(path->points());
    if (!extent)
        return;
    const ViewRange shown = m_shown();
    double x = wanted;
    if (!shown.isRound) {
        const double least = std::max(extent->least, shown.xMin);
        const double greatest = std::min(extent->greatest, shown.xMax);
        if (least > greatest)
            return;
        x = qBound(least, x, greatest);
    }
    const std::optional<QPointF> point = pointAt(*path, x);
    if (!point || !shown.contains(*point))
        return;
    mark.setValuePoint(*point);
    place(mark);
    placeGuides();
    path->updateMarkInfo(m_marks);
}
