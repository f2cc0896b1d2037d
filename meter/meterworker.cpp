#include "meter/meterworker.h"

#include "Logic/commandtexts.h"
#include "Logic/replyparser.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QRandomGenerator>

#include <utility>

namespace {

constexpr int describeInterval = 10 * 60 * 1000; // ms
constexpr int taskLimit = 30 * 1000;             // ms
constexpr int silence = 1000;                    // ms after which no late reply is to be expected
constexpr int slice = 50;                        // ms after which a stop is looked for
constexpr int drainLimit = 10 * 1000;            // ms, for a line that never falls silent
/// After so many commands without any reply the instrument counts as lost.
constexpr int patience = 3;

} // namespace

MeterWorker::MeterWorker(const MeterAddress &address, const LinkWaits &waits,
                         std::shared_ptr<MeterFlags> flags)
    : m_address(address)
    , m_flags(std::move(flags))
    , m_link(this)
    , m_retryTimer(this)
    , m_pollTimer(this)
    , m_describeTimer(this)
{
    m_link.setWaits(waits);
    m_link.setLinkMode(address.mode);
    m_link.setCancel([flags = m_flags] { return flags->isStopped.load(); });
    m_link.setDropsLateInput(true);
    connect(&m_link, &SerialLogic::replied, this, &MeterWorker::take);
    connect(&m_link, &SerialLogic::errors, this, [this](const QString &error) {
        // Of an open link the errors are those of one that is lost, in words for the console.
        if (!m_isLinkOpen)
            m_error = error;
    });
    connect(&m_link, &SerialLogic::lost, this, &MeterWorker::takeLoss);

    m_retryTimer.setSingleShot(true);
    m_pollTimer.setSingleShot(true);
    const auto submits = [this](QTimer &timer, void (MeterWorker::*work)()) {
        connect(&timer, &QTimer::timeout, this, [this, work] { submit([=] { (this->*work)(); }); });
    };
    submits(m_retryTimer, &MeterWorker::tryOpen);
    submits(m_pollTimer, &MeterWorker::read);
    submits(m_describeTimer, &MeterWorker::describe);
}

void MeterWorker::submit(std::function<void()> work)
{
    m_works.push_back(std::move(work));
    if (m_isWorking)
        return;
    m_isWorking = true;
    while (!m_works.empty() && !m_flags->isStopped) {
        const std::function<void()> next = std::move(m_works.front());
        m_works.pop_front();
        next();
    }
    m_isWorking = false;
}

void MeterWorker::open(bool keepsOpen)
{
    m_keepsOpen = keepsOpen;
    if (keepsOpen)
        m_describeTimer.start(describeInterval);
    tryOpen();
}

void MeterWorker::tryOpen()
{
    if (m_isLinkOpen)
        return;
    setState(MeterState::Opening);
    if (!openLink()) {
        lose(m_error);
    } else if (m_keepsOpen) {
        describe();
        if (m_pollPause >= 0 && m_isLinkOpen)
            m_pollTimer.start(0);
    } else {
        becomeOpen();
    }
}

bool MeterWorker::openLink()
{
    m_error.clear();
    m_isLinkOpen = m_link.openPort(m_address.place, m_address.value);
    if (m_isLinkOpen && m_mayHoldLateReply && !drain()) {
        m_error = QStringLiteral("%1 does not fall silent").arg(m_address.place);
        m_link.delayClose();
        m_isLinkOpen = false;
    }
    if (m_isLinkOpen) {
        m_mayHoldLateReply = false;
        if (std::exchange(m_wasOpened, true))
            emit reopened();
    }
    return m_isLinkOpen;
}

bool MeterWorker::drain()
{
    const QDeadlineTimer limit(drainLimit);
    while (m_link.dropInput(silence)) {
        if (limit.hasExpired())
            return false;
    }
    return true;
}

void MeterWorker::lose(const QString &reason)
{
    m_link.delayClose();
    m_isLinkOpen = false;
    if (m_flags->isStopped)
        return;
    if (m_keepsOpen)
        m_retryTimer.start(m_backoff.next(QRandomGenerator::global()->generateDouble()));
    setState(MeterState::Lost, reason);
}

void MeterWorker::becomeOpen()
{
    m_unanswered = 0;
    m_backoff.reset();
    setState(MeterState::Open);
}

void MeterWorker::setState(MeterState state, const QString &reason)
{
    if (state == m_state)
        return;
    m_state = state;
    emit stateChanged(state, reason);
}

void MeterWorker::take(const QByteArray &command, const QString &line, Outcome outcome)
{
    m_answer.outcome = outcome;
    if (!line.isEmpty())
        m_answer.line = line;
    if (outcome != Outcome::Ok)
        return;
    MeterSettings &settings = m_description.settings;
    if (command == CommandTexts::queryIdentity()) {
        m_description.identity = ReplyParser::identity(line);
    } else if (command == CommandTexts::queryFrequency()) {
        const ReplyParser::Frequency frequency = ReplyParser::frequency(line);
        settings.frequency = frequency.value;
        settings.frequencyUnit = frequency.unit;
    } else if (command == CommandTexts::queryOffset()) {
        settings.offset = ReplyParser::offset(line);
    } else if (command == CommandTexts::queryAverageCount()) {
        settings.averaging = ReplyParser::averageCount(line);
    } else if (command == CommandTexts::queryPowerUnit()) {
        settings.unit = ReplyParser::powerUnit(line);
    } else if (command == CommandTexts::queryMeasureState()) {
        const QString state = ReplyParser::measureState(line);
        settings.isRelative = state.compare(QLatin1String("ON"), Qt::CaseInsensitive) == 0;
    }
}

void MeterWorker::takeLoss()
{
    // A work that is under way finds out by itself.
    if (m_isLinkOpen && !m_isWorking)
        submit([this] {
            if (m_isLinkOpen)
                lose(QStringLiteral("the connection has ended"));
        });
}

MeterAnswer MeterWorker::ask(const std::function<void()> &question)
{
    m_answer = {Outcome::Link, {}, {}};
    if (m_isLinkOpen) {
        m_flags->awaitsReply = true;
        question();
        m_flags->awaitsReply = false;
    }
    const bool isHeard = m_answer.outcome != Outcome::Link && m_answer.outcome != Outcome::Timeout;
    if (isHeard)
        becomeOpen();
    return m_answer;
}

void MeterWorker::settle(Outcome outcome)
{
    if (!m_isLinkOpen || m_flags->isStopped)
        return;
    if (outcome == Outcome::Link)
        lose(QStringLiteral("the connection has ended"));
    else if (outcome == Outcome::Timeout)
        recover();
}

void MeterWorker::recover()
{
    m_mayHoldLateReply = m_address.mode == serialLink;
    if (++m_unanswered >= patience && m_keepsOpen) {
        lose(QStringLiteral("%1 does not answer").arg(m_address.place));
        return;
    }
    m_link.delayClose();
    m_isLinkOpen = false;
    if (!openLink())
        lose(m_error);
}

void MeterWorker::describe()
{
    Outcome worst = Outcome::Ok;
    m_description = {};
    int unanswered = 0;
    for (void (SerialLogic::*const query)() :
         {&SerialLogic::queryIDN, &SerialLogic::queryFrequency, &SerialLogic::queryOffset,
          &SerialLogic::queryAverageCount, &SerialLogic::queryPowerUnit,
          &SerialLogic::queryMeasureState}) {
        const Outcome outcome = ask([&] { (m_link.*query)(); }).outcome;
        if (worst == Outcome::Ok)
            worst = outcome;
        settle(outcome);
        // Most likely nobody is there who would answer the rest.
        unanswered = outcome == Outcome::Timeout ? unanswered + 1 : 0;
        if (!m_isLinkOpen || unanswered == 2)
            break;
    }
    m_description.outcome = worst;
    emit described(m_description);
}

void MeterWorker::read()
{
    Reading value = Reading::missing();
    bool isRelative = false;
    const auto connection =
        connect(&m_link, &SerialLogic::updatePower, this, [&](double level, const QString &text) {
            const auto relative = ReplyParser::relativeLevel(text);
            isRelative = relative.has_value();
            value = Reading::of(relative.value_or(level), text);
        });
    const MeterAnswer answer = ask([this] { m_link.readMesureData(); });
    disconnect(connection);
    if (answer.outcome != Outcome::Ok)
        value = Reading::missing(value.text);
    const bool wasOpen = m_isLinkOpen;
    if (wasOpen || m_pollPause < 0)
        emit reading({value, answer.outcome, momentNow(), isRelative});
    const bool isToBeDescribed = m_keepsOpen && answer.outcome == Outcome::Timeout;
    settle(answer.outcome);
    if (isToBeDescribed && m_isLinkOpen)
        describe();
    poll(m_pollPause);
}

void MeterWorker::poll(int pause)
{
    m_pollPause = pause;
    if (pause >= 0 && m_isLinkOpen)
        m_pollTimer.start(pause);
    else
        m_pollTimer.stop();
}

void MeterWorker::set(const std::function<void(SerialLogic &)> &setting)
{
    m_description = {};
    MeterAnswer answer = ask([&] { setting(m_link); });
    answer.settings = m_description.settings;
    emit answered(answer);
    settle(answer.outcome);
}

void MeterWorker::run(MeterTask task)
{
    const MeterAnswer answer = ask([this, task] {
        m_answer.outcome = Outcome::Timeout;
        QEventLoop loop;
        bool isOver = false;
        const auto connection = connect(&m_link, &SerialLogic::replied, &loop, [&] {
            isOver = true;
            loop.quit();
        });
        if (task == MeterTask::Zeroing)
            m_link.setZero();
        else
            m_link.calibrate();
        QDeadlineTimer limit(taskLimit);
        QTimer tick;
        connect(&tick, &QTimer::timeout, &loop, [&] {
            if (limit.hasExpired() || m_flags->isStopped)
                loop.quit();
        });
        tick.start(slice);
        if (!isOver)
            loop.exec();
        disconnect(connection);
    });
    emit taskEnded(task, answer);
    settle(answer.outcome);
}
