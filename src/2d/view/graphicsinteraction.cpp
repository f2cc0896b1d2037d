// What the mouse, the keyboard and the context menu do to a GraphicsBase.

#include "2d/scene/chartstage.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/scene/tablepanel.h"
#include "2d/view/chartmenu.h"
#include "2d/view/curvelist.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/managergraph.h"
#include "2d/view/markediting.h"
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
#include <QWheelEvent>

#include <array>

using Panels = CurveList::Panels;

void GraphicsBase::setLimitXY(const QPointF &centre, const double &factor)
{
    ViewRange &shown = m_ranges.shown;
    shown = shown.scaledAbout(centre, factor);
    qWarning() << "min max.." << shown.xMin << shown.xMax << shown.yMin << shown.yMax << factor;
}

void GraphicsBase::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (!m_steering.wheelZooms(event->modifiers()) || !chart())
        return;
    const QPointF centre = toValue(event->position().toPoint());
    qWarning() << "point .." << centre;
    zoomAbout(centre, ChartSteering::zoomFactorOfWheel(event->angleDelta().y()));
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
    m_steering.startZooming();
    viewport()->setCursor(Qt::CrossCursor);
}

void GraphicsBase::panSlot()
{
    m_steering.startPanning();
    viewport()->setCursor(Qt::OpenHandCursor);
}

void GraphicsBase::resetSlot()
{
    m_steering.stop();
    showRange(m_ranges.home);
    viewport()->setCursor(Qt::ArrowCursor);
}

void GraphicsBase::panResetSlot()
{
    m_steering.stopPanning();
    showRange(m_ranges.shown);
}

void GraphicsBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && chart()) {
        m_steering.hold(toValue(event->localPos()));
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (!m_steering.isPanning()) {
        QGraphicsView::mousePressEvent(event);
        if (dynamic_cast<const TablePanel *>(itemAt(event->pos())))
            return; // what lies under a table is not meant
        pressCurves(event->pos());
        handDragOver(event->pos());
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

/// The curve that lies on top holds the mouse; where the press has selected another one, that is
/// the one to be dragged.
void GraphicsBase::handDragOver(const QPoint &position)
{
    auto *held = dynamic_cast<MyPathItem *>(scene()->mouseGrabberItem());
    const PathInfo *selected = selectedPath();
    if (held && selected && selected->pathItem() != held) {
        held->ungrabMouse();
        selected->pathItem()->takePress(mapToScene(position));
    }
}

// Release and move go on only to an item that holds the mouse: a marker, a curve that is dragged
// out, a table that is moved. The view itself does nothing with them.
void GraphicsBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && m_steering.release()) {
        viewport()->setCursor(m_steering.cursor());
        return;
    }
    if (m_steering.isPanning() || !scene()->mouseGrabberItem())
        return;
    QGraphicsView::mouseReleaseEvent(event);
    // Of a mouse that was handed over the scene does not let go by itself.
    if (auto *held = dynamic_cast<MyPathItem *>(scene()->mouseGrabberItem()))
        held->ungrabMouse();
}

void GraphicsBase::mouseMoveEvent(QMouseEvent *event)
{
    if (m_steering.holds())
        showRange(
            m_steering.pulled(m_ranges.shown, toValue(event->localPos()), m_stage->hasXRange()));
    else if (!m_steering.isPanning() && scene()->mouseGrabberItem())
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
    if (const std::optional<ViewRange> moved = ChartSteering::movedBy(key, range)) {
        showRange(*moved);
        return true;
    }
    if (const std::optional<double> factor = ChartSteering::zoomFactor(key)) {
        zoomAbout({(range.xMin + range.xMax) * 0.5, (range.yMin + range.yMax) * 0.5}, *factor);
        return true;
    }
    switch (key) {
    case Qt::Key_Home:
        resetSlot();
        return true;
    case Qt::Key_Delete:
        deleteMarkSlot();
        return true;
    case Qt::Key_Insert:
        m_markEditing->addAtHighest();
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

void GraphicsBase::paintPicture(QPainter &painter, const QRectF &target, const QRect &source)
{
    const PlainLook look(*m_curves);
    render(&painter, target, source);
}

QPixmap GraphicsBase::picture()
{
    const PlainLook look(*m_curves);
    return unfocusedPicture();
}

void GraphicsBase::noteExport(int pathId, const QString &fileName)
{
    emit curveExported(pathId, fileName);
}

void GraphicsBase::updatePathSelection(int pathId)
{
    const PathInfo *before = selectedPath();
    for (PathInfo *path : paths())
        path->setSelected(path->pathId() == pathId);
    PathInfo *now = selectedPath();
    if (areFiguresShown()) {
        if (now && !now->isHidden())
            showFigures(*now);
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
    if (areFiguresShown()) {
        emit clearParaInfoToTable();
        return;
    }
    PathInfo *path = selectedPath();
    if (!path)
        return;
    figuresPanel();
    placeFigures();
    showFigures(*path);
}

void GraphicsBase::showFigures(PathInfo &path)
{
    m_curves->placeLines(path);
    emit updateParaInfoToTable(m_curves->figures(path));
}

/// Made when it is needed first: the table in it takes longer to make than all the rest of a view.
MyCustomProxy &GraphicsBase::figuresPanel()
{
    if (!m_figuresPanel) {
        m_figuresPanel = new MyCustomProxy;
        scene()->addItem(m_figuresPanel);
        m_figuresPanel->hide();
        placeFigures();
    }
    return *m_figuresPanel;
}

bool GraphicsBase::areFiguresShown() const
{
    return m_figuresPanel && m_figuresPanel->getParaTableDataStatus();
}

/// Keeps the figures of the selected curve at the right of the plot area, or where the user has
/// moved them.
void GraphicsBase::placeFigures()
{
    constexpr double gap = 8.0;
    if (m_figuresPanel)
        m_figuresPanel->place(m_stage->plotArea().topRight() -
                                  QPointF(m_figuresPanel->size().width() + gap, -gap),
                              sceneRect());
}

ChartSituation GraphicsBase::situation() const
{
    ChartSituation now;
    now.curveSelected = selectedPath() != nullptr;
    now.updateFinished = m_curves->areComplete();
    now.markTablesShown = m_curves->markTablesShown();
    now.parameterTableShown = areFiguresShown();
    now.markCount = marks().size();
    now.clipboardText = QApplication::clipboard()->text();
    return now;
}

void GraphicsBase::showMenu(const QPoint &position)
{
    viewport()->setCursor(Qt::ArrowCursor);
    m_steering.stop();
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
    m_markEditing->add(*path, x);
}

bool GraphicsBase::jumpMark(MarkJump jump)
{
    return m_markEditing->jump(jump);
}

void GraphicsBase::setMarkDeltas(bool on)
{
    m_curves->setMarkDeltas(on);
}

void GraphicsBase::deleteMarkSlot()
{
    m_markEditing->removeSelected();
}

void GraphicsBase::showOrHideMarkTableSlot()
{
    m_curves->setMarkTablesShown(!m_curves->markTablesShown());
}
