#include "cli/taskcommand.h"

#include "recorder/jsonline.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace {

class TaskCommand : public MeterCommand
{
public:
    TaskCommand(const CommonOptions &options, MeterTask task, const char *name)
        : MeterCommand(options)
        , m_task(task)
        , m_name(name)
    {
        connect(&meter(), &Meter::taskEnded, this, &TaskCommand::take);
    }

    void start() override
    {
        meter().open(Meter::Keeping::Once);
        meter().run(m_task);
    }

private:
    void take(MeterTask /*task*/, const MeterAnswer &answer)
    {
        if (answer.outcome == Outcome::Ok) {
            const QByteArray text = m_name + ": ok";
            if (print(isJson() ? JsonLine().add(m_name.constData(), QStringLiteral("ok")).line()
                               : text))
                finish(ExitStatus::done);
            return;
        }
        finish(tell(answer.outcome, QString::fromLatin1(m_name), answer.line));
    }

    const MeterTask m_task;
    const QByteArray m_name;
};

SubCommand subCommand(CLI::App &app, MeterTask task, const char *name, const char *description)
{
    return {app.add_subcommand(name, description), [=](const CommonOptions &options) {
                return std::make_unique<TaskCommand>(options, task, name);
            }};
}

} // namespace

SubCommand zeroSubCommand(CLI::App &app)
{
    return subCommand(app, MeterTask::Zeroing, "zero", "Zero the sensor");
}

SubCommand calibrateSubCommand(CLI::App &app)
{
    return subCommand(app, MeterTask::Calibration, "calibrate", "Calibrate the sensor");
}
