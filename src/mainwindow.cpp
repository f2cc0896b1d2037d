#include "mainwindow.h"

#include "Logic/seriallogic.h"
#include "connectdialog.h"
#include "console/inputgate.h"
#include "console/recordkeeper.h"
#include "console/watchdesk.h"
#include "console/writenotice.h"
#include "frame/inputrules.h"
#include "frame/manual.h"
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
#include <QLockFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace {

constexpr int clockPeriod = 1000;     // ms
constexpr int longestPainting = 2000; // ms until a window is taken for one that nobody sees

/// What the window needs, or what a screen that is smaller has room for.
QSize smallestWindow()
{
    constexpr QSize wanted{1120, 800};
    constexpr QSize frame{8, 40};
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen == nullptr || QGuiApplication::platformName() == QLatin1String("offscreen"))
        return wanted;
    const QSize room = screen->availableSize();
    return room.width() >= wanted.width() && room.height() >= wanted.height()
               ? wanted
               : wanted.boundedTo(room - frame);
}

std::unique_ptr<Ui::MainWindow> buildForm(QMainWindow *window)
{
    InputRules::install(); // before there is a box to follow them
    auto form = std::make_unique<Ui::MainWindow>();
    form->setupUi(window);
    return form;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(buildForm(this))
    , m_panel(m_ui.get(), this)
    , m_settings(new SettingBoxes(m_ui.get(), this))
    , m_status(m_ui->statusBar)
    , m_gate(new InputGate(m_status.stopButton()))
    , m_chart(this, m_ui->horizontalLayout_8)
    , m_link(new SerialLogic(this))
    , m_session(new LinkSession(m_link, this))
    , m_records(new RecordKeeper(this))
    , m_connectDialog(new ConnectDialog(this, ConnectDialog::Form::WhenNeeded))
    , m_wait(this)
    , m_watch(new WatchDesk({this, m_ui.get(), m_link, m_session, &m_chart, &m_status}))
    , m_clockTimer(new QTimer(this))
{
    resize(smallestWindow());
    setMinimumSize(smallestWindow());
    m_ui->centralWidget->installEventFilter(this);
    connectLink();
    connectSession();
    connect(m_settings, &SettingBoxes::wantedAgain, this, &MainWindow::send);
    connect(m_connectDialog, &ConnectDialog::openPort, this, &MainWindow::openPort);
    connect(&m_wait, &TaskWait::timedOut, this,
            [this](const QString &task) { errorMessageBox(tr("%1 time out!").arg(task)); });
    m_clockTimer->setObjectName(QStringLiteral("clockTimer"));
    connect(m_clockTimer, &QTimer::timeout, this, &MainWindow::timerOut);
    m_clockTimer->start(clockPeriod);
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    m_panel.setRecordFolder(ConsolePanel::defaultRecordFolder());
    m_panel.showRecords(*m_records);

    on_actionCommunication_by_Serial_triggered(true);
    readSettings();
    m_ui->comboBoxCom->setCurrentText(m_session->ipAddress());
    updateFrequency(50, QStringLiteral("MHz"));
}

MainWindow::~MainWindow()
{
    writeSettings();
    m_watch->save();
}

void MainWindow::beginOncePainted(const StartOptions &options)
{
    m_startOptions = options;
    // A window that is opened as an icon is not painted.
    QTimer::singleShot(longestPainting, this, [this] {
        if (const auto wished = std::exchange(m_startOptions, std::nullopt))
            begin(*wished);
    });
}

bool MainWindow::event(QEvent *event)
{
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::Polish) {
        // With the panel and the reading at their sizes the chart is laid out at one size, not at
        // three, before it is seen.
        layout()->activate();
        m_ui->centralWidget->layout()->activate();
        m_panel.fit();
        m_ui->layoutPower->activate(); // which tells the layout around it
    }
    return isHandled;
}

void MainWindow::paintEvent(QPaintEvent *event)
{
    QMainWindow::paintEvent(event);
    if (const auto wished = std::exchange(m_startOptions, std::nullopt))
        QTimer::singleShot(0, this, [this, options = *wished] { begin(options); });
}

void MainWindow::begin(const StartOptions &options)
{
    if (!options.language.isEmpty()) {
        (options.language == QStringLiteral("cn") ? m_ui->actionCN : m_ui->actionEN)->trigger();
        updateFrequency(50, QStringLiteral("MHz"));
    }
    m_logDays.begin(options.logDays);
    WriteNotice::show(this, WriteCheck::places(m_panel.recordFolder(),
                                               MessageLog::file(QDateTime::currentDateTime())));
    m_folderLock = WriteNotice::takeFolder(this, QCoreApplication::applicationDirPath());
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
    connect(m_link, &SerialLogic::replied, m_settings, &SettingBoxes::noteOutcome);
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

void MainWindow::connectSession()
{
    connect(m_session, &LinkSession::modeChanged, this,
            [this](LinkMode mode) { m_panel.showLinkState(mode, false); });
    connect(m_session, &LinkSession::stateChanged, this, &MainWindow::showLinkState);
    connect(m_session, &LinkSession::portChanged, this, [this](const QString &port, int value) {
        m_status.showIdentity({}); // it was told at another port
        m_status.showPort(port, value);
        if (m_session->mode() == serialLink)
            m_panel.showPort(port);
    });
    connect(m_session, &LinkSession::waitingFor, this, &MainWindow::showWaiting);
    // Not the link's own events: it waits for those itself.
    connect(m_session, &LinkSession::stillWaiting, this,
            [] { QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers); });
    connect(m_session, &LinkSession::readingChanged, this, &MainWindow::showReading);
    connect(m_session, &LinkSession::settingConfirmed, this, &MainWindow::tellConfirmed);
    connect(m_session, &LinkSession::settingRefused, this, &MainWindow::tellRefused);
    connect(m_session, &LinkSession::linkLost, this, [this](const QString &reason) {
        if (!m_watch->takesLoss(reason))
            errorMessageBox(reason);
    });
    connect(m_session, &LinkSession::failed, this, [this](const QString &reason) {
        if (!m_watch->takesFailure(reason))
            errorMessageBox(reason);
    });
    connect(m_session, &LinkSession::readingDue, this, &MainWindow::readValue);
    connect(m_session, &LinkSession::recordDue, this, &MainWindow::saveValue);
    m_session->setRecordInterval([this] { return m_panel.recordInterval(); });
    connect(m_status.stopButton(), &QPushButton::clicked, m_session, &LinkSession::stopOpening);
    connect(m_gate, &InputGate::escaped, m_session, &LinkSession::stopOpening);
    connect(m_records, &RecordKeeper::changed, this, [this] {
        m_panel.showRecords(*m_records);
        if (!m_records->failure())
            m_status.clearNotice(Notice::Records);
    });
    connect(m_records, &RecordKeeper::failed, this, [this](const QString &reason) {
        m_status.showNotice(Notice::Records,
                            [reason] { return tr("Records are not written: %1").arg(reason); });
    });
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_session->close();
    QMainWindow::closeEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_panel.fit();
}

// --- The link

bool MainWindow::openPort(const QString &port, const int &baudRate)
{
    m_watch->endTries();
    return m_session->open(port, baudRate);
}

void MainWindow::setLinkMode(LinkMode mode)
{
    m_session->setMode(mode);
    m_connectDialog->setLinkMode(mode);
}

void MainWindow::showLinkState(LinkSession::State state)
{
    const bool isSerial = m_session->mode() == serialLink;
    switch (state) {
    case LinkSession::State::Closed:
        m_wait.end();
        m_chart.restartTime();
        m_settings->forget();
        m_status.clearNotice();
        m_refused.reset();
        m_status.showLink(m_session->isDisconnected() ? StatusLabels::Link::Disconnected
                                                      : StatusLabels::Link::Closed);
        m_panel.showLinkState(m_session->mode(), false);
        break;
    case LinkSession::State::Opening:
        m_settings->forget();
        m_status.showLink(isSerial ? StatusLabels::Link::Open : StatusLabels::Link::Connected);
        m_panel.showLinkState(m_session->mode(), true);
        break;
    case LinkSession::State::Open: // the panel stays as the instrument's answers left it
        if (m_watch->isReconnecting())
            m_chart.resume();
        else
            m_chart.clear();
        break;
    }
    showReading();
}

void MainWindow::showWaiting(const QString &what)
{
    const bool isWaiting = !what.isEmpty();
    m_gate->setClosed(isWaiting);
    m_status.stopButton()->setVisible(isWaiting);
    if (!isWaiting) {
        m_status.clearNotice(Notice::Waiting);
        return;
    }
    m_status.showNotice(Notice::Waiting, [what] { return what; });
}

void MainWindow::errorMessageBox(QString error)
{
    m_session->end();
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
    m_session->close();
}

void MainWindow::on_actionOpen_triggered()
{
    m_connectDialog->show();
}

void MainWindow::on_actionClose_triggered()
{
    m_session->close();
}

void MainWindow::on_actionConnect_triggered()
{
    m_connectDialog->setIP(m_session->proposedAddress());
    m_connectDialog->show();
}

void MainWindow::on_actionDisconnect_triggered()
{
    m_session->disconnectLink();
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
    m_settings->retranslate();
    m_panel.showRecords(*m_records);
    m_status.retranslate();
    m_connectDialog->retranslate();
    m_chart.retranslate();
    m_watch->retranslate();
    showReading();
}

void MainWindow::on_actionManual_triggered()
{
    Manual::open(this);
}

void MainWindow::on_actionHelp_triggered()
{
    const QString file =
        tr("%1/%2").arg(QCoreApplication::applicationDirPath(), QStringLiteral("help.pdf"));
    if (QFileInfo::exists(file))
        QDesktopServices::openUrl(QUrl::fromLocalFile(QStringLiteral("file:///") + file));
}
