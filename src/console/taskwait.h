#pragma once

#include <functional>

class LoadingDialog;
class QString;
class QTimer;
class QWidget;

/// The wait for the result of zeroing or calibration: a modal dialog that counts the seconds down.
class TaskWait
{
public:
    /// Makes the dialog and the timer, children of \a window.
    explicit TaskWait(QWidget *window);

    /// Shows the dialog for the task \a name until the wait ends; then tells the result, if any.
    void run(const QString &name);
    /// Counts a second; true when none is left, which ends the wait.
    bool countDown();
    /// Ends the wait without a result. Does nothing when there is none.
    void end();
    /// Ends the wait with a result, which \a tell shows when the dialog is gone: the link still
    /// awaits the result while it hands it over, and nothing could be read, nor recorded, as long
    /// as a box is open by then.
    void end(const std::function<void()> &tell);

    bool isRunning() const;
    /// The name of the last task.
    QString task() const;
    /// Its time-out is when a second is to be counted.
    QTimer *timer() const { return m_timer; }

private:
    LoadingDialog *m_dialog;
    QTimer *m_timer;
    int m_secondsLeft;
    std::function<void()> m_tell;
};
