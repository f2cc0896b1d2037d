#include "watch/trafficpanel.h"

#include "watch/trafficmodel.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

TrafficPanel::TrafficPanel(TrafficModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_shown(new QSortFilterProxyModel(this))
    , m_view(new QTableView(this))
    , m_scroll(new QTimer(this))
    , m_filterLabel(new QLabel(this))
    , m_filter(new QLineEdit(this))
    , m_pause(new QPushButton(this))
    , m_copy(new QPushButton(this))
    , m_clear(new QPushButton(this))
{
    m_shown->setSourceModel(model);
    m_shown->setFilterKeyColumn(TrafficModel::Line);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setObjectName(QStringLiteral("tableTraffic"));
    m_view->setModel(m_shown);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_filter->setObjectName(QStringLiteral("lineEditTrafficFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filterLabel->setBuddy(m_filter);
    m_pause->setObjectName(QStringLiteral("btnTrafficPause"));
    m_pause->setCheckable(true);
    m_copy->setObjectName(QStringLiteral("btnTrafficCopy"));

    auto *row = new QHBoxLayout;
    row->addWidget(m_filterLabel);
    row->addWidget(m_filter, 1);
    for (QPushButton *button : {m_pause, m_copy, m_clear})
        row->addWidget(button);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(m_view, 1);

    connect(m_filter, &QLineEdit::textChanged, m_shown,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_pause, &QPushButton::toggled, model, &TrafficModel::setPaused);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(text()); });
    connect(m_clear, &QPushButton::clicked, model, &TrafficModel::clear);
    m_scroll->setSingleShot(true);
    connect(m_scroll, &QTimer::timeout, m_view, &QTableView::scrollToBottom);
    connect(m_shown, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        // Who has scrolled back to a line wants to read it.
        const QScrollBar *bar = m_view->verticalScrollBar();
        if (isVisible() && bar->value() == bar->maximum())
            m_scroll->start(0);
    });
    retranslate();
}

void TrafficPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_view->scrollToBottom();
}

void TrafficPanel::retranslate()
{
    m_filterLabel->setText(tr("L&ines that hold"));
    m_pause->setText(tr("&Pause"));
    m_copy->setText(tr("Copy Line&s"));
    m_clear->setText(tr("Cl&ear"));
    m_view->setAccessibleName(tr("Traffic"));
}

QString TrafficPanel::text() const
{
    QList<int> rows;
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(m_shown->mapToSource(index).row());
    for (int row = 0; selected.isEmpty() && row < m_shown->rowCount(); ++row)
        rows.append(m_shown->mapToSource(m_shown->index(row, 0)).row());
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const int row : qAsConst(rows))
        text += m_model->text(row) + QLatin1Char('\n');
    return text;
}
