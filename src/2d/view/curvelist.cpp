#include "2d/view/curvelist.h"

#include "2d/data/patternanalysis.h"
#include "2d/scene/callout.h"
#include "2d/scene/chartstage.h"
#include "2d/scene/generatecolors.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/axisranges.h"
#include "2d/view/pathinfo.h"

#include <QGraphicsScene>
#include <QTimer>

#include <algorithm>

CurveList::CurveList(ChartStage &stage, QGraphicsScene &scene, const AxisRanges &ranges)
    : m_stage(stage)
    , m_scene(scene)
    , m_ranges(ranges)
    , m_marks(stage, scene, m_paths, [this] { return m_ranges.inView(m_stage); })
{}

CurveList::~CurveList()
{
    clear();
}

PathInfo *CurveList::selected() const
{
    const auto found = std::find_if(m_paths.cbegin(), m_paths.cend(),
                                    [](const PathInfo *path) { return path->isSelected(); });
    return found == m_paths.cend() ? nullptr : *found;
}

bool CurveList::hasName(const QString &name) const
{
    return std::any_of(m_paths.cbegin(), m_paths.cend(),
                       [&name](const PathInfo *path) { return path->name() == name; });
}

QVector<MyPathItem *> CurveList::pressedAt(const QPointF &place) const
{
    QVector<MyPathItem *> items;
    for (const PathInfo *path : qAsConst(m_paths)) {
        MyPathItem *item = path->pathItem();
        if (!path->isHidden() && item->isVisible() &&
            item->selectionMode() != MyPathItem::NotSelectable && item->hits(place))
            items.append(item);
    }
    return items;
}

bool CurveList::areCovered(const QPointF &place) const
{
    return m_marks.cover(place) ||
           std::any_of(m_paths.cbegin(), m_paths.cend(),
                       [&place](PathInfo *path) { return path->panels().cover(place); });
}

PathInfo *CurveList::add(const QString &name)
{
    const int id = smallestFreeId(m_paths);
    auto *path = new PathInfo(id);
    connect(path, &PathInfo::selectPathId, this, &CurveList::selectionAsked);
    connect(path, &PathInfo::setAcceptDropsStatus, this, &CurveList::acceptDropsAsked);
    path->setColor(curveColor(id));
    {
        const ChartStage::LayoutGuard guard(m_stage); // one layout for the entry and its text
        m_stage.add(path->curve());
        path->pathItem()->setChartKind(m_stage.kind());
        path->setName(name);
        m_stage.setLegendEntry(path->curve(), name, path->color(), false);
    }
    path->addTo(m_scene);
    path->setMarkTableShown(m_markTablesShown);
    if (m_size.isValid())
        path->updataSize(m_size);
    m_paths.insert(id, path);
    connect(path, &PathInfo::lookChanged, this, [this, path] { followLook(*path); });
    return path;
}

void CurveList::remove(int pathId)
{
    PathInfo *path = m_paths.take(pathId);
    if (!path)
        return;
    const QList<int> numbers = path->markIds();
    for (const int number : numbers)
        m_marks.remove(number);
    m_stage.remove(path->curve());
    delete path;
}

void CurveList::clear()
{
    m_marks.clear();
    const QList<int> ids = m_paths.keys();
    for (const int id : ids)
        remove(id);
}

void CurveList::followLook(PathInfo &path)
{
    if (path.isHidden() && path.isSelected())
        emit selectionAsked(0);
    // Hidden curves stay in the legend, so that a click can bring them back.
    m_stage.setLegendEntry(path.curve(), path.name(), path.color(), path.isHidden());
    m_marks.recolor(path);
    if (m_parameterLinesVisible || !path.beamLevels().isEmpty())
        placeLines(path);
    emit lookChanged(path.pathId());
}

void CurveList::refresh(Panels panels)
{
    m_marks.reposition();
    for (PathInfo *path : qAsConst(m_paths)) {
        path->rebuild(m_stage);
        if (m_complete)
            placeLines(*path);
        path->placeMarkTable();
        if (panels == Panels::AllTables)
            path->placeParaTable();
    }
}

ParaInfo CurveList::figures(const PathInfo &path) const
{
    return hasFigures(path) ? path.analysis()->figures : ParaInfo();
}

bool CurveList::hasFigures(const PathInfo &path) const
{
    return path.analysis() && !path.isHidden() && m_stage.hasLegendEntry(path.curve(), path.name());
}

void CurveList::placeLines(PathInfo &path)
{
    path.updateLines(m_stage, m_parameterLinesVisible);
    if (path.getParaTableDataStatus() && hasFigures(path))
        path.updateParaInfo(path.analysis()->figures);
}

void CurveList::catchUpLater()
{
    if (m_catchUpPending)
        return;
    m_catchUpPending = true;
    QTimer::singleShot(0, this, [this] { catchUp(); });
}

void CurveList::catchUp()
{
    m_catchUpPending = false;
    m_marks.reposition();
    for (PathInfo *path : qAsConst(m_paths)) {
        path->catchUp(m_stage);
        if (m_complete)
            placeLines(*path);
    }
}

void CurveList::setParameterLinesVisible(bool visible)
{
    m_parameterLinesVisible = visible;
    for (PathInfo *path : qAsConst(m_paths))
        placeLines(*path);
}

void CurveList::setBeamLevels(int pathId, const QVector<double> &drops)
{
    PathInfo *path = m_paths.value(pathId);
    if (!path || path->beamLevels() == drops)
        return;
    path->setBeamLevels(drops);
    placeLines(*path);
}

void CurveList::setMarkTablesShown(bool shown)
{
    m_markTablesShown = shown;
    for (PathInfo *path : qAsConst(m_paths))
        path->setMarkTableShown(shown);
}

void CurveList::removeMarks(PathInfo &path)
{
    const QList<int> numbers = path.markIds();
    for (const int number : numbers) {
        m_marks.remove(number);
        path.delMarkId(number);
    }
    updateMarkTable(path);
}

PathInfo *CurveList::neighbourOfSelected(int step) const
{
    QList<PathInfo *> shown = m_paths.values();
    shown.erase(std::remove_if(shown.begin(), shown.end(),
                               [](const PathInfo *path) { return path->isHidden(); }),
                shown.end());
    if (shown.isEmpty())
        return nullptr;
    const int now = shown.indexOf(selected());
    if (now < 0)
        return step > 0 ? shown.first() : shown.last();
    return shown[(now + step + shown.size()) % shown.size()];
}

void CurveList::setMarkDeltas(bool on)
{
    m_markDeltas = on;
    for (PathInfo *path : qAsConst(m_paths))
        updateMarkTable(*path);
}

void CurveList::updateMarkTable(PathInfo &path)
{
    path.panels().setDeltas(m_markDeltas);
    path.updateMarkInfo(m_marks.all());
    path.placeMarkTable();
}

void CurveList::updataSize(QSizeF size)
{
    m_size = size;
    for (PathInfo *path : qAsConst(m_paths))
        path->updataSize(size);
}

PlainLook::PlainLook(CurveList &curves)
    : m_curves(curves)
    , m_path(curves.selected())
    , m_mark(curves.marks().selected())
{
    if (m_path)
        m_path->setSelected(false);
    m_curves.marks().select(nullptr);
}

PlainLook::~PlainLook()
{
    if (m_path)
        m_path->setSelected(true);
    if (m_mark)
        m_curves.marks().select(m_mark);
}
