#pragma once

#include <QComboBox>

/// A combo box that knows which column of a table it stands in.
class MyComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit MyComboBox(int index, QWidget *parent = nullptr);

signals:
    /// Entry \a newIndex was chosen in column \a index.
    void currentIndexSelected(int index, int newIndex);

public slots:
    void currentIndexChangedSlot(int newIndex);

private:
    int m_index;
};
