#pragma once

#include <QStringList>

class QComboBox;

/// Keeps a combo box at the serial ports of the machine.
class PortList
{
public:
    explicit PortList(QComboBox *box)
        : m_box(box)
    {}

    /// Lists the ports anew when they have changed; otherwise the user's choice is left alone.
    void refresh();

private:
    QComboBox *m_box;
    QStringList m_known;
};
