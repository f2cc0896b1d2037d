#pragma once

#include "patterns/losscorrection.h"

#include <QObject>

class CurveDesk;

namespace Ui {
class PatternWindow;
}

/// The *Loss* menu.
class LossActions : public QObject
{
    Q_OBJECT

public:
    /// \a ui and \a desk must outlive this object.
    LossActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent = nullptr);

    /// Tells the user why a table was refused, and returns false then.
    bool loadTable(const QString &file);
    /// Adds the selected curve's levels, corrected by the loss at its frequency, as a new curve.
    void apply(LossCorrection::Link link);

    /// Shows what can be chosen now.
    void update();

private:
    void ask();

    Ui::PatternWindow &m_ui;
    CurveDesk &m_desk;
};
