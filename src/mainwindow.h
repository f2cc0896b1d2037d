#pragma once

#include "Logic/linkmode.h"
#include "console/consolepanel.h"
#include "console/linksession.h"
#include "console/logdays.h"
#include "console/settingboxes.h"
#include "console/startoptions.h"
#include "console/statuslabels.h"
#include "console/taskwait.h"
#include "console/timechart.h"
#include "frame/language.h"

#include <QMainWindow>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class ConnectDialog;
class InputGate;
class QLockFile;
class QTimer;
class RecordKeeper;
class SerialLogic;
class WatchDesk;

namespace Ui {
class MainWindow;
}

/// The console of the power meter: it drives the instrument over the link, shows, charts and
/// records the readings, and keeps the settings in "config.ini" beside the program.
///
/// The window is wiring. What the link reports comes in through the update slots, what the user
/// wishes through the slots bound to the widgets; the link's life is LinkSession's, the look of the
/// form ConsolePanel's, and what is set in the instrument SettingBoxes'.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Does what the command line asks for, as the user's clicks would.
    void begin(const StartOptions &options);
    /// The same as soon as the window can be seen, so that nobody waits for a black one.
    void beginOncePainted(const StartOptions &options);

    /// Sends the value of a number box when Enter is pressed in it; Escape puts back what the
    /// instrument holds.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Opens the link and reads back what the instrument is set to: \a port and \a baudRate are the
    /// serial port and its baud rate, or the host and its TCP port. False when that failed; the
    /// user has been told.
    bool openPort(const QString &port, const int &baudRate);

    void updateIDN(QString idn);
    void updateFrequency(double freq, QString unit);
    void updateOffset(double offset);
    void updateAverageCount(int count);
    void updatePowerUnit(QString unit);
    void updateRelState(QString state);
    /// Shows a reading: \a dialValue in dBm and the instrument's own text of it.
    void updatePower(double dialValue, QString showText);
    void updateSetZeroSuccess();
    void updateSetZeroFailed();
    void updateCalibrationSuccess();
    void updateCalibrationFailed();

    /// Tells of an error, every one of which counts as a lost link.
    void errorMessageBox(QString error);
    void infoMessageBox(QString info);

    void timerOut();
    void readValue();
    /// Counts a second of the wait for a result.
    void loadingTimerOut() { m_wait.countDown(); }
    /// Records what is shown, after a look at the instrument when that is not its latest reading;
    /// while a result is awaited, a little later.
    void saveValue();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void on_actionOpen_triggered();
    void on_actionClose_triggered();
    void on_actionConnect_triggered();
    void on_actionDisconnect_triggered();
    void on_actionCommunication_by_Serial_triggered(bool checked);
    void on_actionCommunication_by_LAN_triggered(bool checked);
    void on_actionExit_triggered() { close(); }
    void on_actionHelp_triggered();
    void on_actionManual_triggered();
    void on_actionCN_triggered(bool checked);
    void on_actionEN_triggered(bool checked);

    void on_btnOpen_clicked();
    void on_btnClose_clicked();
    void on_btnSetFreq_clicked();
    void on_comboBoxUnit_currentIndexChanged(const QString &arg1);
    void on_btnSetOffset_clicked();
    void on_btnSetAverageCount_clicked();
    void on_radioButtonRelativeON_clicked();
    void on_radioButtonRelativeON_toggled(bool checked);
    void on_radioButtonRelativeOFF_toggled(bool checked);
    void on_radioButtondBm_toggled(bool checked);
    void on_radioButtonW_toggled(bool checked);
    void on_btnSetZero_clicked();
    void on_btnCalibration_clicked();
    void on_btnSetChartPeriod_clicked();
    void on_btnResetChart_clicked() { m_chart.clear(); }
    void on_btnReset_clicked();
    void on_btnPath_clicked();
    void on_lineEditPath_editingFinished();

private:
    using Setting = LinkSession::Setting;
    using Notice = StatusLabels::Notice;

    void connectLink();
    void connectSession();
    void setLinkMode(LinkMode mode);
    void showLinkState(LinkSession::State state);
    void showWaiting(const QString &what);

    void send(Setting setting);
    void choose(Setting setting, bool checked);
    void tellConfirmed(Setting setting);
    void tellRefused(Setting setting);

    void startTask(void (SerialLogic::*task)(), const QString &name);
    void endTask(const std::function<void()> &showBox);
    void showReading();
    void useRecordFolder(const QString &folder);
    void warn(const QString &text);

    void readSettings();
    void writeSettings() const;
    void setLanguage(const QString &code);

    std::unique_ptr<Ui::MainWindow> m_ui;
    Language m_language;
    ConsolePanel m_panel;
    SettingBoxes *m_settings;
    StatusLabels m_status;
    InputGate *m_gate;
    TimeChart m_chart;
    SerialLogic *m_link;
    LinkSession *m_session;
    RecordKeeper *m_records;
    ConnectDialog *m_connectDialog;
    TaskWait m_wait;
    WatchDesk *m_watch;
    QTimer *m_clockTimer;
    std::unique_ptr<QLockFile> m_folderLock;
    std::optional<StartOptions> m_startOptions; // until the window is painted
    LogDays m_logDays;
    bool m_errorBoxOpen = false;
    std::optional<Setting> m_refused; // as the status bar says
};
