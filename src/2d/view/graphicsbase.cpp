#include "2d/view/graphicsbase.h"

#include "2d/scene/chartstage.h"
#include "2d/scene/mypathitem.h"
#include "2d/scene/tablepanel.h"
#include "2d/view/chartmenu.h"
#include "2d/view/curvelist.h"
#include "2d/view/figurespanel.h"
#include "2d/view/managergraph.h"
#include "2d/view/markediting.h"
#include "2d/view/pathinfo.h"
#include "widgets/messagesimpledialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDebug>
#include <QDropEvent>
#include <QGraphicsScene>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>

#include <array>
#include <utility>

using Panels = CurveList::Panels;

GraphicsBase::GraphicsBase(int kind, QWidget *parent)
    : CurveView(kind, parent)
    , m_markEditing(std::make_unique<MarkEditing>(stage(), curves(), ranges()))
    , m_figures(std::make_unique<FiguresPanel>(stage(), *scene()))
    , m_exchange(*this)
{
    retitle();

    setAcceptDrops(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &GraphicsBase::updateParaInfoToTable, this,
            [this](const ParaInfo &figures) { m_figures->show(figures); });
    connect(this, &GraphicsBase::clearParaInfoToTable, this, [this] { m_figures->clear(); });
    connect(this, &GraphicsBase::updataSize, this, [this] { m_figures->place(); });
    connect(this, &GraphicsBase::selectionChanged, this, &GraphicsBase::followSelection);
    connect(&curves(), &CurveList::acceptDropsAsked, this, &GraphicsBase::setAcceptDropsStatus);
    connect(this, &QWidget::customContextMenuRequested, this, &GraphicsBase::showMenu);
}

GraphicsBase::~GraphicsBase() = default;

QString GraphicsBase::defaultDirectory() const
{
    return m_exchange.defaultDirectory();
}

void GraphicsBase::setDefaultDirectory(const QString &directory)
{
    m_exchange.setDefaultDirectory(directory);
}

QString GraphicsBase::seriesName() const
{
    return m_seriesName;
}

void GraphicsBase::retitle()
{
    setAccessibleName(tr("Chart"));
    if (!stage().isPolar())
        setAxisXTitle(tr("Last %1 minutes").arg(ranges().period));
    setAxisYTitle(tr("Power[dBm]"));
    // What a running chart has scrolled to stays in view when the language changes.
    const ViewRange &shown = ranges().shown;
    if (shown.xMin <= 0.0 || !qFuzzyCompare(shown.xMax - shown.xMin, double(ranges().period)))
        ranges().startPeriod();
    setScaleLevel(5, 20.0, -30.0);
    curves().setComplete(false);
    m_steering.stop();
    setOffset(0.0, 0.0);
}

void GraphicsBase::setSeriesName(QString name)
{
    m_seriesName = name;
}

void GraphicsBase::setLimitXY(const QPointF &centre, const double &factor)
{
    ViewRange &shown = ranges().shown;
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
    showRange(ranges().shown);
    for (PathInfo *path : paths()) {
        curves().marks().snap(*path);
        path->rebuild(stage());
    }
}

void GraphicsBase::showRange(const ViewRange &range)
{
    ranges().shown = range;
    ranges().apply(stage());
    curves().refresh(Panels::AllTables);
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
    showRange(ranges().home);
    viewport()->setCursor(Qt::ArrowCursor);
}

void GraphicsBase::panResetSlot()
{
    m_steering.stopPanning();
    showRange(ranges().shown);
}

void GraphicsBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton && chart()) {
        m_steering.hold(toValue(event->localPos()));
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (!m_steering.isPanning()) {
        pressCurves(event);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    viewport()->setCursor(Qt::ClosedHandCursor);
    qDebug() << "leftbtn press: " << toValue(event->localPos().toPoint());
}

/// Whether nothing at \a place but curves can take a press, nor lose the focus to it.
bool GraphicsBase::isForCurvesAlone(const QPointF &place) const
{
    return stage().plotArea().contains(place) && !curves().areCovered(place) &&
           !m_figures->covers(place) && !scene()->mouseGrabberItem() && !scene()->focusItem() &&
           !scene()->activePanel();
}

/// A press can hit several curves; the last one keeps the selection. To let the scene look for what
/// is pressed takes twice the rest of a press, so that one curve alone, or none, is spared that.
void GraphicsBase::pressCurves(QMouseEvent *event)
{
    const QPointF place = mapToScene(event->pos());
    QVector<MyPathItem *> pressed = curves().pressedAt(place);
    if (pressed.size() <= 1 && isForCurvesAlone(place)) {
        if (!pressed.isEmpty() && event->button() == Qt::LeftButton) {
            pressed.first()->takePress(place);
            pressed.first()->select();
        }
    } else {
        QGraphicsView::mousePressEvent(event);
        if (dynamic_cast<const TablePanel *>(scene()->mouseGrabberItem()))
            return; // what lies under a table is not meant
        pressed = curves().pressedAt(place);
    }
    for (MyPathItem *item : qAsConst(pressed))
        emit item->selectPathId(item->pathId());
    handDragOver(place);
}

/// The curve that lies on top holds the mouse; where the press has selected another one, that is
/// the one to be dragged.
void GraphicsBase::handDragOver(const QPointF &place)
{
    auto *held = dynamic_cast<MyPathItem *>(scene()->mouseGrabberItem());
    const PathInfo *selected = selectedPath();
    if (held && selected && selected->pathItem() != held) {
        held->ungrabMouse();
        selected->pathItem()->takePress(place);
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
    // A curve only lets go: the scene would search all its items for what the pointer is over now.
    if (auto *held = dynamic_cast<MyPathItem *>(scene()->mouseGrabberItem()))
        held->ungrabMouse();
    else
        QGraphicsView::mouseReleaseEvent(event);
}

void GraphicsBase::mouseMoveEvent(QMouseEvent *event)
{
    if (m_steering.holds())
        showRange(
            m_steering.pulled(ranges().shown, toValue(event->localPos()), stage().hasXRange()));
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
        curves().marks().moveSelected(-markStep);
        return true;
    case Qt::Key_Right:
        curves().marks().moveSelected(markStep);
        return true;
    case Qt::Key_PageUp:
        curves().marks().selectNext(-1);
        return true;
    case Qt::Key_PageDown:
        curves().marks().selectNext(1);
        return true;
    default:
        return false;
    }
}

bool GraphicsBase::pressKey(int key)
{
    const ViewRange range = ranges().shown;
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
        if (const PathInfo *path = curves().neighbourOfSelected(key == Qt::Key_PageUp ? -1 : 1))
            updatePathSelection(path->pathId());
        return true;
    default:
        return false;
    }
}

void GraphicsBase::noteExport(int pathId, const QString &fileName)
{
    emit curveExported(pathId, fileName);
}

void GraphicsBase::clearSelectionSlot()
{
    deselect();
}

/// Shows the figures of the curve that is selected now, or those of none.
void GraphicsBase::followSelection()
{
    PathInfo *now = selectedPath();
    const int before = std::exchange(m_selectedPathId, now ? now->pathId() : 0);
    if (m_figures->isShown() && now && !now->isHidden())
        showFigures(*now);
    else if (m_figures->isShown() || (before != 0 && before != m_selectedPathId))
        emit clearParaInfoToTable();
}

void GraphicsBase::showOrHideParameterTableSlot()
{
    if (m_figures->isShown())
        emit clearParaInfoToTable();
    else if (PathInfo *path = selectedPath())
        showFigures(*path);
}

void GraphicsBase::showFigures(PathInfo &path)
{
    curves().placeLines(path);
    emit updateParaInfoToTable(curves().figures(path));
}

ChartSituation GraphicsBase::situation() const
{
    ChartSituation now;
    now.curveSelected = selectedPath() != nullptr;
    now.updateFinished = curves().areComplete();
    now.markTablesShown = curves().markTablesShown();
    now.parameterTableShown = m_figures->isShown();
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
    struct Connection
    {
        ChartMenu::Entry entry;
        void (GraphicsBase::*slot)();
    };
    static const std::array<Connection, 16> connections{{
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

void GraphicsBase::addMarkSlot()
{
    if (!chart() || paths().isEmpty())
        return;
    const double x = toValue(m_menuPosition).x();
    const ViewRange axes = stage().axisRange();
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

void GraphicsBase::deleteMarkSlot()
{
    m_markEditing->removeSelected();
}

void GraphicsBase::showOrHideMarkTableSlot()
{
    curves().setMarkTablesShown(!curves().markTablesShown());
}
