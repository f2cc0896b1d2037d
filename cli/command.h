#pragma once

#include "meter/meter.h"
#include "recorder/standardoutput.h"

#include <QObject>

#include <functional>
#include <memory>

namespace CLI {
class App;
}

/// How the program ends.
namespace ExitStatus {
constexpr int done = 0;
constexpr int failed = 1;    ///< refused or failed, or the instrument does not answer
constexpr int usage = 2;     ///< the command line or the configuration is wrong
constexpr int link = 3;      ///< the link could not be opened or was lost
constexpr int unwritten = 4; ///< something could not be written
constexpr int interrupted = 130;
} // namespace ExitStatus

/// What holds for every command.
struct CommonOptions
{
    MeterAddress address;
    QString name; ///< of the meter: its address unless another was given
    bool isJson = false;
};

/// Something that the program was started for.
class Command : public QObject
{
    Q_OBJECT

public:
    /// Begins; ends with `finished`, perhaps at once.
    virtual void start() = 0;
    /// Ends it before its time.
    virtual void stop() { finish(ExitStatus::interrupted); }

signals:
    void finished(int status);

protected:
    /// Prints a line of results, behind which a newline comes where it has none. False where that
    /// failed, after which the command has ended.
    bool print(QByteArray line);
    /// Ends the command; only the first call counts.
    void finish(int status);
    /// Tells the user \a message and ends the command.
    void fail(int status, const QString &message);
    bool isOver() const { return m_isOver; }

private:
    StandardOutput m_output;
    bool m_isOver = false;
};

/// A command that asks an instrument and ends.
class MeterCommand : public Command
{
    Q_OBJECT

protected:
    explicit MeterCommand(const CommonOptions &options);

    Meter &meter() { return m_meter; }
    bool isJson() const { return m_isJson; }
    /// The status of a command of which \a outcome became, and what the user is told of it: \a what
    /// says in what it failed, \a line is the instrument's reply.
    int tell(Outcome outcome, const QString &what, const QString &line = {});

private:
    Meter m_meter;
    const bool m_isJson;
    QString m_lossReason;
};

/// A sub-command: the parser of its options, and what makes it when that has read them. The maker
/// throws a CLI::ValidationError for values that cannot be used.
struct SubCommand
{
    CLI::App *parser;
    std::function<std::unique_ptr<Command>(const CommonOptions &)> make;
};
