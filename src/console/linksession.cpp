#include "console/linksession.h"

#include "Logic/seriallogic.h"
#include "console/consolepanel.h"
#include "console/timechart.h"

#include <QDebug>
#include <QTimer>

#include <array>

namespace {

constexpr int readPeriod = 500;     // ms
constexpr int firstSaveWait = 1000; // ms after an open
constexpr int minute = 60000;       // ms

} // namespace

LinkSession::LinkSession(SerialLogic *link, ConsolePanel *panel, StatusLabels *status,
                         TimeChart *chart, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_panel(panel)
    , m_status(status)
    , m_chart(chart)
    , m_readTimer(createTimer("readTimer", &LinkSession::readingDue))
    , m_saveTimer(createTimer("saveTimer", &LinkSession::recordDue))
    , m_firstSaveTimer(createTimer("firstSaveTimer", &LinkSession::recordDue))
{
    m_firstSaveTimer->setSingleShot(true);
    connect(link, &SerialLogic::lost, this, &LinkSession::pollLostLink);
}

QTimer *LinkSession::createTimer(const char *name, void (LinkSession::*due)())
{
    auto *timer = new QTimer(parent());
    timer->setObjectName(QLatin1String(name));
    connect(timer, &QTimer::timeout, this, due);
    return timer;
}

void LinkSession::setMode(LinkMode mode)
{
    close(StatusLabels::Link::Closed);
    m_mode = mode;
    m_link->setLinkMode(mode);
    setState(State::Closed);
}

void LinkSession::setState(State state)
{
    m_state = state;
    m_panel->showLinkState(m_mode, state != State::Closed);
}

bool LinkSession::open(const QString &port, int value)
{
    if (m_state != State::Closed)
        close(StatusLabels::Link::Closed);
    if (!m_link->openPort(port, value))
        return failOpening(port, value);

    qDebug() << "open success: " << port << value;
    if (value == instrumentTcpPort)
        m_ipAddress = port;
    m_hasReading = false;
    setState(State::Opening);
    m_status->showPort(port, value);
    m_status->showLink(m_mode == serialLink ? StatusLabels::Link::Open
                                            : StatusLabels::Link::Connected);
    if (!queryInstrument()) {
        m_link->closePort();
        return failOpening(port, value);
    }
    startPolling();
    startRecords();
    m_firstSaveTimer->start(firstSaveWait);
    m_chart->clear();
    m_state = State::Open; // the panel stays as the instrument's answers left it
    return true;
}

bool LinkSession::queryInstrument()
{
    using Query = void (SerialLogic::*)();
    constexpr std::array<Query, 6> queries{
        &SerialLogic::queryIDN,          &SerialLogic::queryFrequency,
        &SerialLogic::queryAverageCount, &SerialLogic::queryMeasureState,
        &SerialLogic::queryOffset,       &SerialLogic::queryPowerUnit};
    for (const Query query : queries) {
        (m_link->*query)();
        if (m_state != State::Opening)
            return false; // an error has ended it
    }
    return true;
}

bool LinkSession::failOpening(const QString &port, int value)
{
    end();
    m_status->showPort(port, value);
    m_status->showLink(m_mode == serialLink ? StatusLabels::Link::Closed
                                            : StatusLabels::Link::Disconnected);
    return false;
}

void LinkSession::close(StatusLabels::Link shown)
{
    end();
    m_link->closePort();
    m_status->showLink(shown);
}

void LinkSession::end()
{
    m_readTimer->stop();
    m_saveTimer->stop();
    m_firstSaveTimer->stop();
    m_chart->restartTime();
    setState(State::Closed);
    emit ended();
}

void LinkSession::startPolling()
{
    m_readTimer->start(readPeriod);
}

void LinkSession::takeReading()
{
    m_hasReading = true;
    startPolling();
}

bool LinkSession::isReadingCurrent() const
{
    return m_hasReading && m_readTimer->isActive();
}

void LinkSession::pollLostLink()
{
    // The next command is what tells the operator, and there may be none to come: polling rests
    // after a setting that was not confirmed. Who waits for a result is told when the wait is over.
    if (isOpen() && !m_link->awaitsResult() && !m_readTimer->isActive())
        startPolling();
}

void LinkSession::postponeRecord()
{
    m_firstSaveTimer->start(firstSaveWait);
}

void LinkSession::stopPolling()
{
    m_hasReading = false; // what was shown before is old when the polling goes on
    m_readTimer->stop();
}

void LinkSession::startRecords()
{
    m_saveTimer->start(m_panel->recordInterval() * minute);
}
