#include "console/portlist.h"

#include <QComboBox>
#include <QSerialPortInfo>

void PortList::refresh()
{
    QStringList names;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        names.append(port.portName());
    if (names == m_known)
        return;
    m_known = names;
    m_box->clear();
    m_box->addItems(names);
}
