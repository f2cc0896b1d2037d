#include "2d/view/managergraph.h"

#include "2d/view/curvename.h"
#include "2d/view/mycheckbox.h"
#include "2d/view/mycombobox.h"
#include "2d/view/mypushbutton.h"
#include "2d/view/pathinfo.h"
#include "ui_managergraph.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

enum Row { IdRow, DescriptionRow, StateRow, ColorRow, WidthRow, RowCount };

constexpr int leastColumnWidth = 96;

/// "9" stands in the seventh place too, and there is no "7"; what counts is the text.
QStringList widthTexts()
{
    return {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
            QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6"),
            QStringLiteral("9"), QStringLiteral("8"), QStringLiteral("9")};
}

void showWidth(MyComboBox &cell, int lineWidth)
{
    cell.setCurrentIndex(cell.findText(QStringLiteral("%1").arg(lineWidth)));
}

} // namespace

ManagerGraph::ManagerGraph(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ManagerGraph>())
{
    ui->setupUi(this);
    setWindowTitle(tr("Manage Graph"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setUpTable();
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, &ManagerGraph::reject);
    connect(ui->tableWidget, &QTableWidget::cellChanged, this, &ManagerGraph::cellChanged);
}

ManagerGraph::~ManagerGraph() = default;

void ManagerGraph::setUpTable()
{
    QTableWidget *table = ui->tableWidget;
    table->setRowCount(RowCount);
    table->setVerticalHeaderLabels(
        {tr("ID"), tr("Description"), tr("State"), tr("Line Color"), tr("Line Width")});
    for (QHeaderView *header : {table->horizontalHeader(), table->verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Stretch);
        header->setStretchLastSection(true);
        header->setTextElideMode(Qt::ElideRight);
        header->setVisible(false);
    }
    connect(table->horizontalScrollBar(), &QScrollBar::rangeChanged, this,
            &ManagerGraph::alignLabels);
    alignLabels();
    table->horizontalHeader()->setMinimumSectionSize(leastColumnWidth);
    table->setEditTriggers(QAbstractItemView::DoubleClicked);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
}

/// The labels stand beside the rows also when a scroll bar takes its room below these.
void ManagerGraph::alignLabels()
{
    const QScrollBar *bar = ui->tableWidget->horizontalScrollBar();
    const int frame = ui->tableWidget->frameWidth();
    const bool isNeeded = bar->maximum() > bar->minimum();
    ui->labelLayout->setContentsMargins(0, frame, 0,
                                        frame + (isNeeded ? bar->sizeHint().height() : 0));
}

void ManagerGraph::updatePathInfo(QMap<int, PathInfo *> map)
{
    const QSignalBlocker noEdits(ui->tableWidget);
    ui->tableWidget->clearContents();
    ui->tableWidget->setColumnCount(0);
    m_paths.clear();
    m_stateCells.clear();
    m_widthCells.clear();
    m_colorCells.clear();
    m_backups.clear();
    for (PathInfo *path : qAsConst(map))
        addColumn(path);
}

void ManagerGraph::addColumn(PathInfo *path)
{
    const int column = ui->tableWidget->columnCount();
    ui->tableWidget->insertColumn(column);
    m_paths.insert(column, path);
    addTexts(column, *path);
    addStateCell(column, *path);
    addColorCell(column, *path);
    addWidthCell(column, *path);
    m_backups.insert(column, {!path->isHidden(), path->color(), path->lineWidth()});
}

void ManagerGraph::addTexts(int column, const PathInfo &path)
{
    auto *id = new QTableWidgetItem(QStringLiteral("%1").arg(path.pathId()));
    id->setFlags(id->flags() & ~Qt::ItemIsEditable);
    id->setForeground(QBrush(Qt::black));
    id->setTextAlignment(Qt::AlignCenter);
    ui->tableWidget->setItem(IdRow, column, id);

    auto *name = new QTableWidgetItem(path.name());
    name->setTextAlignment(Qt::AlignCenter);
    name->setToolTip(tr("Double-click to edit"));
    ui->tableWidget->setItem(DescriptionRow, column, name);
}

void ManagerGraph::addStateCell(int column, const PathInfo &path)
{
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(5, 0, 5, 0);
    auto *box = new MyCheckBox(column);
    box->setText(tr("Show"));
    box->setFixedSize(70, 30);
    box->setChecked(!path.isHidden());
    box->setAccessibleName(tr("Show %1").arg(path.name()));
    layout->addWidget(box);
    ui->tableWidget->setCellWidget(StateRow, column, cell);
    connect(box, &MyCheckBox::currentState, this, &ManagerGraph::isHide);
    m_stateCells.insert(column, box);
}

void ManagerGraph::addColorCell(int column, const PathInfo &path)
{
    auto *button = new MyPushButton(column);
    button->setBackgroundColor(path.color());
    button->setToolTip(tr("Choose the line color"));
    button->setAccessibleName(tr("Line color of %1").arg(path.name()));
    ui->tableWidget->setCellWidget(ColorRow, column, button);
    connect(button, &MyPushButton::selectColor, this, &ManagerGraph::colorSelected);
    m_colorCells.insert(column, button);
}

void ManagerGraph::addWidthCell(int column, const PathInfo &path)
{
    auto *box = new MyComboBox(column);
    box->setFixedHeight(30);
    box->addItems(widthTexts());
    showWidth(*box, path.lineWidth());
    box->setAccessibleName(tr("Line width of %1").arg(path.name()));
    ui->tableWidget->setCellWidget(WidthRow, column, box);
    connect(box, &MyComboBox::currentIndexSelected, this, &ManagerGraph::widthSelected);
    m_widthCells.insert(column, box);
}

void ManagerGraph::colorSelected(int index, QColor color)
{
    if (!m_paths.contains(index))
        return;
    m_colorCells[index]->setBackgroundColor(color);
    m_paths[index]->setColor(color);
}

void ManagerGraph::widthSelected(int index, int widthIndex)
{
    if (!m_paths.contains(index))
        return;
    const QString width = m_widthCells[index]->itemText(widthIndex);
    if (!width.isEmpty())
        m_paths[index]->setLineWidth(width.toInt());
}

void ManagerGraph::isHide(int index, bool checked)
{
    if (m_paths.contains(index))
        m_paths[index]->setHidden(!checked);
}

void ManagerGraph::on_pushButtonDefault_clicked()
{
    for (auto it = m_backups.cbegin(); it != m_backups.cend(); ++it) {
        m_stateCells[it.key()]->setChecked(it->visible);
        showWidth(*m_widthCells[it.key()], it->lineWidth);
        m_paths[it.key()]->setLineWidth(
            it->lineWidth); // a width that the list lacks comes back too
        colorSelected(it.key(), it->color);
    }
}

/// What was tried out is taken back.
void ManagerGraph::reject()
{
    on_pushButtonDefault_clicked();
    QDialog::reject();
}

void ManagerGraph::on_pushButtonOK_clicked()
{
    if (!settleNames())
        return;
    for (auto it = m_paths.cbegin(); it != m_paths.cend(); ++it)
        it.value()->setName(description(it.key()));
    emit updataResize();
    accept();
}

/// Asks for another name where an edited one is taken; false when the user would rather go on
/// editing.
bool ManagerGraph::settleNames()
{
    for (auto it = m_paths.cbegin(); it != m_paths.cend(); ++it) {
        const int column = it.key();
        if (description(column) == it.value()->name())
            continue;
        const std::optional<QString> name =
            askFreeCurveName(this, description(column), [this, column](const QString &wanted) {
                return isTaken(wanted, column);
            });
        if (!name)
            return false;
        setDescription(column, *name);
    }
    return true;
}

bool ManagerGraph::isTaken(const QString &name, int exceptColumn) const
{
    const QList<int> columns = m_paths.keys();
    return std::any_of(columns.begin(), columns.end(), [&](int column) {
        return column != exceptColumn && description(column) == name;
    });
}

QString ManagerGraph::description(int column) const
{
    return ui->tableWidget->item(DescriptionRow, column)->text();
}

void ManagerGraph::setDescription(int column, const QString &text)
{
    ui->tableWidget->item(DescriptionRow, column)->setText(text);
}

void ManagerGraph::cellChanged(int row, int column)
{
    // A curve without a name could not be told from the others in the legend.
    if (row == DescriptionRow && m_paths.contains(column) && description(column).isEmpty())
        setDescription(column, m_paths[column]->name());
}
