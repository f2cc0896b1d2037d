#include "2d/view/markediting.h"

#include "2d/scene/chartstage.h"
#include "2d/view/axisranges.h"
#include "2d/view/curvelist.h"
#include "2d/view/pathinfo.h"

#include <QDebug>

void MarkEditing::add(PathInfo &path, double x)
{
    const std::optional<QPointF> place = m_curves.marks().pointAt(path, x);
    if (!place || !m_ranges.inView(m_stage).contains(*place))
        return;
    MyMarkItem *mark = m_curves.marks().add(m_stage.toScene(*place), path.color());
    mark->setValuePoint(*place);
    path.addMarkId(mark->markId());
    m_curves.updateMarkTable(path);
}

void MarkEditing::addAtHighest()
{
    PathInfo *path = m_curves.selected();
    if (!path)
        return;
    const ViewRange shown = m_ranges.inView(m_stage);
    const QVector<QPointF> points = path->points();
    const QPointF *highest = nullptr;
    for (const QPointF &point : points) {
        if (shown.contains(point) && (!highest || point.y() > highest->y()))
            highest = &point;
    }
    if (!highest)
        return;
    const QList<int> before = m_curves.marks().all().keys();
    add(*path, highest->x());
    for (const MyMarkItem *mark : m_curves.marks().all()) {
        if (!before.contains(mark->markId()))
            m_curves.marks().select(mark);
    }
}

bool MarkEditing::jump(MarkJump jump)
{
    PathInfo *path = m_curves.selected();
    if (!path)
        return false;
    MarkSet &marks = m_curves.marks();
    MyMarkItem *mark = marks.selected();
    if (mark && !path->containsMarkid(mark->markId()))
        mark = nullptr;
    const std::optional<double> from = mark ? std::optional(mark->valuePoint().x()) : std::nullopt;
    const std::optional<double> target = jumpTarget(path->points(), jump, from);
    if (!target)
        return false;
    std::optional<QPointF> place;
    for (const double turn : {0.0, -360.0, 360.0}) {
        if (!place)
            place = marks.pointAt(*path, *target + turn);
    }
    if (!place)
        return false;
    if (!mark) {
        mark = marks.add(m_stage.toScene(*place), path->color());
        path->addMarkId(mark->markId());
    }
    mark->setValuePoint(*place);
    marks.reposition();
    marks.select(mark);
    m_curves.updateMarkTable(*path);
    return true;
}

void MarkEditing::removeSelected()
{
    const MyMarkItem *mark = m_curves.marks().selected();
    if (!mark)
        return;
    const int number = mark->markId();
    qDebug().noquote() << QStringLiteral("Delete M%1").arg(number);
    m_curves.marks().remove(number);
    for (PathInfo *path : m_curves.paths()) {
        if (!path->containsMarkid(number))
            continue;
        path->delMarkId(number);
        m_curves.updateMarkTable(*path);
    }
}
