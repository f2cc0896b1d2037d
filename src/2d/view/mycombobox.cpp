#include "2d/view/mycombobox.h"

MyComboBox::MyComboBox(int index, QWidget *parent)
    : QComboBox(parent)
    , m_index(index)
{
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MyComboBox::currentIndexChangedSlot);
}

void MyComboBox::currentIndexChangedSlot(int newIndex)
{
    emit currentIndexSelected(m_index, newIndex);
}
