#pragma once

#include <QApplication>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Answers the dialogs that appear while it exists, and keeps what they said.
class ModalDialogs : public QObject
{
public:
    using Answer = std::function<void(QWidget &dialog)>;

    /// \a answer has to end the dialog; it is called once for each.
    explicit ModalDialogs(Answer answer)
        : m_answer(std::move(answer))
    {
        m_timer.start(5);
        connect(&m_timer, &QTimer::timeout, this, &ModalDialogs::look);
    }

    int count() const { return m_count; }

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible())
            return;
        ++m_count;
        m_answer(*dialog);
    }

    Answer m_answer;
    QTimer m_timer;
    int m_count = 0;
};
