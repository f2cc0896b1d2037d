#pragma once

#include <QMenu>

/// What the context menu of a chart has to know of it.
struct ChartSituation
{
    bool curveSelected = false;
    bool updateFinished = false; ///< the curves are complete
    bool markTablesShown = false;
    bool parameterTableShown = false;
    int markCount = 0;
    QString clipboardText; ///< as it is now; paste is offered for a curve's text
};

/// Which entries of the context menu can be chosen, and which are checked.
struct ChartMenuState
{
    bool copy = false;
    bool paste = false;
    bool exportData = false;
    bool exportImage = false;
    bool deleteMark = false;
    bool markTable = false;
    bool parameterTable = false;
    bool symmetry = false;
    bool markTableChecked = false;
    bool parameterTableChecked = false;
};

/// What can be done with a chart in this \a situation.
ChartMenuState chartMenuState(const ChartSituation &situation);

/// The context menu of a chart, in the language of the moment: made for one use.
class ChartMenu : public QMenu
{
    Q_OBJECT

public:
    enum class Entry {
        Copy,
        Paste,
        AddMark,
        DeleteMark,
        MarkTable,
        ParameterTable,
        Import,
        ExportData,
        ExportImage,
        Manager,
        ClearSelection,
        Zoom,
        Reset,
        Pan,
        Symmetry,
        SymmetryReset,
    };

    explicit ChartMenu(const ChartMenuState &state, QWidget *parent = nullptr);

    QAction *entry(Entry entry) const;

private:
    QAction *add(Entry entry, const QString &text, bool enabled = true);
    void addTable(Entry entry, const QString &text, bool enabled, bool checked);

    QMap<Entry, QAction *> m_entries;
};
