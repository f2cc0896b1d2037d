// What the user sets and what the instrument tells: the part of the window that measures.

#include "mainwindow.h"

#include "Logic/seriallogic.h"
#include "console/recordkeeper.h"
#include "console/watchdesk.h"
#include "ui_mainwindow.h"

#include <QDateTime>
#include <QFileDialog>
#include <QKeyEvent>
#include <QTimer>

#include <utility>

// --- The settings panel

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->centralWidget && event->type() == QEvent::Resize) // a panel came or went
        QTimer::singleShot(0, this, [this] { m_panel.fit(); });
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape && m_settings->putBack(watched))
            return true;
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (enter && watched == m_ui->doubleSpinBoxFreq)
            on_btnSetFreq_clicked();
        else if (enter && watched == m_ui->doubleSpinBoxOffset)
            on_btnSetOffset_clicked();
        else if (enter && watched == m_ui->spinBoxAverageCount)
            on_btnSetAverageCount_clicked();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::on_btnSetFreq_clicked()
{
    send(Setting::Frequency);
}

void MainWindow::on_comboBoxUnit_currentIndexChanged(const QString &arg1)
{
    m_settings->changeFrequencyUnit(arg1);
}

void MainWindow::on_btnSetOffset_clicked()
{
    send(Setting::Offset);
}

void MainWindow::on_btnSetAverageCount_clicked()
{
    send(Setting::AverageCount);
}

void MainWindow::on_radioButtonRelativeON_clicked()
{
    // Also on the button that is on already: "ON" again takes a new reference. When the change of
    // the button has ended the link just now, it has been told.
    if (m_session->isOpen())
        choose(Setting::RelativeState, m_ui->radioButtonRelativeON->isChecked());
}

void MainWindow::on_radioButtonRelativeON_toggled(bool checked)
{
    choose(Setting::RelativeState, checked);
}

void MainWindow::on_radioButtonRelativeOFF_toggled(bool checked)
{
    choose(Setting::RelativeState, checked);
}

void MainWindow::on_radioButtondBm_toggled(bool checked)
{
    choose(Setting::PowerUnit, checked);
}

void MainWindow::on_radioButtonW_toggled(bool checked)
{
    choose(Setting::PowerUnit, checked);
}

void MainWindow::choose(Setting setting, bool checked)
{
    // Of the two buttons of a choice the one that is left only lets polling rest.
    m_session->stopPolling();
    if (!checked)
        return;
    send(setting);
}

void MainWindow::send(Setting setting)
{
    m_settings->ask(setting);
    m_session->change(setting,
                      [this, setting](SerialLogic &link) { m_settings->send(setting, link); });
}

void MainWindow::tellConfirmed(Setting setting)
{
    if (m_session->isOpening())
        return;
    m_refused.reset();
    if (m_settings->disagreement(setting).isEmpty())
        m_status.clearNotice(Notice::Setting);
    else
        m_status.showNotice(Notice::Setting,
                            [this, setting] { return m_settings->disagreement(setting); });
}

void MainWindow::tellRefused(Setting setting)
{
    m_refused = setting;
    m_status.showNotice(Notice::Setting, [this, setting] {
        const QString text =
            m_session->isResting()
                ? tr("%1 was not confirmed. Polling rests until it is set again or the link is "
                     "opened anew.")
                : tr("%1 was not confirmed.");
        return text.arg(SettingBoxes::nameOf(setting));
    });
    showReading();
}

void MainWindow::updateIDN(QString idn)
{
    m_status.showIdentity(idn);
    m_session->startPolling();
}

void MainWindow::updateFrequency(double freq, QString unit)
{
    m_settings->showFrequency(freq, unit);
    m_session->confirm(Setting::Frequency);
}

void MainWindow::updateOffset(double offset)
{
    m_settings->showOffset(offset);
    m_session->confirm(Setting::Offset);
}

void MainWindow::updateAverageCount(int count)
{
    m_settings->showAverageCount(count);
    m_session->confirm(Setting::AverageCount);
}

void MainWindow::updatePowerUnit(QString unit)
{
    m_settings->showPowerUnit(unit);
    m_session->confirm(Setting::PowerUnit);
}

void MainWindow::updateRelState(QString state)
{
    m_settings->showRelativeState(state);
    m_session->confirm(Setting::RelativeState);
}

// --- Zeroing and calibration

void MainWindow::on_btnSetZero_clicked()
{
    startTask(&SerialLogic::setZero, tr("Set zero"));
}

void MainWindow::on_btnCalibration_clicked()
{
    startTask(&SerialLogic::calibrate, tr("Calibration"));
}

void MainWindow::startTask(void (SerialLogic::*task)(), const QString &name)
{
    if (m_session->startTask(task))
        m_wait.run(name);
}

void MainWindow::endTask(const std::function<void()> &showBox)
{
    m_wait.end([this, showBox] {
        m_session->startPolling(); // the user may be away from the box for days
        showBox();
        m_session->startPolling();
    });
}

void MainWindow::updateSetZeroSuccess()
{
    endTask([this] { infoMessageBox(tr("Set zero success!")); });
}

void MainWindow::updateSetZeroFailed()
{
    endTask([this] { warn(tr("Set zero failed!")); });
}

void MainWindow::updateCalibrationSuccess()
{
    endTask([this] { infoMessageBox(tr("Calibration success!")); });
}

void MainWindow::updateCalibrationFailed()
{
    endTask([this] { warn(tr("Calibration failed!")); });
}

// --- Readings, chart and records

void MainWindow::readValue()
{
    m_session->poll();
}

void MainWindow::updatePower(double dialValue, QString showText)
{
    m_session->takeReading(dialValue, showText);
}

void MainWindow::showReading()
{
    m_panel.showReading(*m_session);
    if (!m_refused || m_session->isResting())
        return;
    // A record that was due has read the power, and polling goes on from there.
    m_status.retranslate();
    if (m_settings->isUnsent(*m_refused))
        return;
    m_refused.reset();
    m_status.clearNotice(Notice::Setting);
}

void MainWindow::saveValue()
{
    if (m_session->provideReading(!m_wait.isRunning()))
        m_records->write(m_panel.recordFolder(), m_ui->doubleSpinBoxFreq->value(),
                         m_ui->doubleSpinBoxOffset->value(), m_session->reading());
}

void MainWindow::timerOut()
{
    const QDateTime now = QDateTime::currentDateTime();
    m_panel.refreshPorts();
    m_status.showTime(now);
    m_logDays.tick(now.date());
    if (m_session->isOpen())
        m_chart.feed(m_session->reading());
    showReading(); // it grows old
}

void MainWindow::on_btnSetChartPeriod_clicked()
{
    const int period = m_ui->spinBoxChartPeriod->value();
    m_chart.setPeriod(period, tr("Last %1 minutes").arg(period));
}

void MainWindow::on_btnReset_clicked()
{
    saveValue();
    if (m_session->isOpen()) // the look at the instrument may have found the link lost
        m_session->startRecords(m_panel.recordInterval());
}

void MainWindow::on_btnPath_clicked()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Save Dir"), m_panel.recordFolder());
    if (!folder.isEmpty()) {
        useRecordFolder(folder);
        return;
    }
    warn(tr("No directory selected."));
    useRecordFolder(ConsolePanel::defaultRecordFolder());
}

void MainWindow::on_lineEditPath_editingFinished()
{
    if (!m_ui->lineEditPath->isModified())
        return;
    if (m_ui->lineEditPath->isEnabled())
        useRecordFolder(m_ui->lineEditPath->text());
    else // the link has ended under it, and a question would keep that from being told
        m_panel.setRecordFolder(m_panel.recordFolder());
}

void MainWindow::useRecordFolder(const QString &folder)
{
    const auto obstacle = m_panel.chooseRecordFolder(folder);
    if (obstacle)
        warn(tr("No records can be written to \"%1\": %2. The folder stays as it was.")
                 .arg(folder, *obstacle));
    else
        m_records->reset();
}
