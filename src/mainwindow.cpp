#include "mainwindow.h"

#include "Logic/seriallogic.h"
#include "connectdialog.h"
#include "console/linksession.h"
#include "console/startoptions.h"
#include "console/writenotice.h"
#include "messagelog.h"
#include "storage/consolesettings.h"
#include "ui_mainwindow.h"

#include <QDateTime>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int clockPeriod = 1000; // ms
constexpr QSize smallestWindow{1120, 800};

std::unique_ptr<Ui::MainWindow> buildForm(QMainWindow *window)
{
    auto form = std::make_unique<Ui::MainWindow>();
    form->setupUi(window);
    return form;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(buildForm(this))
    , m_panel(m_ui.get(), this)
    , m_status(m_ui->statusBar)
    , m_ports(m_ui->comboBoxCom)
    , m_chart(this, m_ui->horizontalLayout_8)
    , m_link(new SerialLogic(this))
    , m_session(new LinkSession(m_link, &m_panel, &m_status, &m_chart, this))
    , m_connectDialog(new ConnectDialog(this))
    , m_wait(this)
    , m_clockTimer(new QTimer(this))
{
    resize(smallestWindow);
    setMinimumSize(smallestWindow);
    connectLink();
    connect(m_connectDialog, &ConnectDialog::openPort, this, &MainWindow::openPort);
    connect(m_session, &LinkSession::readingDue, this, &MainWindow::readValue);
    connect(m_session, &LinkSession::recordDue, this, &MainWindow::saveValue);
    connect(m_session, &LinkSession::ended, this, [this] { m_wait.end(); });
    connect(m_wait.timer(), &QTimer::timeout, this, &MainWindow::loadingTimerOut);
    m_clockTimer->setObjectName(QStringLiteral("clockTimer"));
    connect(m_clockTimer, &QTimer::timeout, this, &MainWindow::timerOut);
    m_clockTimer->start(clockPeriod);
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    m_panel.setDefaultRecordFolder();

    on_actionCommunication_by_Serial_triggered(true);
    readSettings();
    m_ui->comboBoxCom->setCurrentText(m_session->ipAddress());
    updateFrequency(50, QStringLiteral("MHz"));
}

MainWindow::~MainWindow()
{
    writeSettings();
}

void MainWindow::begin(const StartOptions &options)
{
    if (!options.language.isEmpty()) {
        (options.language == QStringLiteral("cn") ? m_ui->actionCN : m_ui->actionEN)->trigger();
        updateFrequency(50, QStringLiteral("MHz"));
    }
    WriteNotice::show(this, WriteCheck::places(m_ui->lineEditPath->text(),
                                               MessageLog::file(QDateTime::currentDateTime())));
    if (!options.lanHost.isEmpty()) {
        m_ui->actionCommunication_by_LAN->trigger();
        openPort(options.lanHost, instrumentTcpPort);
    } else if (!options.serialPort.isEmpty()) {
        openPort(options.serialPort, options.baudRate);
    }
}

// --- Assembly

void MainWindow::connectLink()
{
    connect(m_link, &SerialLogic::busy, this, [](bool isBusy) {
        if (isBusy)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QGuiApplication::restoreOverrideCursor();
    });
    connect(m_link, &SerialLogic::errors, this, &MainWindow::errorMessageBox);
    connect(m_link, &SerialLogic::updateSetFailed, this, &MainWindow::errorMessageBox);
    connect(m_link, &SerialLogic::updateIDN, this, &MainWindow::updateIDN);
    connect(m_link, &SerialLogic::updateFrequency, this, &MainWindow::updateFrequency);
    connect(m_link, &SerialLogic::updateOffset, this, &MainWindow::updateOffset);
    connect(m_link, &SerialLogic::updatePowUnit, this, &MainWindow::updatePowerUnit);
    connect(m_link, &SerialLogic::updateAverageCount, this, &MainWindow::updateAverageCount);
    connect(m_link, &SerialLogic::updateMeasureState, this, &MainWindow::updateRelState);
    connect(m_link, &SerialLogic::updatePower, this, &MainWindow::updatePower);
    connect(m_link, &SerialLogic::updateSetZeroSuccess, this, &MainWindow::updateSetZeroSuccess);
    connect(m_link, &SerialLogic::updateSetZeroFailed, this, &MainWindow::updateSetZeroFailed);
    connect(m_link, &SerialLogic::updateCalibrationSuccess, this,
            &MainWindow::updateCalibrationSuccess);
    connect(m_link, &SerialLogic::updateCalibrationFailed, this,
            &MainWindow::updateCalibrationFailed);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_session->close(StatusLabels::Link::Closed);
    QMainWindow::closeEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_panel.fitReading();
}

// --- The link

bool MainWindow::openPort(const QString &port, const int &baudRate)
{
    return m_session->open(port, baudRate);
}

void MainWindow::setLinkMode(LinkMode mode)
{
    m_session->setMode(mode);
    m_connectDialog->setLinkMode(mode);
}

void MainWindow::errorMessageBox(QString error)
{
    m_session->end();
    m_status.showLink(StatusLabels::Link::Closed);
    if (m_errorBoxOpen) {
        qWarning() << "Not shown, as an error is shown already:" << error;
        return;
    }
    const QScopedValueRollback<bool> open(m_errorBoxOpen, true);
    QMessageBox::warning(this, tr("Note"), error);
}

void MainWindow::infoMessageBox(QString info)
{
    QMessageBox::information(this, tr("Info"), info, QMessageBox::Ok);
}

void MainWindow::warn(const QString &text)
{
    QMessageBox::warning(this, tr("Warning"), text, QMessageBox::Ok);
}

void MainWindow::on_btnOpen_clicked()
{
    if (m_session->mode() != serialLink)
        setLinkMode(serialLink);
    openPort(m_ui->comboBoxCom->currentText(), usualBaudRate);
}

void MainWindow::on_btnClose_clicked()
{
    m_session->close(StatusLabels::Link::Closed);
}

void MainWindow::on_actionOpen_triggered()
{
    m_connectDialog->show();
}

void MainWindow::on_actionClose_triggered()
{
    m_session->close(StatusLabels::Link::Closed);
}

void MainWindow::on_actionConnect_triggered()
{
    m_connectDialog->setIP(m_session->ipAddress());
    m_connectDialog->show();
}

void MainWindow::on_actionDisconnect_triggered()
{
    m_session->close(StatusLabels::Link::Disconnected);
}

void MainWindow::on_actionCommunication_by_Serial_triggered(bool checked)
{
    if (checked)
        setLinkMode(serialLink);
    else
        m_ui->actionCommunication_by_Serial->setChecked(true);
}

void MainWindow::on_actionCommunication_by_LAN_triggered(bool checked)
{
    if (checked)
        setLinkMode(lanLink);
    else
        m_ui->actionCommunication_by_LAN->setChecked(true);
}

// --- The settings panel

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
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
    m_session->stopPolling();
    m_ui->doubleSpinBoxFreq->interpretText(); // what was typed may not have been taken over yet
    m_link->setFrequency(m_panel.frequency(), m_ui->comboBoxUnit->currentText());
}

void MainWindow::on_comboBoxUnit_currentIndexChanged(const QString &arg1)
{
    m_panel.changeFrequencyUnit(arg1);
}

void MainWindow::on_btnSetOffset_clicked()
{
    m_session->stopPolling();
    m_ui->doubleSpinBoxOffset->interpretText();
    m_link->setOffset(m_ui->doubleSpinBoxOffset->value());
}

void MainWindow::on_btnSetAverageCount_clicked()
{
    m_session->stopPolling();
    m_ui->spinBoxAverageCount->interpretText();
    m_link->setAverageCount(m_ui->spinBoxAverageCount->value());
}

void MainWindow::on_radioButtonRelativeON_clicked()
{
    // Also on the button that is on already: "ON" again takes a new reference. When the change of
    // the button has ended the link just now, it has been told.
    if (!m_session->isOpen())
        return;
    on_radioButtonRelativeON_toggled(m_ui->radioButtonRelativeON->isChecked());
}

void MainWindow::on_radioButtonRelativeON_toggled(bool checked)
{
    m_session->stopPolling();
    if (checked)
        m_link->setMeasureState(QStringLiteral("ON"));
}

void MainWindow::on_radioButtonRelativeOFF_toggled(bool checked)
{
    m_session->stopPolling();
    if (checked)
        m_link->setMeasureState(QStringLiteral("OFF"));
}

void MainWindow::on_radioButtondBm_toggled(bool checked)
{
    m_session->stopPolling();
    if (checked)
        m_link->setPowerUnit(QStringLiteral("dBm"));
}

void MainWindow::on_radioButtonW_toggled(bool checked)
{
    m_session->stopPolling();
    if (checked)
        m_link->setPowerUnit(QStringLiteral("W"));
}

void MainWindow::updateIDN(QString idn)
{
    m_status.showIdentity(idn);
    m_session->startPolling();
}

void MainWindow::updateFrequency(double freq, QString unit)
{
    m_panel.showFrequency(freq, unit);
    m_session->startPolling();
}

void MainWindow::updateOffset(double offset)
{
    m_ui->doubleSpinBoxOffset->setValue(offset);
    m_session->startPolling();
}

void MainWindow::updateAverageCount(int count)
{
    m_ui->spinBoxAverageCount->setValue(count);
    m_session->startPolling();
}

void MainWindow::updatePowerUnit(QString unit)
{
    m_panel.showPowerUnit(unit);
    m_session->startPolling();
}

void MainWindow::updateRelState(QString state)
{
    m_panel.showRelativeState(state);
    m_session->startPolling();
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
    m_session->stopPolling();
    (m_link->*task)();
    if (!m_link->awaitsResult()) {
        // The command did not go out. Of a lost link the user has been told.
        if (m_session->isOpen())
            m_session->startPolling();
        return;
    }
    m_wait.run(name);
}

void MainWindow::loadingTimerOut()
{
    if (m_wait.countDown())
        errorMessageBox(tr("%1 time out!").arg(m_wait.task()));
}

void MainWindow::endTask(const std::function<void()> &showBox)
{
    m_wait.end([this, showBox] {
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
    if (m_session->isOpen())
        m_link->readMesureData();
    else
        m_session->stopPolling();
}

void MainWindow::updatePower(double dialValue, QString showText)
{
    m_panel.showReading(dialValue, showText);
    m_session->takeReading();
}

void MainWindow::saveValue()
{
    const bool isStale = m_session->isOpen() && !m_session->isReadingCurrent();
    if (!isStale || readForRecord())
        m_panel.saveRecord();
}

bool MainWindow::readForRecord()
{
    // While a result is awaited, the instrument would answer both in one.
    const bool isFree = !m_link->awaitsResult() && !m_wait.isRunning();
    if (isFree)
        m_link->readMesureData();
    if (m_session->isReadingCurrent())
        return true;
    if (m_session->isOpen()) // else the link is lost, of which the user has been told
        m_session->postponeRecord();
    return false;
}

void MainWindow::timerOut()
{
    m_ports.refresh();
    m_status.showTime(QDateTime::currentDateTime());
    if (m_session->isOpen())
        m_chart.feed(m_ui->labelCurrentPower->text());
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
        m_session->startRecords();
}

void MainWindow::on_btnPath_clicked()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Save Dir"), m_ui->lineEditPath->text());
    if (!folder.isEmpty()) {
        m_panel.setRecordFolder(folder);
        return;
    }
    warn(tr("No directory selected."));
    m_panel.setDefaultRecordFolder();
}

// --- Settings file, language and help

void MainWindow::writeSettings() const
{
    ConsoleSettings settings = m_panel.settings();
    settings.language = m_language.code();
    settings.ipAddress = m_session->ipAddress();
    settings.save(ConsoleSettings::ownFile());
}

void MainWindow::readSettings()
{
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    const auto settings = ConsoleSettings::load(ConsoleSettings::ownFile());
    if (!settings) {
        m_ui->actionEN->trigger();
        return;
    }
    (settings->language == QStringLiteral("en") ? m_ui->actionEN : m_ui->actionCN)->trigger();
    m_session->setIpAddress(settings->ipAddress);
    m_panel.showSettings(*settings);
    on_btnSetChartPeriod_clicked();
}

void MainWindow::on_actionCN_triggered(bool checked)
{
    m_ui->actionCN->setChecked(checked);
    m_ui->actionEN->setChecked(!checked);
    setLanguage(QStringLiteral("cn"));
}

void MainWindow::on_actionEN_triggered(bool checked)
{
    m_ui->actionEN->setChecked(checked);
    m_ui->actionCN->setChecked(!checked);
    setLanguage(QStringLiteral("en"));
}

void MainWindow::setLanguage(const QString &code)
{
    m_language.set(code);
    m_panel.retranslate();
    m_status.retranslate();
    m_connectDialog->retranslate();
    m_chart.retranslate();
}

void MainWindow::on_actionHelp_triggered()
{
    const QString file =
        tr("%1/%2").arg(QCoreApplication::applicationDirPath(), QStringLiteral("help.pdf"));
    if (QFileInfo::exists(file))
        QDesktopServices::openUrl(QUrl::fromLocalFile(QStringLiteral("file:///") + file));
}
