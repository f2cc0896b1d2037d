#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QProcess;

/// The simulated instrument as a process of its own, for tests that need a real wire. Its output
/// goes to a file, so it never has to wait for a test that blocks, however long its trace becomes.
class SimulatorProcess
{
public:
    /// Whether it can offer a serial port, and what to tell where a test skips for want of one.
#ifdef Q_OS_WIN
    static constexpr bool hasSerialPort = false;
#else
    static constexpr bool hasSerialPort = true;
#endif
    static constexpr char noSerialPort[] = "the simulator has no serial port on this system";

    SimulatorProcess();
    /// Starts at once, with \a options with blanks between them; the test program ends if it
    /// cannot.
    explicit SimulatorProcess(const char *options);
    ~SimulatorProcess();
    Q_DISABLE_COPY(SimulatorProcess)

    /// Starts the simulator on a free port of 127.0.0.1, with \a options besides. Returns when it
    /// is ready; false when it ended instead or was not ready in time, see errorText().
    bool start(const QStringList &options = {});
    /// The same on port 5001, which the console always uses, of a loopback address nobody else has.
    bool startOnInstrumentPort(const QStringList &options = {});
    /// The same on an \a address where another one listened.
    bool startOnGivenAddress(const QString &address);
    /// Ends it and returns its exit code, -1 when it had to be killed or did not run.
    int stop();
    bool isRunning() const;

    /// Where it listens; empty and 0 before it is ready.
    QString address();
    quint16 port();
    /// The port of its turntable (option "--rotator"); 0: none.
    quint16 rotatorPort();
    /// Its serial port (option "--serial"), the latest if it changed; empty: none.
    QString serialPath();

    /// Every command line so far, in order, without line ends.
    QStringList commands();
    /// Every piece of a reply so far, as it went out, with "\n" and "\xNN" for unprintable bytes.
    QStringList replies();
    /// Every remark so far on clients that come, wait, go or are dropped, and on faults.
    QStringList notes();
    /// Waits until \a command has come \a count times since the start, while events are processed.
    bool waitForCommand(const QString &command, int count = 1, int timeout = 5000);
    /// What it wrote on its error output.
    QString errorText() const;

private:
    bool launch(const QStringList &arguments);
    void readOutput();

    QTemporaryDir m_folder;
    std::unique_ptr<QProcess> m_process;
    qint64 m_read = 0; ///< how much of the output has been taken in
    QString m_address;
    quint16 m_port = 0;
    quint16 m_rotatorPort = 0;
    QString m_serialPath;
    QStringList m_commands;
    QStringList m_replies;
    QStringList m_notes;
};
