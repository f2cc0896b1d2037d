#pragma once

#include <QString>
#include <QTimer>

#include <functional>

class QWidget;

/// Answers the dialogs of one save while it lives: gives the file dialog its name, agrees to
/// replacing the file, and prints what each box says on standard error as "box: TEXT".
class Operator
{
public:
    /// Chooses \a file and calls \a chosen as soon as the file dialog has taken it.
    explicit Operator(QString file = {}, std::function<void()> chosen = {});

    /// Reads and closes the boxes that nobody waits for.
    static void closeBoxes();

private:
    void look();
    void answer(QWidget *dialog);

    QString m_file;
    std::function<void()> m_chosen;
    QTimer m_timer;
};
