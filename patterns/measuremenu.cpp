#include "patterns/measuremenu.h"

#include <QMenu>

MeasureMenu::MeasureMenu(QMenu &menu, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
    , m_desk(desk)
{
    m_menu.menuAction()->setVisible(!m_menu.isEmpty());
}

void MeasureMenu::retranslate()
{}
