#include "modalscript.h"

#include <QApplication>

ModalScript::ModalScript(QVector<Step> steps)
    : m_steps(std::move(steps))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(1);
}

void ModalScript::look()
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window || !window->isVisible() || window == m_answered)
        return;
    m_answered = window;
    if (m_steps.isEmpty()) {
        ++m_unexpected;
        window->close();
        return;
    }
    const Step step = m_steps.takeFirst();
    step(window);
}
