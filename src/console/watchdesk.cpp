#include "console/watchdesk.h"

#include "2d/view/graphicsbase.h"
#include "Logic/replyparser.h"
#include "Logic/seriallogic.h"
#include "console/limitlines.h"
#include "console/linksession.h"
#include "console/statuslabels.h"
#include "console/timechart.h"
#include "recorddata/recordrow.h"
#include "recordview/recordview.h"
#include "ui_mainwindow.h"
#include "watch/alarmnotice.h"
#include "watch/limitspanel.h"
#include "watch/limitwatch.h"
#include "watch/statisticspanel.h"
#include "watch/trafficmodel.h"
#include "watch/trafficpanel.h"

#include <QDebug>
#include <QDockWidget>
#include <QDropEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMimeData>
#include <QScopedValueRollback>

#include <functional>
#include <tuple>
#include <utility>

namespace {

/// A dock whose panel is made when it is shown for the first time: few users open all of them, and
/// none of them waits for the start.
class PanelDock : public QDockWidget
{
public:
    PanelDock(QWidget *window, std::function<QWidget *()> makePanel)
        : QDockWidget(window)
        , m_makePanel(std::move(makePanel))
    {}

    void setVisible(bool visible) override
    {
        if (visible && widget() == nullptr)
            setWidget(m_makePanel());
        QDockWidget::setVisible(visible);
    }

private:
    std::function<QWidget *()> m_makePanel;
};

/// The dropped files, if all of them hold records.
QStringList droppedRecords(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        constexpr qint64 longestLine = 4096;
        QFile file(url.toLocalFile());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray line = file.readLine(longestLine);
        if (RowParser::kindOf({line.constData(), std::size_t(line.size())}) == RecordKind::Unknown)
            return {};
        paths.append(file.fileName());
    }
    return paths;
}

QString remarkOn(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Timeout:
        return WatchDesk::tr("no reply in time");
    case Outcome::Garbled:
        return WatchDesk::tr("not understood");
    case Outcome::Refused:
        return WatchDesk::tr("refused");
    case Outcome::Link:
        return WatchDesk::tr("no link");
    case Outcome::Ok:
        break;
    }
    return {};
}

} // namespace

WatchDesk::WatchDesk(const Console &console)
    : QObject(console.window)
    , m_console(console)
    , m_statisticsDock(new PanelDock(console.window, [this] { return makeStatisticsPanel(); }))
    , m_limitsDock(new PanelDock(console.window, [this] { return makeLimitsPanel(); }))
    , m_trafficDock(new PanelDock(console.window, [this] { return makeTrafficPanel(); }))
    , m_limits(new LimitWatch(this))
    , m_alarm(new AlarmNotice(m_limits, console.form->groupBox_6))
    , m_traffic(new TrafficModel(this))
{
    createMenus();
    createPanels();
    connectReadings();
    connectTraffic();
    connectReconnector();
    placeAlarm();
    new LimitLines(m_limits, console.chart->view(), this);
    console.window->setAcceptDrops(true);
    console.window->installEventFilter(this);
    console.chart->view()->viewport()->installEventFilter(this);
    retranslate();
    load();
}

WatchDesk::~WatchDesk() = default;

// --- Assembly

void WatchDesk::createMenus()
{
    Ui::MainWindow *form = m_console.form;
    m_openRecord = new QAction(this);
    m_openRecord->setObjectName(QStringLiteral("actionOpen_Record"));
    m_openRecord->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O));
    connect(m_openRecord, &QAction::triggered, this, &WatchDesk::askForRecord);
    form->menuFile->insertAction(form->actionExit, m_openRecord);
    form->menuFile->insertSeparator(form->actionExit);

    m_reconnect = new QAction(this);
    m_reconnect->setObjectName(QStringLiteral("actionReconnect"));
    m_reconnect->setCheckable(true);
    connect(m_reconnect, &QAction::toggled, this, [this](bool on) {
        if (!on)
            endTries();
    });
    form->menuCommunication->addSeparator();
    form->menuCommunication->addAction(m_reconnect);

    m_viewMenu = new QMenu(m_console.window);
    m_viewMenu->setObjectName(QStringLiteral("menuView"));
    form->menuBar->insertMenu(form->menuLanuage->menuAction(), m_viewMenu);
}

/// At the end of the line that tells how the reading stands.
void WatchDesk::placeAlarm()
{
    Ui::MainWindow *form = m_console.form;
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, form->horizontalLayoutPower->contentsMargins().right(), 0);
    form->layoutPower->removeWidget(form->labelReadingState);
    row->addWidget(form->labelReadingState, 1);
    row->addWidget(m_alarm);
    form->layoutPower->addLayout(row);
}

void WatchDesk::createPanels()
{
    // The panels at the right have more rows to show than the one below has columns.
    m_console.window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    setUpDock(m_statisticsDock, "dockStatistics", Qt::RightDockWidgetArea);
    setUpDock(m_limitsDock, "dockLimits", Qt::RightDockWidgetArea);
    setUpDock(m_trafficDock, "dockTraffic", Qt::BottomDockWidgetArea);
    connect(m_statisticsDock, &QDockWidget::visibilityChanged, this, &WatchDesk::showStatistics);
}

void WatchDesk::setUpDock(QDockWidget *dock, const char *name, Qt::DockWidgetArea area)
{
    dock->setObjectName(QLatin1String(name));
    dock->hide();
    m_console.window->addDockWidget(area, dock);
    m_viewMenu->addAction(dock->toggleViewAction());
    connect(dock, &QDockWidget::visibilityChanged, this,
            [this](bool visible) { m_wasPanelShown = m_wasPanelShown || visible; });
}

QWidget *WatchDesk::makeStatisticsPanel()
{
    // The panels are made with their docks as parents: the style sheet is applied to a whole panel
    // anew when it changes its parent.
    m_statisticsPanel = new StatisticsPanel(m_statisticsDock);
    m_statisticsPanel->setOver(m_settings.isStatisticsOverShown ? StatisticsPanel::ShownRange
                                                                : StatisticsPanel::SinceReset);
    connect(m_statisticsPanel, &StatisticsPanel::resetWanted, this, &WatchDesk::beginAnew);
    connect(m_statisticsPanel, &StatisticsPanel::overChanged, this, &WatchDesk::showStatistics);
    return m_statisticsPanel;
}

QWidget *WatchDesk::makeLimitsPanel()
{
    m_limitsPanel = new LimitsPanel(m_limits, m_limitsDock);
    m_limitsPanel->setLevels(m_settings.high, m_settings.low);
    m_limitsPanel->setLimits(m_settings.limits);
    return m_limitsPanel;
}

QWidget *WatchDesk::makeTrafficPanel()
{
    m_trafficPanel = new TrafficPanel(m_traffic, m_trafficDock);
    return m_trafficPanel;
}

void WatchDesk::connectReadings()
{
    SerialLogic *link = m_console.link;
    LinkSession *session = m_console.session;
    connect(session, &LinkSession::readingChanged, this, &WatchDesk::takeReading);
    connect(link, &SerialLogic::updateFrequency, this, &WatchDesk::takeFrequency);
    connect(link, &SerialLogic::updateMeasureState, this, &WatchDesk::takeRelativeState);
    connect(link, &SerialLogic::updateOffset, this, [this](double offset) {
        if (m_offset && !qFuzzyCompare(1.0 + *m_offset, 1.0 + offset))
            beginAnew();
        m_offset = offset;
    });
    connect(link, &SerialLogic::updateSetZeroSuccess, this, &WatchDesk::beginAnew);
    connect(link, &SerialLogic::updateCalibrationSuccess, this, &WatchDesk::beginAnew);
    connect(session, &LinkSession::stateChanged, this, [this](LinkSession::State state) {
        if (state != LinkSession::State::Closed)
            return;
        m_limits->take(Reading::missing());
        m_statistics.forgetLatest();
        showStatistics();
    });
    connect(m_console.form->btnResetChart, &QAbstractButton::clicked, this, [this] {
        m_statistics.forgetChart();
        showStatistics();
    });
}

void WatchDesk::connectTraffic()
{
    connect(m_console.link, &SerialLogic::displayLog, m_traffic, &TrafficModel::addSent);
    connect(m_console.link, &SerialLogic::replied, this,
            [this](const QByteArray &, const QString &line, Outcome outcome) {
                m_traffic->addReceived(line, remarkOn(outcome));
            });
}

void WatchDesk::connectReconnector()
{
    Ui::MainWindow *form = m_console.form;
    connect(&m_reconnector, &Reconnector::reachable, this, &WatchDesk::tryOpening);
    connect(&m_reconnector, &Reconnector::changed, this, &WatchDesk::showReconnecting);
    connect(form->btnClose, &QAbstractButton::clicked, this, &WatchDesk::endTries);
    for (QAction *action : {form->actionClose, form->actionDisconnect})
        connect(action, &QAction::triggered, this, &WatchDesk::endTries);
    LinkSession *session = m_console.session;
    connect(session, &LinkSession::modeChanged, this, &WatchDesk::endTries);
    connect(session, &LinkSession::portChanged, this, [this](const QString &port, int value) {
        m_target = {m_console.session->mode() == lanLink, port, value};
    });
    connect(session, &LinkSession::stateChanged, this, [this](LinkSession::State state) {
        if (state == LinkSession::State::Opening && !m_isTrying)
            endTries(); // the user has opened a link by hand
    });
}

void WatchDesk::retranslate()
{
    m_viewMenu->setTitle(tr("&View"));
    m_openRecord->setText(tr("Open &Record…"));
    m_reconnect->setText(tr("&Reconnect by itself"));
    m_statisticsDock->setWindowTitle(tr("Statistics"));
    m_limitsDock->setWindowTitle(tr("Limits"));
    m_trafficDock->setWindowTitle(tr("Traffic"));
    if (m_statisticsPanel)
        m_statisticsPanel->retranslate();
    if (m_limitsPanel)
        m_limitsPanel->retranslate();
    if (m_trafficPanel)
        m_trafficPanel->retranslate();
    m_traffic->retranslate();
    m_alarm->retranslate();
    showReconnecting();
}

// --- Readings

void WatchDesk::takeReading(const Reading &reading)
{
    if (reading.state == Reading::State::None)
        return;
    // During a relative measurement the level is told in dBm all the same; its text is in dB.
    const auto relative = ReplyParser::relativeLevel(reading.text);
    const bool isRelative = reading.isValid() ? relative.has_value() : m_statistics.isRelative();
    const bool isShownInstead = reading.isValid() && relative;
    m_statistics.add(isShownInstead ? Reading::of(*relative, reading.text) : reading, isRelative,
                     QDateTime::currentDateTime(), m_console.chart->position());
    m_limits->take(reading);
    showStatistics();
}

void WatchDesk::takeFrequency(double value, const QString &unit)
{
    if (unit.isEmpty())
        return; // no answer
    const double factor = unit == QLatin1String("GHz")   ? 1e9
                          : unit == QLatin1String("MHz") ? 1e6
                                                         : 1e3;
    const double frequency = value * factor;
    if (m_frequency && !qFuzzyCompare(*m_frequency, frequency))
        beginAnew();
    m_frequency = frequency;
}

void WatchDesk::takeRelativeState(const QString &state)
{
    const bool isRelative = state == QLatin1String("ON");
    // On again while it is on takes a new reference; when a link is opened, it tells what it was.
    if (isRelative != m_isRelative || (isRelative && !m_console.session->isOpening()))
        beginAnew();
    m_isRelative = isRelative;
    m_limits->setRelative(isRelative);
}

void WatchDesk::beginAnew()
{
    m_statistics.restart();
    showStatistics();
}

void WatchDesk::showStatistics()
{
    if (!m_statisticsDock->isVisible())
        return;
    const ViewRange shown = m_console.chart->view()->shownRange();
    const bool isOverShown = m_statisticsPanel->over() == StatisticsPanel::ShownRange;
    m_statisticsPanel->show(m_statistics, isOverShown ? m_statistics.between(shown.xMin, shown.xMax)
                                                      : m_statistics.sinceRestart());
}

// --- The link opened again

bool WatchDesk::takesLoss(const QString &reason)
{
    if (!m_reconnect->isChecked())
        return false;
    qWarning().noquote() << "Link lost, to be opened again:" << reason;
    m_console.link->delayClose(); // what is left of it must not keep the instrument from the next
    m_reconnector.begin(m_target);
    return true;
}

bool WatchDesk::takesFailure(const QString &reason)
{
    if (!m_isTrying)
        return false;
    qWarning().noquote() << "Not opened again yet:" << reason;
    m_hasFailed = true;
    return true;
}

void WatchDesk::tryOpening(const QString &name, int value)
{
    bool isOpen = false;
    m_hasFailed = false;
    {
        const QScopedValueRollback<bool> trying(m_isTrying, true);
        isOpen = m_console.session->open(name, value);
    }
    if (isOpen || !m_hasFailed)
        endTries(); // it is there again, or the user has stopped the opening
    else
        m_reconnector.goOn();
}

void WatchDesk::showReconnecting()
{
    if (m_isTrying)
        return; // the opening tells what it is at
    if (m_reconnector.isActive()) {
        m_console.status->showNotice(StatusLabels::Notice::Reconnecting,
                                     [this] { return m_reconnector.text(); });
        m_console.form->btnClose->setEnabled(m_console.session->mode() == serialLink);
    }
}

void WatchDesk::endTries()
{
    if (!m_reconnector.isActive())
        return;
    m_reconnector.stop();
    m_console.status->clearNotice(StatusLabels::Notice::Reconnecting);
    const bool isOpen = m_console.session->isOpen();
    m_console.form->btnClose->setEnabled(m_console.session->mode() == serialLink && isOpen);
}

// --- Records

void WatchDesk::askForRecord()
{
    openRecord(RecordView::askForFiles(m_console.window, m_console.form->lineEditPath->text()));
}

void WatchDesk::openRecord(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    auto *view = new RecordView(m_console.window);
    view->show();
    view->open(paths);
}

bool WatchDesk::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!isDrag && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const QStringList paths = droppedRecords(drop->mimeData());
    if (paths.isEmpty())
        return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    if (!isDrag)
        openRecord(paths);
    return true;
}

// --- What is remembered

void WatchDesk::load()
{
    m_settings = WatchSettings::load(WatchSettings::ownFile());
    if (m_settings.limits.areGiven() && m_settings.limits.areUsable())
        m_limits->setLimits(m_settings.limits);
    if (!m_settings.windowState.isEmpty())
        m_console.window->restoreState(m_settings.windowState);
    m_reconnect->setChecked(m_settings.reconnects);
}

void WatchDesk::save() const
{
    WatchSettings settings = m_settings;
    if (m_wasPanelShown)
        settings.windowState = m_console.window->saveState();
    if (m_statisticsPanel)
        settings.isStatisticsOverShown = m_statisticsPanel->over() == StatisticsPanel::ShownRange;
    settings.reconnects = m_reconnect->isChecked();
    if (m_limitsPanel) {
        settings.limits = m_limitsPanel->limits();
        std::tie(settings.high, settings.low) = m_limitsPanel->levels();
    }
    settings.save(WatchSettings::ownFile());
}
