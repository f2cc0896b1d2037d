#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <functional>

/// Answers modal windows in the order in which they come up, one step a window. A window that no
/// step is left for is closed and counted, so that a test fails instead of waiting for a user.
class ModalScript
{
public:
    using Step = std::function<void(QWidget *window)>;

    explicit ModalScript(QVector<Step> steps);

    /// For a step to call: \a window is not to be closed, as it will be by the program itself.
    static void leaveOpen(QWidget *window);

    /// Whether every step was taken and no window is still open.
    bool isDone() const { return m_steps.isEmpty() && m_unexpected == 0; }

private:
    void lookSoon();
    void look();

    QVector<Step> m_steps;
    QPointer<QWidget> m_answered;
    int m_unexpected = 0;
    QObject m_lifetime;
};
