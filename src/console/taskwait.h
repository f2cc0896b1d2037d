#pragma once

#include <QObject>

#include <functional>

class LoadingDialog;
class QTimer;
class QWidget;

/// The wait for the result of zeroing or calibration: a modal dialog that counts the seconds down.
class TaskWait : public QObject
{
    Q_OBJECT

public:
    /// Makes the dialog and the timer, children of \a window.
    explicit TaskWait(QWidget *window);

    /// Shows the dialog for the task \a name until the wait ends; then tells how, if there is
    /// something to tell.
    void run(const QString &name);
    /// Counts a second; the last one ends the wait as `timedOut`.
    void countDown();
    /// Ends the wait with nothing to tell. Does nothing when there is none.
    void end();
    /// Ends the wait with a result, which \a tell shows when the dialog is gone: the link still
    /// awaits the result while it hands it over, and nothing could be read, nor recorded, as long
    /// as a box is open by then.
    void end(const std::function<void()> &tell);

    bool isRunning() const;

signals:
    /// No result has come for \a task in time.
    void timedOut(const QString &task);

private:
    LoadingDialog *m_dialog;
    QTimer *m_timer;
    int m_secondsLeft;
    std::function<void()> m_tell;
};
