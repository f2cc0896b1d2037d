#pragma once

#include <QObject>

class QWidget;

/// Keeps keys and clicks from all widgets but one and those of message boxes, while something
/// blocks the window now and then: what is pressed then would otherwise come in when it means
/// something else.
class InputGate : public QObject
{
    Q_OBJECT

public:
    /// Nothing is held back until the gate is closed.
    explicit InputGate(QWidget *exempt);

    void setClosed(bool closed);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Escape was pressed at the closed gate.
    void escaped();

private:
    QWidget *m_exempt;
    bool m_isClosed = false;
};
