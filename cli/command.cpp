#include "cli/command.h"

#include <utility>

bool Command::print(QByteArray line)
{
    if (m_isOver)
        return false;
    if (!line.endsWith('\n'))
        line += '\n';
    const std::optional<QString> failure = m_output.write(line);
    if (!failure)
        return true;
    // Whoever reads no further has got what was wanted.
    if (m_output.isClosed())
        finish(ExitStatus::done);
    else
        fail(ExitStatus::unwritten, *failure);
    return false;
}

void Command::finish(int status)
{
    if (!std::exchange(m_isOver, true))
        emit finished(status);
}

void Command::fail(int status, const QString &message)
{
    printMessage(message);
    finish(status);
}

MeterCommand::MeterCommand(const CommonOptions &options)
    : m_meter(options.address)
    , m_isJson(options.isJson)
{
    connect(&m_meter, &Meter::stateChanged, this, [this](MeterState state, const QString &reason) {
        if (state == MeterState::Lost)
            m_lossReason = reason;
    });
}

int MeterCommand::tell(Outcome outcome, const QString &what, const QString &line)
{
    if (outcome == Outcome::Ok)
        return ExitStatus::done;
    // The link may have been lost only after an answer that failed.
    if (outcome == Outcome::Link || m_meter.state() == MeterState::Lost) {
        printMessage(m_lossReason.isEmpty() ? QStringLiteral("the link is lost") : m_lossReason);
        return ExitStatus::link;
    }
    QString reason = QStringLiteral("the instrument does not answer");
    if (outcome == Outcome::Refused)
        reason = QStringLiteral("refused: %1").arg(line);
    else if (outcome == Outcome::Garbled)
        reason = QStringLiteral("no answer to that: %1").arg(line);
    printMessage(QStringLiteral("%1: %2").arg(what, reason));
    return ExitStatus::failed;
}
