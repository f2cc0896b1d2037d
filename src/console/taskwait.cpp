#include "console/taskwait.h"

#include "widgets/loadingdialog.h"

#include <QTimer>

#include <utility>

namespace {

constexpr int second = 1000;    // ms
constexpr int longestWait = 30; // s

} // namespace

TaskWait::TaskWait(QWidget *window)
    : QObject(window)
    , m_dialog(new LoadingDialog(window, LoadingDialog::Form::WhenNeeded))
    , m_timer(new QTimer(window))
    , m_secondsLeft(longestWait)
{
    m_timer->setObjectName(QStringLiteral("loadingTimer"));
    connect(m_timer, &QTimer::timeout, this, &TaskWait::countDown);
}

void TaskWait::run(const QString &name)
{
    m_dialog->setTaskLabelText(name);
    m_dialog->setAccessibleName(name);
    countDown();
    m_timer->start(second);
    m_dialog->exec();
    if (const auto tell = std::exchange(m_tell, nullptr))
        tell();
}

void TaskWait::countDown()
{
    m_dialog->setLabelText(m_secondsLeft);
    --m_secondsLeft;
    if (m_secondsLeft == 0)
        end([this] { emit timedOut(m_dialog->taskLabelText()); });
}

void TaskWait::end()
{
    m_timer->stop();
    m_dialog->close();
    m_secondsLeft = longestWait;
}

void TaskWait::end(const std::function<void()> &tell)
{
    const bool isWaiting = isRunning();
    end();
    if (isWaiting)
        m_tell = tell;
    else
        tell();
}

bool TaskWait::isRunning() const
{
    return m_timer->isActive();
}
