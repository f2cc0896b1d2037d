#include "2d/scene/mycustomproxy.h"

#include "2d/scene/myparainfotable.h"

MyCustomProxy::MyCustomProxy(QGraphicsItem *parent)
    : TablePanel(parent)
    , m_table(new MyParaInfoTable)
{
    setWidget(m_table);
}

MyParaInfoTable *MyCustomProxy::table() const
{
    return m_table;
}

bool MyCustomProxy::getParaTableDataStatus() const
{
    return m_table->getParaTableDataStatus();
}

void MyCustomProxy::updateParaInfo(ParaInfo paraInfo)
{
    m_table->updateParaInfo(paraInfo);
}

void MyCustomProxy::clearParaInfo()
{
    m_table->clearParaInfo();
}
