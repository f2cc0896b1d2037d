// What the mouse, the keyboard and the context menu do to a GraphicsBase.

#include "2d/scene/chartstage.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/chartmenu.h"
#include "2d/view/curvelist.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/managergraph.h"
#include "2d/view/pathinfo.h"

#include <QApplication>
#include <QChart>
#include <QClipboard>
#include <QDebug>
#include <QDropEvent>
#include <QGraphicsScene>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <array>

using Panels = CurveList::Panels;

namespace {

constexpr double zoomStep = 1.05;
constexpr double keyStep = 0.1;

} // namespace

void GraphicsBase::setLimitXY(const QPointF &centre, const double &factor)
{
    ViewRange &shown = m_ranges.shown;
    shown = shown.scaledAbout(centre, factor);
    qWarning() << "min max.." << shown.xMin << shown.xMax << shown.yMin << shown.yMax << factor;
}

void GraphicsBase::wheelEvent(QWheelEvent *event)
{
    event->accept();
    const bool zooms = m_zoomMode || event->modifiers().testFlag(Qt::ControlModifier);
    if (!zooms || !chart())
        return;
    const QPointF centre = toValue(event->position().toPoint());
    // Turning the wheel forward zooms out, as in map programs.
    const double factor = event->angleDelta().y() >= 1 ? zoomStep : 1.0 / zoomStep;
    qWarning() << "point .." << centre;
    zoomAbout(centre, factor);
}

void GraphicsBase::zoomAbout(const QPointF &centre, double factor)
{
    setLimitXY(centre, factor);
    showRange(m_ranges.shown);
    for (PathInfo *path : paths()) {
        m_curves->marks().snap(*path);
        path->rebuild(*m_stage);
    }
}

void GraphicsBase::showRange(const ViewRange &range)
{
    m_ranges.shown = range;
    m_ranges.apply(*m_stage);
    m_curves->refresh(Panels::AllTables);
    emit rangeChanged();
}

void GraphicsBase::zoomSlot()
{
    m_zoomMode = true;
    viewport()->setCursor(Qt::CrossCursor);
}

void GraphicsBase::panSlot()
{
    m_panMode = true;
    viewport()->setCursor(Qt::OpenHandCursor);
}

void GraphicsBase::resetSlot()
{
    m_zoomMode = false;
    m_panMode = false;
    showRange(m_ranges.home);
    viewport()->setCursor(Qt::ArrowCursor);
}

void GraphicsBase::panResetSlot()
{
    m_panMode = false;
    showRange(m_ranges.shown);
}

/// Moves the range so that the value held is under \a position.
void GraphicsBase::panTo(const QPointF &position)
{
    const QPointF way = *m_panAnchor - toValue(position);
    ViewRange range = m_ranges.shown;
    if (m_stage->hasXRange()) {
        range.xMin += way.x();
        range.xMax += way.x();
    }
    range.yMin += way.y();
    range.yMax += way.y();
    showRange(range);
}

void GraphicsBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && chart()) {
        m_panAnchor = toValue(event->localPos());
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (!m_panMode) {
        QGraphicsView::mousePressEvent(event);
        pressCurves(event->pos());
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    viewport()->setCursor(Qt::ClosedHandCursor);
    qDebug() << "leftbtn press: " << toValue(event->localPos().toPoint());
}

/// A press can hit several curves; the last one keeps the selection.
void GraphicsBase::pressCurves(const QPoint &position)
{
    const QPointF place = mapToScene(position);
    const QList<PathInfo *> candidates = paths().values();
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
    if (event->button() == Qt::MiddleButton && m_panAnchor) {
        m_panAnchor.reset();
        viewport()->setCursor(m_panMode    ? Qt::OpenHandCursor
                              : m_zoomMode ? Qt::CrossCursor
                                           : Qt::ArrowCursor);
        return;
    }
    if (!m_panMode && scene()->mouseGrabberItem())
        QGraphicsView::mouseReleaseEvent(event);
}

void GraphicsBase::mouseMoveEvent(QMouseEvent *event)
{
    if (m_panAnchor)
        panTo(event->localPos());
    else if (!m_panMode && scene()->mouseGrabberItem())
        QGraphicsView::mouseMoveEvent(event);
}

void GraphicsBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    emit doubleClick(this);
}

void GraphicsBase::keyPressEvent(QKeyEvent *event)
{
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    if (event->matches(QKeySequence::Copy))
        copySlot();
    else if (event->matches(QKeySequence::Paste))
        pasteSlot();
    else if (!(withControl ? pressControlKey(event->key()) : pressKey(event->key())))
        QGraphicsView::keyPressEvent(event);
}

/// With Control the keys act on markers.
bool GraphicsBase::pressControlKey(int key)
{
    constexpr double markStep = 0.005;
    switch (key) {
    case Qt::Key_Left:
        m_curves->marks().moveSelected(-markStep);
        return true;
    case Qt::Key_Right:
        m_curves->marks().moveSelected(markStep);
        return true;
    case Qt::Key_PageUp:
        m_curves->marks().selectNext(-1);
        return true;
    case Qt::Key_PageDown:
        m_curves->marks().selectNext(1);
        return true;
    default:
        return false;
    }
}

bool GraphicsBase::pressKey(int key)
{
    const ViewRange range = m_ranges.shown;
    const QPointF centre((range.xMin + range.xMax) * 0.5, (range.yMin + range.yMax) * 0.5);
    switch (key) {
    case Qt::Key_Left:
        showRange(range.movedBy(-keyStep, 0.0));
        return true;
    case Qt::Key_Right:
        showRange(range.movedBy(keyStep, 0.0));
        return true;
    case Qt::Key_Down:
        showRange(range.movedBy(0.0, -keyStep));
        return true;
    case Qt::Key_Up:
        showRange(range.movedBy(0.0, keyStep));
        return true;
    case Qt::Key_Plus:
        zoomAbout(centre, 1.0 / zoomStep);
        return true;
    case Qt::Key_Minus:
        zoomAbout(centre, zoomStep);
        return true;
    case Qt::Key_Home:
        resetSlot();
        return true;
    case Qt::Key_Delete:
        deleteMarkSlot();
        return true;
    case Qt::Key_Insert:
        addMarkAtHighest();
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (const PathInfo *path = m_curves->neighbourOfSelected(key == Qt::Key_PageUp ? -1 : 1))
            updatePathSelection(path->pathId());
        return true;
    default:
        return false;
    }
}

/// The scene would keep the tabulator among its tables, none of which takes a key.
bool GraphicsBase::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
            return focusNextPrevChild(key == Qt::Key_Tab);
    }
    return QGraphicsView::event(event);
}

void GraphicsBase::focusInEvent(QFocusEvent *event)
{
    QGraphicsView::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    m_focusShown = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason;
    viewport()->update();
}

void GraphicsBase::focusOutEvent(QFocusEvent *event)
{
    QGraphicsView::focusOutEvent(event);
    m_focusShown = false;
    viewport()->update();
}

void GraphicsBase::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    if (!m_focusShown)
        return;
    constexpr double width = 2.0;
    QPainter painter(viewport());
    painter.setPen(QPen(QColor(10, 134, 214), width));
    painter.drawRect(QRectF(viewport()->rect()).adjusted(1.0, 1.0, -1.0, -1.0));
}

void GraphicsBase::paintPicture(QPainter &painter, const QRectF &target, const QRect &source)
{
    const PlainLook look(*m_curves);
    render(&painter, target, source);
}

QPixmap GraphicsBase::picture()
{
    const PlainLook look(*m_curves);
    const QScopedValueRollback<bool> withoutFocus(m_focusShown, false);
    return grab();
}

void GraphicsBase::updatePathSelection(int pathId)
{
    const PathInfo *before = selectedPath();
    for (PathInfo *path : paths())
        path->setSelected(path->pathId() == pathId);
    const PathInfo *now = selectedPath();
    if (m_tableProxy->getParaTableDataStatus()) {
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
    m_curves->marks().select(nullptr);
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

void GraphicsBase::showOrHideParameterTableSlot()
{
    if (m_tableProxy->getParaTableDataStatus()) {
        emit clearParaInfoToTable();
        return;
    }
    const PathInfo *path = selectedPath();
    if (!path)
        return;
    placeFigures();
    emit updateParaInfoToTable(patternParameters(path->pathId()));
}

/// Keeps the figures of the selected curve at the right of the plot area, or where the user has
/// moved them.
void GraphicsBase::placeFigures()
{
    constexpr double gap = 8.0;
    m_tableProxy->place(m_stage->plotArea().topRight() -
                            QPointF(m_tableProxy->size().width() + gap, -gap),
                        sceneRect());
}

ChartSituation GraphicsBase::situation() const
{
    ChartSituation now;
    now.curveSelected = selectedPath() != nullptr;
    now.updateFinished = m_curves->areComplete();
    now.markTablesShown = m_curves->markTablesShown();
    now.parameterTableShown = m_tableProxy->getParaTableDataStatus();
    now.markCount = marks().size();
    now.clipboardText = QApplication::clipboard()->text();
    return now;
}

void GraphicsBase::showMenu(const QPoint &position)
{
    viewport()->setCursor(Qt::ArrowCursor);
    m_zoomMode = false;
    m_panMode = false;
    m_menuPosition = mapToScene(position);

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
    m_exchange.copy();
}

void GraphicsBase::pasteSlot()
{
    m_exchange.paste();
}

void GraphicsBase::importGraphicsDataSlot()
{
    m_exchange.importData();
}

void GraphicsBase::exportGraphicsDataSlot()
{
    m_exchange.exportData();
}

void GraphicsBase::exportGraphicsImageSlot()
{
    m_exchange.exportImage();
}

void GraphicsBase::managerGraphicsSlot()
{
    ManagerGraph manager(window()); // the view's own style sheet would reach a dialog below it
    connect(&manager, &ManagerGraph::updataResize, this, &GraphicsBase::updataResize);
    manager.updatePathInfo(paths());
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
    m_exchange.drop(event->mimeData()->text());
    reconnectLegendMarkers();
    event->acceptProposedAction();
}
