#pragma once

#include <QCheckBox>

/// A check box that knows which column of a table it stands in.
class MyCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit MyCheckBox(int index, QWidget *parent = nullptr);

signals:
    /// The box of column \a index was switched.
    void currentState(int index, bool checked);

public slots:
    void toggledSlot(bool checked);

private:
    int m_index;
};
