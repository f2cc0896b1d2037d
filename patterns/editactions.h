#pragma once

#include "patterns/curveoperation.h"

#include <QObject>

#include <memory>
#include <vector>

class CurveDesk;
class QAction;

namespace Ui {
class PatternWindow;
}

/// The *Edit* menu: the history, the clipboard, and the operations that make curves of curves.
class EditActions : public QObject
{
    Q_OBJECT

public:
    /// \a ui and \a desk must outlive this object.
    EditActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent = nullptr);
    ~EditActions() override;

    /// Shows what can be chosen now.
    void update();
    /// Shows the entries in the current language.
    void retranslate();

private:
    void addOperations();
    void showSteps();
    void copy();
    void paste();
    void copyParameters();

    /// An operation and its entry in the menu.
    struct Entry
    {
        std::unique_ptr<CurveOperation> operation;
        QAction *action;
    };

    Ui::PatternWindow &m_ui;
    CurveDesk &m_desk;
    std::vector<Entry> m_entries;
};
