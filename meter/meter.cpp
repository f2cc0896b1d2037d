#include "meter/meter.h"

#include "meter/meterworker.h"

#include <QThread>

#include <cmath>

std::optional<double> MeterSettings::frequencyHz() const
{
    if (!frequency)
        return std::nullopt;
    double factor = 1e9;
    if (frequencyUnit.compare(QLatin1String("MHz"), Qt::CaseInsensitive) == 0)
        factor = 1e6;
    else if (frequencyUnit.compare(QLatin1String("KHz"), Qt::CaseInsensitive) == 0)
        factor = 1e3;
    return std::round(*frequency * factor);
}

bool operator==(const MeterSettings &a, const MeterSettings &b)
{
    return a.frequencyHz() == b.frequencyHz() && a.offset == b.offset &&
           a.averaging == b.averaging && a.unit == b.unit && a.isRelative == b.isRelative;
}

Meter::Meter(const MeterAddress &address, const LinkWaits &waits, QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_thread(new QThread)
    , m_flags(std::make_shared<MeterFlags>())
{
    qRegisterMetaType<MeterState>();
    qRegisterMetaType<MeterTask>();
    qRegisterMetaType<MeterDescription>();
    qRegisterMetaType<MeterReading>();
    qRegisterMetaType<MeterAnswer>();

    m_worker = new MeterWorker(address, waits, m_flags);
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &MeterWorker::stateChanged, this,
            [this](MeterState state, const QString &reason) {
                m_state = state;
                emit stateChanged(state, reason);
            });
    connect(m_worker, &MeterWorker::reopened, this, &Meter::reopened);
    connect(m_worker, &MeterWorker::described, this, &Meter::described);
    connect(m_worker, &MeterWorker::reading, this, &Meter::reading);
    connect(m_worker, &MeterWorker::answered, this, &Meter::answered);
    connect(m_worker, &MeterWorker::taskEnded, this, &Meter::taskEnded);
}

Meter::~Meter()
{
    stop();
}

void Meter::open(Keeping keeping)
{
    m_thread->start();
    submit([keeping](MeterWorker &worker) { worker.open(keeping == Keeping::Forever); });
}

void Meter::stop()
{
    if (!m_thread)
        return;
    disconnect(m_worker, nullptr, this, nullptr);
    m_state = MeterState::Closed;
    m_flags->isStopped = true;
    if (!m_thread->isRunning()) {
        delete m_worker;
        delete m_thread;
    } else {
        m_thread->quit();
        // A thread that waits where nobody can call it back is let go and puts itself away.
        if (m_thread->wait(90))
            delete m_thread;
        else
            connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    }
    m_thread = nullptr;
    m_worker = nullptr;
}

bool Meter::awaitsReply() const
{
    return m_flags->awaitsReply;
}

template<typename Work>
void Meter::submit(Work work)
{
    if (!m_worker)
        return;
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, work] { worker->submit([worker, work] { work(*worker); }); },
        Qt::QueuedConnection);
}

void Meter::describe()
{
    submit([](MeterWorker &worker) { worker.describe(); });
}

void Meter::read()
{
    submit([](MeterWorker &worker) { worker.read(); });
}

void Meter::poll(int pause)
{
    submit([pause](MeterWorker &worker) { worker.poll(pause); });
}

void Meter::askRelative()
{
    submit([](MeterWorker &worker) {
        worker.set([](SerialLogic &link) { link.queryMeasureState(); });
    });
}

void Meter::setFrequency(const QString &value, const QString &unit)
{
    submit([=](MeterWorker &worker) {
        worker.set([=](SerialLogic &link) { link.setFrequency(value, unit); });
    });
}

void Meter::setOffset(double decibels)
{
    submit([=](MeterWorker &worker) {
        worker.set([=](SerialLogic &link) { link.setOffset(decibels); });
    });
}

void Meter::setAveraging(int count)
{
    submit([=](MeterWorker &worker) {
        worker.set([=](SerialLogic &link) { link.setAverageCount(count); });
    });
}

void Meter::setUnit(const QString &unit)
{
    submit([=](MeterWorker &worker) {
        worker.set([=](SerialLogic &link) { link.setPowerUnit(unit); });
    });
}

void Meter::setRelative(bool isOn)
{
    submit([=](MeterWorker &worker) {
        worker.set([=](SerialLogic &link) {
            link.setMeasureState(isOn ? QStringLiteral("ON") : QStringLiteral("OFF"));
        });
    });
}

void Meter::run(MeterTask task)
{
    submit([task](MeterWorker &worker) { worker.run(task); });
}
