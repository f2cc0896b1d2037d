#include "simulatorprocess.h"

#include "testfiles.h"

#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <csignal>

#include <sys/prctl.h>
#endif

namespace {

constexpr int readyTimeout = 20000; // ms
constexpr int stopTimeout = 5000;   // ms

/// A process that does not outlive the test program, even one that crashes.
class BoundProcess : public QProcess
{
public:
    using QProcess::QProcess;

protected:
#ifdef Q_OS_LINUX
    void setupChildProcess() override
    {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    }
#endif
};

} // namespace

SimulatorProcess::SimulatorProcess() = default;

SimulatorProcess::SimulatorProcess(const char *options)
{
    if (!start(words(options)))
        qFatal("no simulator: %s", qPrintable(errorText()));
}

SimulatorProcess::~SimulatorProcess()
{
    stop();
}

bool SimulatorProcess::start(const QStringList &options)
{
    return launch(QStringList{QStringLiteral("--port"), QStringLiteral("0")} + options);
}

bool SimulatorProcess::startOnInstrumentPort(const QStringList &options)
{
    constexpr int attempts = 5;
    for (int i = 0; i < attempts; ++i) {
        auto *const random = QRandomGenerator::global();
        const QString address = QStringLiteral("127.%1.%2.%3")
                                    .arg(random->bounded(1, 255))
                                    .arg(random->bounded(0, 255))
                                    .arg(random->bounded(2, 255));
        if (launch(QStringList{QStringLiteral("--listen"), address} + options))
            return true;
    }
    return false;
}

bool SimulatorProcess::startOnGivenAddress(const QString &address)
{
    return launch({QStringLiteral("--listen"), address});
}

int SimulatorProcess::stop()
{
    if (!isRunning())
        return -1;
#ifdef Q_OS_WIN
    // There is no gentle way to end a console program there.
    m_process->kill();
#else
    m_process->terminate();
#endif
    if (!m_process->waitForFinished(stopTimeout)) {
        m_process->kill();
        m_process->waitForFinished(stopTimeout);
    }
    return m_process->exitStatus() == QProcess::NormalExit ? m_process->exitCode() : -1;
}

bool SimulatorProcess::isRunning() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

QString SimulatorProcess::address()
{
    readOutput();
    return m_address;
}

quint16 SimulatorProcess::port()
{
    readOutput();
    return m_port;
}

quint16 SimulatorProcess::rotatorPort()
{
    readOutput();
    return m_rotatorPort;
}

QString SimulatorProcess::serialPath()
{
    readOutput();
    return m_serialPath;
}

QStringList SimulatorProcess::commands()
{
    readOutput();
    return m_commands;
}

QStringList SimulatorProcess::replies()
{
    readOutput();
    return m_replies;
}

QStringList SimulatorProcess::notes()
{
    readOutput();
    return m_notes;
}

bool SimulatorProcess::waitForCommand(const QString &command, int count, int timeout)
{
    return QTest::qWaitFor([&] { return commands().count(command) >= count; }, timeout);
}

QString SimulatorProcess::errorText() const
{
    QFile file(m_folder.filePath(QStringLiteral("err.txt")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool SimulatorProcess::launch(const QStringList &arguments)
{
    stop();
    m_read = 0;
    m_address.clear();
    m_port = 0;
    m_rotatorPort = 0;
    m_serialPath.clear();
    m_commands.clear();
    m_replies.clear();
    m_notes.clear();
    m_process = std::make_unique<BoundProcess>();
    m_process->setStandardOutputFile(m_folder.filePath(QStringLiteral("out.txt")));
    m_process->setStandardErrorFile(m_folder.filePath(QStringLiteral("err.txt")));
    m_process->start(QStringLiteral(MZ_BIN_DIR "/mz6218-sim"),
                     QStringList{QStringLiteral("--trace")} + arguments);
    if (!m_process->waitForStarted(readyTimeout))
        return false;
    // "Listening" is the last thing that it announces.
    const bool settled =
        QTest::qWaitFor([this] { return port() != 0 || !isRunning(); }, readyTimeout);
    return settled && isRunning();
}

void SimulatorProcess::readOutput()
{
    QFile file(m_folder.filePath(QStringLiteral("out.txt")));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(m_read))
        return;
    const QString listening = QStringLiteral("Listening on ");
    const QString serial = QStringLiteral("Serial port: ");
    const QString received = QStringLiteral(" recv ");
    const QString sent = QStringLiteral(" send ");
    const QString note = QStringLiteral(" note ");
    constexpr int timeWidth = 23;
    for (;;) {
        const QByteArray bytes = file.readLine();
        if (!bytes.endsWith('\n'))
            return;
        m_read += bytes.size();
        const QString line = QString::fromUtf8(bytes.chopped(bytes.endsWith("\r\n") ? 2 : 1));
        if (line.startsWith(listening)) {
            m_address = line.section(QLatin1Char(':'), 0, -2).mid(listening.size());
            m_port = line.section(QLatin1Char(':'), -1).toUShort();
        } else if (line.startsWith(QLatin1String("Rotator on "))) {
            m_rotatorPort = line.section(QLatin1Char(':'), -1).toUShort();
        } else if (line.startsWith(serial)) {
            m_serialPath = line.mid(serial.size());
        } else if (line.mid(timeWidth).startsWith(received)) {
            m_commands.append(line.mid(timeWidth + received.size()));
        } else if (line.mid(timeWidth).startsWith(sent)) {
            m_replies.append(line.mid(timeWidth + sent.size()));
        } else if (line.mid(timeWidth).startsWith(note)) {
            m_notes.append(line.mid(timeWidth + note.size()));
        }
    }
}
