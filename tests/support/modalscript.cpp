#include "modalscript.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr char leftOpen[] = "modalScriptLeftOpen";

} // namespace

ModalScript::ModalScript(QVector<Step> steps)
    : m_steps(std::move(steps))
{
    lookSoon();
}

void ModalScript::leaveOpen(QWidget *window)
{
    window->setProperty(leftOpen, true);
}

void ModalScript::lookSoon()
{
    // A timer of its own for every look: one that repeats would rest while a step opens a window.
    QTimer::singleShot(1, &m_lifetime, [this] {
        lookSoon();
        look();
    });
}

void ModalScript::look()
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window || !window->isVisible())
        return;
    const bool stayedOpen = window == m_answered;
    if (stayedOpen && window->property(leftOpen).toBool())
        return;
    m_answered = window;
    window->setProperty(leftOpen, false);
    if (stayedOpen || m_steps.isEmpty()) {
        ++m_unexpected;
        window->close();
        return;
    }
    const Step step = m_steps.takeFirst();
    step(window);
}
