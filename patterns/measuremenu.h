#pragma once

#include <QObject>

class CurveDesk;
class QMenu;

/// The *Measure* menu of a window.
class MeasureMenu : public QObject
{
    Q_OBJECT

public:
    /// \a menu belongs to the window; it is hidden as long as it is empty. \a desk must outlive
    /// this object.
    MeasureMenu(QMenu &menu, CurveDesk &desk, QObject *parent = nullptr);

    /// Shows the entries in the current language.
    void retranslate();

private:
    QMenu &m_menu;
    CurveDesk &m_desk;
};
