// The markers of a GraphicsBase.

#include "2d/scene/chartstage.h"
#include "2d/view/curvelist.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"
#include "widgets/messagesimpledialog.h"

#include <QDebug>

MyMarkItem *GraphicsBase::addMark(const QPointF &position, const QColor &color)
{
    return m_curves->marks().add(position, color);
}

void GraphicsBase::addMarkSlot()
{
    if (!chart() || paths().isEmpty())
        return;
    const double x = toValue(m_menuPosition).x();
    const ViewRange axes = m_stage->axisRange();
    if (!axes.isRound && (x < axes.xMin || x > axes.xMax))
        return;
    PathInfo *path = selectedPath();
    if (!path) {
        MessageSimpleDialog::showMessage(tr("Please select the target graph"), 1, window());
        return;
    }
    addMarkAt(*path, x);
}

void GraphicsBase::addMarkAt(PathInfo &path, double x)
{
    const std::optional<QPointF> place = m_curves->marks().pointAt(path, x);
    if (!place || !shownRange().contains(*place))
        return;
    MyMarkItem *mark = addMark(toScene(*place), path.color());
    mark->setValuePoint(*place);
    path.addMarkId(mark->markId());
    m_curves->updateMarkTable(path);
}

/// What the keyboard offers instead of a place: the highest point in view, from where it is moved.
void GraphicsBase::addMarkAtHighest()
{
    PathInfo *path = selectedPath();
    if (!path)
        return;
    const ViewRange shown = shownRange();
    const QVector<QPointF> points = path->points();
    const QPointF *highest = nullptr;
    for (const QPointF &point : points) {
        if (shown.contains(point) && (!highest || point.y() > highest->y()))
            highest = &point;
    }
    if (!highest)
        return;
    const QList<int> before = marks().keys();
    addMarkAt(*path, highest->x());
    for (const MyMarkItem *mark : marks()) {
        if (!before.contains(mark->markId()))
            m_curves->marks().select(mark);
    }
}

bool GraphicsBase::jumpMark(MarkJump jump)
{
    PathInfo *path = selectedPath();
    if (!path)
        return false;
    MyMarkItem *mark = selectedMark();
    if (mark && !path->containsMarkid(mark->markId()))
        mark = nullptr;
    const std::optional<double> from = mark ? std::optional(mark->valuePoint().x()) : std::nullopt;
    const std::optional<double> target = jumpTarget(path->points(), jump, from);
    if (!target)
        return false;
    std::optional<QPointF> place;
    for (const double turn : {0.0, -360.0, 360.0}) {
        if (!place)
            place = m_curves->marks().pointAt(*path, *target + turn);
    }
    if (!place)
        return false;
    if (!mark) {
        mark = addMark(toScene(*place), path->color());
        path->addMarkId(mark->markId());
    }
    mark->setValuePoint(*place);
    m_curves->marks().reposition();
    m_curves->marks().select(mark);
    m_curves->updateMarkTable(*path);
    return true;
}

void GraphicsBase::setMarkDeltas(bool on)
{
    m_curves->setMarkDeltas(on);
}

void GraphicsBase::deleteMarkSlot()
{
    const MyMarkItem *mark = selectedMark();
    if (!mark)
        return;
    const int number = mark->markId();
    qDebug().noquote() << QStringLiteral("Delete M%1").arg(number);
    m_curves->marks().remove(number);
    for (PathInfo *path : paths()) {
        if (!path->containsMarkid(number))
            continue;
        path->delMarkId(number);
        m_curves->updateMarkTable(*path);
    }
}

void GraphicsBase::showOrHideMarkTableSlot()
{
    m_curves->setMarkTablesShown(!m_curves->markTablesShown());
}
