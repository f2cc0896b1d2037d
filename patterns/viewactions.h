#pragma once

#include <QObject>
#include <QString>

class CurveDesk;

namespace Ui {
class PatternWindow;
}

/// The *View* menu.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    /// \a ui and \a desk must outlive this object.
    ViewActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent = nullptr);

    /// Shows what can be chosen now.
    void update();

private:
    void setUpLanguages();
    void askBeamLevels();
    void setUpMarkers();
    void setUpPolarView();
    void showPolarView();

    Ui::PatternWindow &m_ui;
    CurveDesk &m_desk;
};
