#include "watch/statisticspanel.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Row { Now, Mean, Minimum, Maximum, PeakToPeak, Sigma, Readings, Missed, Since, RowCount };

QString withUnit(const std::optional<double> &value, int decimals, const QString &unit)
{
    return value ? QStringLiteral("%1 %2").arg(*value, 0, 'f', decimals).arg(unit)
                 : QStringLiteral("-");
}

} // namespace

StatisticsPanel::StatisticsPanel(QWidget *parent)
    : QWidget(parent)
    , m_overLabel(new QLabel(this))
    , m_over(new QComboBox(this))
    , m_table(new QTableWidget(this))
    , m_reset(new QPushButton(this))
    , m_copy(new QPushButton(this))
{
    m_over->setObjectName(QStringLiteral("comboBoxStatisticsOver"));
    m_over->addItems({QString(), QString()});
    m_overLabel->setBuddy(m_over);
    // Before there are rows, for which its header looks up the style of a table of this name.
    m_table->setObjectName(QStringLiteral("tableStatistics"));
    m_table->setRowCount(RowCount);
    m_table->setColumnCount(1);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int row = 0; row < RowCount; ++row) {
        m_table->setVerticalHeaderItem(row, new QTableWidgetItem);
        m_table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("-")));
    }
    m_reset->setObjectName(QStringLiteral("btnStatisticsReset"));
    m_copy->setObjectName(QStringLiteral("btnStatisticsCopy"));

    auto *choice = new QHBoxLayout;
    choice->addWidget(m_overLabel);
    choice->addWidget(m_over, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_reset);
    buttons->addWidget(m_copy);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(m_table, 1);
    layout->addLayout(buttons);

    connect(m_over, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &StatisticsPanel::overChanged);
    connect(m_reset, &QPushButton::clicked, this, &StatisticsPanel::resetWanted);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(text()); });
    retranslate();
}

StatisticsPanel::Over StatisticsPanel::over() const
{
    return m_over->currentIndex() == ShownRange ? ShownRange : SinceReset;
}

void StatisticsPanel::setOver(Over over)
{
    m_over->setCurrentIndex(over);
}

void StatisticsPanel::retranslate()
{
    m_overLabel->setText(tr("&Over"));
    m_over->setItemText(SinceReset, tr("since reset"));
    m_over->setItemText(ShownRange, tr("the shown range of the chart"));
    m_over->setAccessibleName(tr("Statistics over"));
    m_table->setAccessibleName(tr("Statistics"));
    const QStringList names{tr("Now"),      tr("Mean"),         tr("Minimum"),
                            tr("Maximum"),  tr("Peak to peak"), tr("Sigma"),
                            tr("Readings"), tr("Missed"),       tr("Since")};
    for (int row = 0; row < RowCount; ++row)
        m_table->verticalHeaderItem(row)->setText(names[row]);
    m_reset->setText(tr("&Reset"));
    m_copy->setText(tr("Cop&y"));
}

void StatisticsPanel::show(const ReadingStatistics &statistics,
                           const ReadingStatistics::Figures &figures)
{
    const QString unit = statistics.isRelative() ? QStringLiteral("dB") : QStringLiteral("dBm");
    const QString decibel = QStringLiteral("dB");
    const PowerStatistics &power = figures.power;
    const auto set = [this](Row row, const QString &text) { m_table->item(row, 0)->setText(text); };
    std::optional<double> now;
    if (statistics.latest().isValid())
        now = statistics.latest().level;
    std::optional<double> peakToPeak;
    if (power.count() > 0)
        peakToPeak = *power.maximum() - *power.minimum();
    set(Now, withUnit(now, 2, unit));
    set(Mean, withUnit(power.mean(), 4, unit));
    set(Minimum, withUnit(power.minimum(), 2, unit));
    set(Maximum, withUnit(power.maximum(), 2, unit));
    set(PeakToPeak, withUnit(peakToPeak, 2, decibel));
    set(Sigma, withUnit(power.sigma(), 4, decibel));
    set(Readings, QString::number(power.count()));
    set(Missed, QString::number(figures.missed));
    set(Since, figures.since.isValid()
                   ? QLocale::c().toString(figures.since, QStringLiteral("yyyy-MM-dd hh:mm:ss"))
                   : QStringLiteral("-"));
}

QString StatisticsPanel::text() const
{
    QString text = m_over->currentText() + QLatin1Char('\n');
    for (int row = 0; row < RowCount; ++row)
        text += m_table->verticalHeaderItem(row)->text() + QLatin1Char('\t') +
                m_table->item(row, 0)->text() + QLatin1Char('\n');
    return text;
}
