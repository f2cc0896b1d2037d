#include "2d/view/mycheckbox.h"

MyCheckBox::MyCheckBox(int index, QWidget *parent)
    : QCheckBox(parent)
    , m_index(index)
{
    connect(this, &QCheckBox::toggled, this, &MyCheckBox::toggledSlot);
}

void MyCheckBox::toggledSlot(bool checked)
{
    emit currentState(m_index, checked);
}
