#pragma once

#include <QMenu>

struct ChartMenuState;

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
