#include "2d/form/listchart.h"
#include "ui_listchart.h"

#include "2d/data/curvefrequency.h"
#include "2d/data/patternscale.h"
#include "2d/form/chartpresentation.h"
#include "2d/form/curvetablemodel.h"
#include "2d/form/pointtablemodel.h"
#include "2d/scene/generatecolors.h"
#include "2d/view/curvename.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/managergraph.h"
#include "2d/view/pathinfo.h"

#include <QAction>
#include <QChart>
#include <QDropEvent>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <QValueAxis>

#include <algorithm>

namespace {

/// Levels that the range fields take, dB.
constexpr double levelLimit = 1000.0;

QStringList rowTexts(const QTableWidget &table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QTableWidgetItem *cell =
            row < 0 ? table.horizontalHeaderItem(column) : table.item(row, column);
        texts.append(cell->text());
    }
    return texts;
}

QStringList headings(const QTableWidget &table)
{
    return rowTexts(table, -1);
}

/// The local files that are dragged in from a file manager. They have to be told from a curve's
/// text, since files too can be asked for as text: their addresses.
QStringList draggedFiles(const QDropEvent &event)
{
    QStringList files;
    const QList<QUrl> addresses = event.mimeData()->urls();
    for (const QUrl &address : addresses) {
        if (address.isLocalFile())
            files.append(address.toLocalFile());
    }
    return files;
}

QString textLine(const QStringList &cells)
{
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

} // namespace

ListChart::ListChart(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ListChart>())
    , m_polar(new GraphicsBase(1, this))
    , m_cartesian(new GraphicsBase(0, this))
    , m_curves(std::make_unique<CurveSet>(*m_polar, *m_cartesian))
    , m_curveModel(new CurveTableModel(*m_curves, this))
    , m_pointModel(new PointTableModel(this))
{
    ui->setupUi(this);
    setAcceptDrops(true);
    setUpCharts();
    setUpTables();
    connectParts();
    refresh();
    fitToData();
    m_cartesian->setFocus();
}

ListChart::~ListChart() = default;

void ListChart::setUpCharts()
{
    ui->chartSplitter->addWidget(m_polar);
    ui->chartSplitter->addWidget(m_cartesian);
    for (GraphicsBase *view : {m_polar, m_cartesian}) {
        ChartPresentation::prepare(*view);
        // Before the view, which would take the names of dropped files for a curve's text.
        view->viewport()->installEventFilter(this);
    }
    m_polar->setPolarView({});
    ui->mainSplitter->setStretchFactor(0, 1);
    ui->mainSplitter->setStretchFactor(1, 0);
    ui->upperSplitter->setStretchFactor(0, 0);
    ui->upperSplitter->setStretchFactor(1, 1);
    ui->chartSplitter->setStretchFactor(0, 1);
    ui->chartSplitter->setStretchFactor(1, 1);
    ui->upperSplitter->setSizes({300, 960});
    ui->chartSplitter->setSizes({465, 495});
    ui->mainSplitter->setSizes({520, 170});
    for (LineEdit *field : {ui->levelMin, ui->levelMax}) {
        field->setMinimum(-levelLimit);
        field->setMaximum(levelLimit);
    }
    for (const GraphicsBase *view : {m_polar, m_cartesian}) {
        const QList<QtCharts::QAbstractAxis *> axes = view->chart()->axes();
        for (QtCharts::QAbstractAxis *axis : axes) {
            connect(
                qobject_cast<QtCharts::QValueAxis *>(axis), &QtCharts::QValueAxis::rangeChanged,
                this, [this, view] { followLevels(*view); }, Qt::QueuedConnection);
        }
    }
    setUpHint();
    retitleCharts();
}

void ListChart::setUpTables()
{
    ui->curveTable->setModel(m_curveModel);
    ui->curveTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    QHeaderView *header = ui->curveTable->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setStretchLastSection(true);
    header->resizeSection(CurveTableModel::Name, 150);
    header->resizeSection(CurveTableModel::Frequency, 76);
    header->resizeSection(CurveTableModel::Material, 76);
    header->resizeSection(CurveTableModel::Points, 56);
    ui->pointTable->setModel(m_pointModel);
    ui->pointTable->horizontalHeader()->setDefaultSectionSize(PointTableModel::columnWidth);
    ui->pointTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->listSplitter->setSizes({300, 200});
    setTabOrder(ui->pointTable, m_polar);
    setTabOrder(m_polar, m_cartesian);
    // The table is as high as its rows and one more, which its heading must not exceed.
    ui->paraTable->horizontalHeader()->setMaximumHeight(
        ui->paraTable->verticalHeader()->defaultSectionSize());
}

void ListChart::connectParts()
{
    connect(m_curves.get(), &CurveSet::changed, this, &ListChart::refresh);
    connect(m_curves.get(), &CurveSet::selectionChanged, this, &ListChart::showSelection);
    connect(m_curveModel, &CurveTableModel::refused, this, &ListChart::message);
    // A curve that comes or goes makes the list anew, without a selection.
    connect(m_curveModel, &CurveTableModel::modelReset, this,
            [this] { showSelection(m_curves->selected()); });
    const auto select = [this](const QModelIndex &current) {
        if (current.isValid())
            m_curves->select(m_curveModel->curveAt(current.row()));
    };
    connect(ui->curveTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            select);
    // A press on the row that is current already changes no row.
    connect(ui->curveTable, &QTableView::pressed, this, select);
    connect(ui->fitButton, &QPushButton::clicked, this, &ListChart::fitToData);
    connect(ui->levelMin, &LineEdit::editingFinished, this, &ListChart::applyLevelFields);
    connect(ui->levelMax, &LineEdit::editingFinished, this, &ListChart::applyLevelFields);
    connect(ui->nullProminence, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double prominence) {
                if (!qFuzzyCompare(prominence, m_options.nullProminence))
                    emit nullProminenceChosen(prominence);
            });
    connect(ui->titleEdit, &QLineEdit::textEdited, this, [this](const QString &text) {
        m_ownTitle = text.trimmed();
        showTitle();
        emit titleChanged();
    });
    connect(ui->titleEdit, &QLineEdit::editingFinished, this, &ListChart::showTitle);
}

int ListChart::addCurve(const QString &name, const QVector<QPointF> &points, CurveRecord record)
{
    const auto taken = [this](const QString &wanted) { return m_curves->hasName(wanted); };
    const std::optional<QString> freeName =
        askFreeCurveName(this, name.trimmed().isEmpty() ? tr("Unnamed curve") : name, taken);
    if (!freeName)
        return 0;
    if (record.frequency.isEmpty())
        record.frequency = frequencyInName(*freeName);
    return m_curves->add(*freeName, points, record);
}

QString ListChart::title() const
{
    if (!m_ownTitle.isEmpty())
        return m_ownTitle;
    QStringList titles;
    const QList<int> ids = m_curves->ids();
    for (const int id : ids)
        titles.append(m_curves->record(id).title);
    titles.removeAll(QString());
    titles.removeDuplicates();
    if (titles.size() == 1)
        return titles.first();
    return ids.isEmpty() ? QString() : tr("Radiation patterns");
}

QStringList ListChart::parameterHeadings() const
{
    return headings(*ui->paraTable).mid(1);
}

QStringList ListChart::supplementaryHeadings() const
{
    return headings(*ui->supplementaryTable).mid(1);
}

QString ListChart::parameterText() const
{
    QString text = textLine(QStringList(tr("Curve")) + headings(*ui->paraTable));
    for (int row = 0; row < m_figures.size(); ++row) {
        text += textLine(QStringList(m_curves->name(m_figures.at(row).id)) +
                         rowTexts(*ui->paraTable, row));
    }
    text += QLatin1Char('\n') + textLine({tr("Supplementary")});
    text += textLine(headings(*ui->supplementaryTable));
    for (int row = 0; row < m_figures.size(); ++row)
        text += textLine(rowTexts(*ui->supplementaryTable, row));
    return text;
}

void ListChart::addCurveAction(QAction *action)
{
    ui->curveTable->addAction(action);
}

void ListChart::fitToData()
{
    m_ownLevels = false;
    fit();
}

void ListChart::fit()
{
    QVector<QVector<QPointF>> shown;
    const QList<int> ids = m_curves->ids();
    for (const int id : ids) {
        if (!m_curves->isHidden(id))
            shown.append(m_curves->points(id));
    }
    ChartPresentation::showAngles(*m_cartesian, angleScale(shown));
    if (!m_ownLevels) {
        const AxisScale levels = levelScale(shown);
        showLevels(levels.min, levels.max);
    }
}

void ListChart::setLevels(double min, double max)
{
    if (!(min < max))
        return;
    m_ownLevels = true;
    showLevels(min, max);
}

void ListChart::showLevels(double min, double max)
{
    ui->levelMin->setValue(min);
    ui->levelMax->setValue(max);
    m_levels = dividedScale(min, max);
    for (GraphicsBase *view : {m_polar, m_cartesian})
        ChartPresentation::showLevels(*view, m_levels);
}

/// Called twice for every edit, the first time with the old value still in place.
void ListChart::applyLevelFields()
{
    const double min = ui->levelMin->value();
    const double max = ui->levelMax->value();
    if (min == m_levels.min && max == m_levels.max)
        return;
    if (min < max) {
        setLevels(min, max);
        return;
    }
    ui->levelMin->setValue(m_levels.min);
    ui->levelMax->setValue(m_levels.max);
    emit message(tr("The lowest level has to be below the highest one."));
}

void ListChart::setPolarView(const PolarView &view)
{
    m_polar->setPolarView(view);
}

void ListChart::setNullProminence(double prominence)
{
    m_options.nullProminence = prominence;
    ui->nullProminence->setValue(prominence);
    refreshFigures();
}

void ListChart::setBeamLevels(const QVector<double> &drops)
{
    m_options.drops = drops;
    m_columns.drops = drops;
    refreshFigures();
}

void ListChart::setSymmetry(bool on)
{
    for (GraphicsBase *view : {m_polar, m_cartesian})
        on ? view->SymmetrySlot() : view->SymmetryResetSlot();
}

void ListChart::setParameterLines(bool on)
{
    for (GraphicsBase *view : {m_polar, m_cartesian})
        view->setParameterLinesVisible(on);
}

void ListChart::manageCurves()
{
    ManagerGraph dialog(this);
    dialog.updatePathInfo(m_polar->paths());
    dialog.exec();
}

void ListChart::showTitle()
{
    if (!ui->titleEdit->hasFocus())
        ui->titleEdit->setText(title());
    ChartPresentation::setTitle(*m_polar, title());
    ChartPresentation::setTitle(*m_cartesian, title());
}

void ListChart::retitleCharts()
{
    ChartPresentation::setAxisTitles(*m_polar, QString(), QString());
    ChartPresentation::setAxisTitles(*m_cartesian, tr("Angle [°]"), tr("Level [dB]"));
    m_polar->setAccessibleName(tr("Polar chart"));
    m_cartesian->setAccessibleName(tr("Cartesian chart"));
    m_hint->setText(tr("Open a file (Ctrl+O), drop files here, paste two columns of numbers, or "
                       "begin with File, Open Samples."));
}

void ListChart::refresh()
{
    showTitle();
    m_hint->setVisible(m_curves->ids().isEmpty());
    refreshPoints();
    refreshFigures();
    const QList<int> ids = m_curves->ids();
    const bool hasNew =
        std::any_of(ids.begin(), ids.end(), [this](int id) { return !m_shownIds.contains(id); });
    m_shownIds = ids;
    for (const GraphicsBase *view : {m_polar, m_cartesian}) {
        for (PathInfo *path : view->paths())
            path->panels().setPattern(true);
    }
    if (!hasNew)
        return;
    m_polar->finishUpdateChart();
    m_cartesian->finishUpdateChart();
    fit();
}

void ListChart::refreshPoints()
{
    QVector<PointTableModel::Curve> curves;
    const QList<int> ids = m_curves->ids();
    for (const int id : ids)
        curves.append({m_curves->name(id), m_curves->color(id), m_curves->points(id)});
    m_pointModel->setCurves(curves);
}

void ListChart::refreshFigures()
{
    QVector<CurveFigures> figures;
    const QList<int> ids = m_curves->ids();
    for (const int id : ids) {
        const QVector<QPointF> points = m_curves->points(id);
        const bool isMask = m_curves->record(id).isMask;
        for (GraphicsBase *view : {m_polar, m_cartesian})
            view->setBeamLevels(id, isMask ? QVector<double>() : m_options.drops);
        if (m_curves->isHidden(id) || points.isEmpty() || isMask)
            continue;
        figures.append(curveFigures(id, points, m_figures, m_options));
    }
    m_columns.differences = false;
    for (CurveFigures &one : figures) {
        one.difference = m_curves->record(one.id).difference;
        m_columns.differences = m_columns.differences || one.difference.has_value();
    }
    m_figures = figures;
    ui->supplementaryTable->setColumns(m_columns);
    ui->paraTable->setRowCount(m_figures.size());
    ui->supplementaryTable->setRowCount(m_figures.size());
    // Its scroll bar would hide a row; the area around it scrolls instead.
    ui->paraTable->setMinimumWidth(ui->paraTable->horizontalHeader()->length());
    for (int row = 0; row < m_figures.size(); ++row) {
        const CurveFigures &one = m_figures.at(row);
        const QString name = m_curves->name(one.id);
        const QColor color = m_curves->color(one.id);
        const QString frequency = m_curves->record(one.id).frequency;
        ui->paraTable->updateParaInfo(one.parameters, row + 1,
                                      frequency.isEmpty() ? QStringLiteral("\u2013") : frequency);
        ui->paraTable->item(row, 0)->setIcon(curveSwatch(color));
        ui->paraTable->item(row, 0)->setToolTip(plainToolTip(name));
        ui->supplementaryTable->updateFigures(one, row + 1, name, color);
    }
}

void ListChart::showSelection(int id)
{
    const QSignalBlocker blocker(ui->curveTable->selectionModel());
    const int row = m_curveModel->rowOf(id);
    QItemSelectionModel *selection = ui->curveTable->selectionModel();
    if (row < 0) {
        selection->clear();
    } else {
        const int column = qMax(0, ui->curveTable->currentIndex().column());
        const QModelIndex current = m_curveModel->index(row, column);
        selection->setCurrentIndex(current,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        ui->curveTable->scrollTo(current);
        const int topRow = qMax(0, ui->pointTable->rowAt(0));
        for (const int pointColumn : {2 * row + 1, 2 * row})
            ui->pointTable->scrollTo(m_pointModel->index(topRow, pointColumn));
    }
    ui->curveTable->viewport()->update();
}

/// Shows in the fields what a zoom or a pan of \a view has made of the levels.
void ListChart::followLevels(const GraphicsBase &view)
{
    const ViewRange shown = view.shownRange();
    ui->levelMin->setValue(roundedLevel(shown.yMin));
    ui->levelMax->setValue(roundedLevel(shown.yMax));
    m_levels.min = ui->levelMin->value();
    m_levels.max = ui->levelMax->value();
}

/// An empty window says how to begin.
void ListChart::setUpHint()
{
    auto *layout = new QVBoxLayout(m_cartesian->viewport());
    layout->setContentsMargins(80, 40, 40, 60); // between the axes
    m_hint = new QLabel(m_cartesian->viewport());
    m_hint->setStyleSheet(QStringLiteral("background: white; padding: 8px;"));
    m_hint->setObjectName(QStringLiteral("emptyHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(m_hint, 0, Qt::AlignVCenter);
}

void ListChart::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui->retranslateUi(this);
    retitleCharts();
    refresh();
}

void ListChart::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedFiles(*event).isEmpty())
        event->acceptProposedAction();
}

void ListChart::dropEvent(QDropEvent *event)
{
    const QStringList files = draggedFiles(*event);
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    // The program they come from waits for the end of the drop; reading may ask the user.
    QTimer::singleShot(0, this, [this, files] { emit filesDropped(files); });
}

bool ListChart::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                        event->type() == QEvent::Drop;
    if (!isDrag)
        return QWidget::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    if (draggedFiles(*drop).isEmpty())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Drop)
        dropEvent(drop);
    else
        drop->acceptProposedAction();
    return true;
}
