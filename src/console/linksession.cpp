#include "console/linksession.h"

#include "Logic/seriallogic.h"

#include <QDebug>
#include <QScopedValueRollback>
#include <QTimer>

#include <array>
#include <utility>

namespace {

constexpr int readPeriod = 500;     // ms
constexpr int firstSaveWait = 1000; // ms after an open
constexpr int minute = 60000;       // ms
constexpr int liveTime = 2000;      // ms, several polls

} // namespace

LinkSession::LinkSession(SerialLogic *link, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_readTimer(createTimer("readTimer", &LinkSession::readingDue))
    , m_saveTimer(createTimer("saveTimer", &LinkSession::recordDue))
    , m_firstSaveTimer(createTimer("firstSaveTimer", &LinkSession::recordDue))
    , m_recordInterval([] { return 1; })
{
    m_firstSaveTimer->setSingleShot(true);
    connect(link, &SerialLogic::errors, this, &LinkSession::takeError);
    connect(link, &SerialLogic::updateSetFailed, this, &LinkSession::takeError);
    connect(link, &SerialLogic::lost, this, &LinkSession::takeLoss);
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
    close();
    m_mode = mode;
    m_link->setLinkMode(mode);
    emit modeChanged(mode);
}

void LinkSession::setState(State state)
{
    m_state = state;
    emit stateChanged(state);
}

void LinkSession::setIpAddress(const QString &address)
{
    m_ipAddress = address;
    m_proposedAddress = address;
}

// --- Opening and ending

bool LinkSession::open(const QString &port, int value)
{
    if (m_isOpening)
        return false;
    if (m_state != State::Closed)
        close();
    m_openError.clear();
    m_isStopWanted = false;
    if (m_mode == lanLink)
        m_proposedAddress = port;
    bool isOpen = false;
    {
        const QScopedValueRollback<bool> opening(m_isOpening, true);
        m_link->setCancel([this] {
            emit stillWaiting();
            return m_isStopWanted;
        });
        isOpen = openWithSettings(port, value);
        m_link->setCancel({});
        emit waitingFor({});
    }
    if (isOpen)
        return true;
    failOpening(port, value);
    return false;
}

bool LinkSession::openWithSettings(const QString &port, int value)
{
    emit waitingFor(tr("Connecting to %1 …").arg(port));
    if (m_isStopWanted || !m_link->openPort(port, value))
        return false;
    qDebug() << "open success: " << port << value;
    if (value == instrumentTcpPort)
        m_ipAddress = port;
    m_isCurrent = false;
    m_isResting = false;
    m_reading = {};
    emit readingChanged(m_reading);
    emit portChanged(port, value);
    setState(State::Opening);
    if (!queryInstrument()) {
        m_link->closePort();
        return false;
    }
    startPolling();
    startRecords(m_recordInterval());
    m_firstSaveTimer->start(firstSaveWait);
    setState(State::Open);
    return true;
}

bool LinkSession::queryInstrument()
{
    struct Query
    {
        void (SerialLogic::*ask)();
        const char *what;
    };
    static constexpr std::array<Query, 6> queries{{
        {&SerialLogic::queryIDN, QT_TR_NOOP("Waiting for the identity …")},
        {&SerialLogic::queryFrequency, QT_TR_NOOP("Waiting for the frequency …")},
        {&SerialLogic::queryAverageCount, QT_TR_NOOP("Waiting for the average count …")},
        {&SerialLogic::queryMeasureState, QT_TR_NOOP("Waiting for the relative state …")},
        {&SerialLogic::queryOffset, QT_TR_NOOP("Waiting for the offset …")},
        {&SerialLogic::queryPowerUnit, QT_TR_NOOP("Waiting for the power unit …")},
    }};
    for (const Query &query : queries) {
        emit waitingFor(tr(query.what));
        if (m_isStopWanted)
            return false;
        (m_link->*query.ask)();
        if (!m_openError.isEmpty())
            return false;
    }
    return !m_isStopWanted;
}

void LinkSession::failOpening(const QString &port, int value)
{
    end();
    if (!m_isStopWanted)
        emit failed(m_openError);
    if (m_state != State::Closed || m_isOpening)
        return; // another link has been opened meanwhile
    emit portChanged(port, value);
    m_isDisconnected = m_mode == lanLink;
    setState(State::Closed);
}

void LinkSession::stopOpening()
{
    m_isStopWanted = true;
}

void LinkSession::close()
{
    stopOpening();
    end();
    m_link->closePort();
}

void LinkSession::disconnectLink()
{
    close();
    m_isDisconnected = true;
    setState(State::Closed);
}

void LinkSession::end()
{
    m_readTimer->stop();
    m_saveTimer->stop();
    m_firstSaveTimer->stop();
    m_isResting = false;
    m_isDisconnected = false;
    setState(State::Closed);
}

void LinkSession::takeError(const QString &error)
{
    if (m_isOpening) {
        // Told once the opening is over, so that no box stands in the middle of it.
        if (m_openError.isEmpty())
            m_openError = error;
        else
            qWarning() << "Not shown, as an error is shown already:" << error;
        return;
    }
    const bool wasOpen = isOpen();
    end();
    if (wasOpen)
        emit linkLost(error);
    else
        emit failed(error);
}

void LinkSession::takeLoss()
{
    if (!isOpen())
        return;
    if (m_link->awaitsResult())
        takeError(tr("The connection to the instrument is lost."));
    else if (!m_readTimer->isActive())
        startPolling(); // the next command is what tells, and none may be to come
}

// --- Readings and settings

LinkSession::Freshness LinkSession::freshness() const
{
    if (m_reading.state == Reading::State::None)
        return Freshness::None;
    const bool isLive = isOpen() && !m_isResting && m_sinceReading.elapsed() < liveTime;
    return isLive ? Freshness::Live : Freshness::Stale;
}

int LinkSession::readingAge() const
{
    return m_sinceReading.isValid() ? int(m_sinceReading.elapsed() / 1000) : 0;
}

void LinkSession::takeReading(double level, const QString &text)
{
    const bool isMissing = level == Reading::noLevel;
    m_reading = isMissing ? Reading::missing(text) : Reading{level, text, Reading::State::Valid};
    m_sinceReading.start();
    m_isCurrent = true;
    startPolling();
    emit readingChanged(m_reading);
}

void LinkSession::poll()
{
    if (isOpen())
        m_link->readMesureData();
    else
        stopPolling();
}

void LinkSession::change(Setting setting, const std::function<void(SerialLogic &)> &send)
{
    stopPolling();
    send(*m_link);
    if (!isOpen() || m_readTimer->isActive())
        return;
    m_isResting = true;
    emit settingRefused(setting);
}

void LinkSession::confirm(Setting setting)
{
    startPolling();
    emit settingConfirmed(setting);
}

void LinkSession::startPolling()
{
    m_isResting = false;
    m_readTimer->start(readPeriod);
}

void LinkSession::stopPolling()
{
    m_isCurrent = false; // what was shown before is old when the polling goes on
    m_readTimer->stop();
}

bool LinkSession::startTask(void (SerialLogic::*task)())
{
    stopPolling();
    (m_link->*task)();
    if (m_link->awaitsResult())
        return true;
    if (isOpen()) // else the link is lost, of which the user has been told
        startPolling();
    return false;
}

// --- Records

bool LinkSession::isReadingCurrent() const
{
    return m_isCurrent && m_readTimer->isActive();
}

bool LinkSession::provideReading(bool mayRead)
{
    if (!isOpen() || isReadingCurrent())
        return true;
    // While a result is awaited, the instrument would answer both in one.
    if (mayRead && !m_link->awaitsResult())
        m_link->readMesureData();
    if (isReadingCurrent())
        return true;
    if (isOpen()) // else the link is lost, of which the user has been told
        m_firstSaveTimer->start(firstSaveWait);
    return false;
}

void LinkSession::startRecords(int minutes)
{
    m_saveTimer->start(minutes * minute);
}
