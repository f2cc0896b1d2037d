#include "console/consolepanel.h"

#include "Logic/frequencyunit.h"
#include "console/powerdisplay.h"
#include "storage/consolesettings.h"
#include "storage/recordfile.h"
#include "ui_mainwindow.h"

#include <QActionGroup>
#include <QDateTime>
#include <QDir>
#include <QListView>
#include <QSignalBlocker>

namespace {

/// Checks \a button without telling the instrument what it has just told us.
void checkSilently(QRadioButton *button)
{
    const QSignalBlocker blocker(button);
    button->setChecked(true);
}

} // namespace

ConsolePanel::ConsolePanel(Ui::MainWindow *form, QMainWindow *window)
    : m_ui(form)
    , m_window(window)
{
    auto *languages = new QActionGroup(window);
    languages->addAction(m_ui->actionCN);
    languages->addAction(m_ui->actionEN);
    m_ui->actionHelp->setVisible(false);
    m_ui->mainToolBar->hide();
    m_ui->menuTools->menuAction()->setVisible(false);
    {
        // The box shows kHz from its first text on, while the value is in GHz until it is set.
        const QSignalBlocker blocker(m_ui->comboBoxUnit);
        fillFrequencyUnits();
    }
    setShortcuts();
    m_ui->comboBoxCom->setView(new QListView(m_ui->comboBoxCom));
    m_ui->doubleSpinBoxFreq->installEventFilter(window);
    m_ui->doubleSpinBoxOffset->installEventFilter(window);
    m_ui->spinBoxAverageCount->installEventFilter(window);
    QFont pathFont = m_ui->lineEditPath->font();
    pathFont.setPixelSize(11);
    m_ui->lineEditPath->setFont(pathFont);
}

void ConsolePanel::retranslate()
{
    m_ui->retranslateUi(m_window);
    fillFrequencyUnits();
    setShortcuts();
}

void ConsolePanel::fillFrequencyUnits()
{
    m_ui->comboBoxUnit->clear();
    m_ui->comboBoxUnit->addItems(FrequencyUnit::names());
}

void ConsolePanel::setShortcuts()
{
    // A button forgets its shortcut with every new text, so the form cannot hold them.
    m_ui->btnResetChart->setShortcut(Qt::Key_F5);
    m_ui->btnReset->setShortcut(Qt::Key_F6);
    m_ui->btnSetZero->setShortcut(Qt::Key_F7);
    m_ui->btnCalibration->setShortcut(Qt::Key_F8);
}

void ConsolePanel::showLinkState(LinkMode mode, bool open)
{
    m_ui->groupBoxConnection->setEnabled(true);
    for (QGroupBox *group :
         {m_ui->groupBoxFrquency, m_ui->groupBoxOffset, m_ui->groupBoxAverageCount,
          m_ui->groupBoxRelState, m_ui->groupBoxSystem, m_ui->groupBoxUnit, m_ui->groupBoxChart,
          m_ui->groupBoxStatistics})
        group->setEnabled(open);
    for (QAction *action : {m_ui->actionStart, m_ui->actionStop, m_ui->actionIP_Config})
        action->setEnabled(open);

    const bool serial = mode == serialLink;
    m_ui->comboBoxCom->setEnabled(!(serial && open));
    m_ui->btnOpen->setEnabled(!(serial && open));
    m_ui->btnClose->setEnabled(serial && open);

    m_ui->actionCommunication_by_Serial->setChecked(serial);
    m_ui->actionCommunication_by_LAN->setChecked(!serial);
    m_ui->actionOpen->setVisible(serial);
    m_ui->actionClose->setVisible(serial);
    m_ui->actionConnect->setVisible(!serial);
    m_ui->actionDisconnect->setVisible(!serial);
}

void ConsolePanel::showFrequency(double value, const QString &unit)
{
    m_ui->comboBoxUnit->setCurrentText(unit);
    m_ui->doubleSpinBoxFreq->setValue(value);
}

void ConsolePanel::changeFrequencyUnit(const QString &name)
{
    const double value = m_ui->doubleSpinBoxFreq->value(); // before the new range clamps it
    const auto unit = FrequencyUnit::find(name);
    if (!unit)
        return;
    m_ui->doubleSpinBoxFreq->setRange(unit->minimum, unit->maximum);
    m_ui->doubleSpinBoxFreq->setDecimals(unit->decimals);
    m_ui->doubleSpinBoxFreq->setValue(value * m_frequencyFactor / unit->factor);
    m_frequencyFactor = unit->factor;
}

QString ConsolePanel::frequency() const
{
    return frequencyText(m_ui->doubleSpinBoxFreq->value(), m_frequencyFactor);
}

void ConsolePanel::showPowerUnit(const QString &unit)
{
    const bool dBm = unit == QStringLiteral("dBm") || unit == QStringLiteral("DBM");
    checkSilently(dBm ? m_ui->radioButtondBm : m_ui->radioButtonW);
}

void ConsolePanel::showRelativeState(const QString &state)
{
    const bool on = state == QStringLiteral("ON");
    checkSilently(on ? m_ui->radioButtonRelativeON : m_ui->radioButtonRelativeOFF);
    m_ui->groupBoxUnit->setEnabled(!on);
}

void ConsolePanel::showReading(double power, const QString &text)
{
    m_ui->labelCurrentPower->setText(QString::number(power, 'f', 2));
    m_ui->labelShowText->setText(text);
}

void ConsolePanel::fitReading()
{
    constexpr int margins = 120; // around and between the labels
    const int panelWidth = m_ui->panel->sizeHint().expandedTo(m_ui->panel->minimumSize()).width();
    fitPowerDisplay(m_window->size() - QSize(panelWidth + margins, 0), m_ui->labelCurrentPower,
                    m_ui->labelPowerUnit, m_ui->labelShowText);
}

int ConsolePanel::recordInterval() const
{
    return m_ui->spinBoxInterval->value();
}

void ConsolePanel::setRecordFolder(const QString &folder)
{
    m_ui->lineEditPath->setText(folder);
    m_ui->lineEditPath->setToolTip(folder);
}

void ConsolePanel::setDefaultRecordFolder()
{
    const QDir current;
    if (!current.exists(QStringLiteral("DataRecord")))
        current.mkdir(QStringLiteral("DataRecord"));
    setRecordFolder(QStringLiteral("%1/DataRecord").arg(QDir::currentPath()));
}

ConsoleSettings ConsolePanel::settings() const
{
    ConsoleSettings settings;
    settings.recordFolder = m_ui->lineEditPath->text();
    settings.interval = m_ui->spinBoxInterval->value();
    settings.period = m_ui->spinBoxChartPeriod->value();
    return settings;
}

void ConsolePanel::showSettings(const ConsoleSettings &settings)
{
    setRecordFolder(settings.usedRecordFolder());
    m_ui->spinBoxInterval->setValue(settings.interval);
    m_ui->spinBoxChartPeriod->setValue(settings.period);
}

void ConsolePanel::saveRecord() const
{
    // One look at the clock, so that no row of the new day ends up in the old day's file.
    const QDateTime now = QDateTime::currentDateTime();
    RecordFile::append(
        RecordFile::path(m_ui->lineEditPath->text(), now.date()),
        RecordFile::row(now, m_ui->doubleSpinBoxFreq->value(), m_ui->doubleSpinBoxOffset->value(),
                        m_ui->labelCurrentPower->text(), m_ui->labelShowText->text()));
}
