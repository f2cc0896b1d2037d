// What the mouse, the keyboard and the context menu do to a GraphicsBase.

#include "2d/data/curvemaths.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/chartmenu.h"
#include "2d/view/chartmenustate.h"
#include "2d/view/chartviewstate.h"
#include "2d/view/curveexchange.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/managergraph.h"
#include "2d/view/pathinfo.h"
#include "widgets/messagesimpledialog.h"

#include <QApplication>
#include <QChart>
#include <QClipboard>
#include <QDebug>
#include <QDropEvent>
#include <QGraphicsScene>
#include <QMimeData>
#include <QMouseEvent>
#include <QValueAxis>
#include <QWheelEvent>

#include <array>

using Panels = ChartViewState::Panels;

namespace {

constexpr double zoomStep = 1.05;
constexpr double keyStep = 0.1;

} // namespace

void GraphicsBase::setLimitXY(const QPointF &centre, const double &factor)
{
    ViewRange &shown = m_state->shown;
    shown = shown.scaledAbout(centre, factor);
    qWarning() << "min max.." << shown.xMin << shown.xMax << shown.yMin << shown.yMax << factor;
}

void GraphicsBase::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (!m_state->zoomMode || !chart())
        return;
    const QPointF centre = toValue(event->position().toPoint());
    // Turning the wheel forward shows more: it zooms out, by intent.
    const double factor = event->angleDelta().y() >= 1 ? zoomStep : 1.0 / zoomStep;
    qWarning() << "point .." << centre;
    zoomAbout(centre, factor);
}

void GraphicsBase::zoomAbout(const QPointF &centre, double factor)
{
    ChartViewState &state = *m_state;
    state.zoomCentre = centre;
    state.zoomFactor = factor;
    setLimitXY(centre, factor);
    state.applyAxes();
    state.refresh(Panels::AllTables);
    for (PathInfo *path : qAsConst(state.paths)) {
        state.marks.snap(*path);
        path->rebuild(state.stage);
    }
}

void GraphicsBase::showRange(const ViewRange &range)
{
    m_state->shown = range;
    m_state->applyAxes();
    m_state->refresh(Panels::AllTables);
}

void GraphicsBase::zoomSlot()
{
    m_state->zoomMode = true;
    viewport()->setCursor(Qt::CrossCursor);
}

void GraphicsBase::panSlot()
{
    m_state->panMode = true;
    viewport()->setCursor(Qt::OpenHandCursor);
}

void GraphicsBase::resetSlot()
{
    m_state->zoomMode = false;
    m_state->panMode = false;
    showRange(m_state->home);
    viewport()->setCursor(Qt::ArrowCursor);
}

void GraphicsBase::panResetSlot()
{
    m_state->panMode = false;
    showRange(m_state->shown);
}

void GraphicsBase::mousePressEvent(QMouseEvent *event)
{
    if (!m_state->panMode) {
        QGraphicsView::mousePressEvent(event);
        pressCurves(event->pos());
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    m_state->panAnchor = toValue(event->localPos().toPoint());
    viewport()->setCursor(Qt::ClosedHandCursor);
    qDebug() << "leftbtn press: " << m_state->panAnchor;
}

/// A press can hit several curves; the last one keeps the selection.
void GraphicsBase::pressCurves(const QPoint &position)
{
    const QPointF place = mapToScene(position);
    const QList<PathInfo *> candidates = m_state->paths.values();
    for (const PathInfo *path : candidates) {
        MyPathItem *item = path->pathItem();
        if (!path->isHidden() && item->isVisible() && item->hits(place) &&
            item->selectionMode() != MyPathItem::NotSelectable)
            emit item->selectPathId(path->pathId());
    }
}

// Release and move go on only to an item that holds the mouse: a marker, a curve that is dragged
// out, a table that is moved. The view itself does nothing with them.
void GraphicsBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_state->panMode && scene()->mouseGrabberItem())
        QGraphicsView::mouseReleaseEvent(event);
}

void GraphicsBase::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_state->panMode && scene()->mouseGrabberItem())
        QGraphicsView::mouseMoveEvent(event);
}

void GraphicsBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    emit doubleClick(this);
}

void GraphicsBase::keyPressEvent(QKeyEvent *event)
{
    const ViewRange range = m_state->shown;
    const QPointF centre((range.xMin + range.xMax) * 0.5, (range.yMin + range.yMax) * 0.5);
    if (event->matches(QKeySequence::Copy)) {
        copySlot();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        pasteSlot();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        return showRange(range.movedBy(-keyStep, 0.0));
    case Qt::Key_Right:
        return showRange(range.movedBy(keyStep, 0.0));
    case Qt::Key_Down:
        return showRange(range.movedBy(0.0, -keyStep));
    case Qt::Key_Up:
        return showRange(range.movedBy(0.0, keyStep));
    case Qt::Key_Plus:
        return zoomAbout(centre, 1.0 / zoomStep);
    case Qt::Key_Minus:
        return zoomAbout(centre, zoomStep);
    case Qt::Key_Home:
        return resetSlot();
    case Qt::Key_Delete:
        return deleteMarkSlot();
    default:
        QGraphicsView::keyPressEvent(event);
    }
}

void GraphicsBase::updatePathSelection(int pathId)
{
    const PathInfo *before = selectedPath();
    for (PathInfo *path : qAsConst(m_state->paths))
        path->setSelected(path->pathId() == pathId);
    const PathInfo *now = selectedPath();
    if (m_state->tableProxy->getParaTableDataStatus()) {
        if (now && !now->isHidden())
            emit updateParaInfoToTable(patternParameters(pathId));
        else
            emit clearParaInfoToTable();
    } else if (before && before != now) {
        emit clearParaInfoToTable();
    }
    emit selectionChanged();
}

void GraphicsBase::deselect()
{
    m_state->marks.select(nullptr);
    PathInfo *path = selectedPath();
    if (!path)
        return;
    path->clearSelection();
    emit clearParaInfoToTable();
    emit selectionChanged();
}

void GraphicsBase::clearSelectionSlot()
{
    deselect();
}

MyMarkItem *GraphicsBase::addMark(const QPointF &position, const QColor &color)
{
    return m_state->marks.add(position, color);
}

void GraphicsBase::addMarkSlot()
{
    ChartViewState &state = *m_state;
    if (!chart() || state.paths.isEmpty())
        return;
    const double x = toValue(state.menuPosition).x();
    const ViewRange axes = state.stage.axisRange();
    if (x < axes.xMin || x > axes.xMax)
        return;
    PathInfo *path = selectedPath();
    if (!path) {
        MessageSimpleDialog::showMessage(tr("Please select the target graph"), 1, window());
        return;
    }
    const std::optional<double> y = interpolateAt(path->points(), x);
    if (!y || !shownRange().contains({x, *y}))
        return;
    MyMarkItem *mark = addMark(toScene({x, *y}), path->color());
    mark->setValuePoint({x, *y});
    path->addMarkId(mark->markId());
    path->updateMarkInfo(state.marks.all());
    path->placeMarkTable();
}

void GraphicsBase::deleteMarkSlot()
{
    const MyMarkItem *mark = selectedMark();
    if (!mark)
        return;
    const int number = mark->markId();
    qDebug().noquote() << QStringLiteral("Delete M%1").arg(number);
    m_state->marks.remove(number);
    for (PathInfo *path : qAsConst(m_state->paths)) {
        if (!path->containsMarkid(number))
            continue;
        path->delMarkId(number);
        path->updateMarkInfo(m_state->marks.all());
        path->placeMarkTable();
    }
}

void GraphicsBase::showOrHideMarkTableSlot()
{
    m_state->markTablesShown = !m_state->markTablesShown;
    for (PathInfo *path : qAsConst(m_state->paths))
        path->setMarkTableShown(m_state->markTablesShown);
}

void GraphicsBase::showOrHideParameterTableSlot()
{
    if (m_state->tableProxy->getParaTableDataStatus()) {
        emit clearParaInfoToTable();
        return;
    }
    const PathInfo *path = selectedPath();
    if (!path)
        return;
    m_state->tableProxy->setPos(m_state->stage.plotArea().topRight() -
                                QPointF(m_state->tableProxy->size().width() + 8.0, -8.0));
    emit updateParaInfoToTable(patternParameters(path->pathId()));
}

ChartSituation GraphicsBase::situation() const
{
    ChartSituation now;
    now.curveSelected = selectedPath() != nullptr;
    now.updateFinished = m_state->updateFinished;
    now.markTablesShown = m_state->markTablesShown;
    now.parameterTableShown = m_state->tableProxy->getParaTableDataStatus();
    now.markCount = marks().size();
    now.clipboardText = QApplication::clipboard()->text();
    return now;
}

void GraphicsBase::showMenu(const QPoint &position)
{
    viewport()->setCursor(Qt::ArrowCursor);
    m_state->zoomMode = false;
    m_state->panMode = false;
    m_state->symmetryApplied = false;
    m_state->menuPosition = mapToScene(position);

    using Entry = ChartMenu::Entry;
    using Slot = void (GraphicsBase::*)();
    static const std::array<std::pair<Entry, Slot>, 16> connections{{
        {Entry::Copy, &GraphicsBase::copySlot},
        {Entry::Paste, &GraphicsBase::pasteSlot},
        {Entry::AddMark, &GraphicsBase::addMarkSlot},
        {Entry::DeleteMark, &GraphicsBase::deleteMarkSlot},
        {Entry::MarkTable, &GraphicsBase::showOrHideMarkTableSlot},
        {Entry::ParameterTable, &GraphicsBase::showOrHideParameterTableSlot},
        {Entry::Import, &GraphicsBase::importGraphicsDataSlot},
        {Entry::ExportData, &GraphicsBase::exportGraphicsDataSlot},
        {Entry::ExportImage, &GraphicsBase::exportGraphicsImageSlot},
        {Entry::Manager, &GraphicsBase::managerGraphicsSlot},
        {Entry::ClearSelection, &GraphicsBase::clearSelectionSlot},
        {Entry::Zoom, &GraphicsBase::zoomSlot},
        {Entry::Reset, &GraphicsBase::resetSlot},
        {Entry::Pan, &GraphicsBase::panSlot},
        {Entry::Symmetry, &GraphicsBase::SymmetrySlot},
        {Entry::SymmetryReset, &GraphicsBase::SymmetryResetSlot},
    }};
    ChartMenu menu(chartMenuState(situation()), this);
    for (const auto &[entry, slot] : connections)
        connect(menu.entry(entry), &QAction::triggered, this, slot);
    menu.exec(QCursor::pos());
}

void GraphicsBase::copySlot()
{
    CurveExchange(*this).copy();
}

void GraphicsBase::pasteSlot()
{
    CurveExchange(*this).paste();
}

void GraphicsBase::importGraphicsDataSlot()
{
    CurveExchange(*this).importData();
}

void GraphicsBase::exportGraphicsDataSlot()
{
    CurveExchange(*this).exportData();
}

void GraphicsBase::exportGraphicsImageSlot()
{
    CurveExchange(*this).exportImage();
}

void GraphicsBase::managerGraphicsSlot()
{
    ManagerGraph manager(window()); // the view's own style sheet would reach a dialog below it
    connect(&manager, &ManagerGraph::updataResize, this, &GraphicsBase::updataResize);
    manager.updatePathInfo(m_state->paths);
    manager.exec();
}

void GraphicsBase::setAcceptDropsStatus(bool status)
{
    setAcceptDrops(status);
}

void GraphicsBase::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasText())
        event->acceptProposedAction();
}

void GraphicsBase::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->mimeData()->hasText())
        event->acceptProposedAction();
}

void GraphicsBase::dropEvent(QDropEvent *event)
{
    CurveExchange(*this).drop(event->mimeData()->text());
    reconnectLegendMarkers();
    event->acceptProposedAction();
}
