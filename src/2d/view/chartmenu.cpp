#include "2d/view/chartmenu.h"

namespace {

bool looksLikeCurve(const QString &text)
{
    return text.contains(QLatin1String("Angle")) && text.contains(QLatin1String("Power"));
}

} // namespace

ChartMenuState chartMenuState(const ChartSituation &situation)
{
    ChartMenuState state;
    state.copy = situation.curveSelected;
    state.exportData = situation.curveSelected;
    state.exportImage = situation.curveSelected;
    state.paste = looksLikeCurve(situation.clipboardText);
    state.deleteMark = situation.markCount > 0;
    state.markTable = situation.updateFinished && situation.curveSelected;
    state.parameterTable = situation.updateFinished && situation.curveSelected;
    state.symmetry = situation.updateFinished;
    state.markTableChecked = situation.markTablesShown;
    state.parameterTableChecked = situation.parameterTableShown;
    return state;
}

ChartMenu::ChartMenu(const ChartMenuState &state, QWidget *parent)
    : QMenu(parent)
{
    add(Entry::Copy, tr("Copy"), state.copy)->setShortcut(QKeySequence::Copy);
    add(Entry::Paste, tr("Paste"), state.paste)->setShortcut(QKeySequence::Paste);
    add(Entry::ClearSelection, tr("Clear Selection"));
    addSeparator();
    add(Entry::AddMark, tr("Add Marker"));
    add(Entry::DeleteMark, tr("Delete Marker"), state.deleteMark)
        ->setShortcut(QKeySequence::Delete);
    addTable(Entry::MarkTable, tr("Marker Table"), state.markTable, state.markTableChecked);
    addTable(Entry::ParameterTable, tr("Parameter Table"), state.parameterTable,
             state.parameterTableChecked);
    addSeparator();
    add(Entry::Import, tr("Import Graphics"));
    add(Entry::ExportData, tr("Export Graphics As CSV"), state.exportData);
    add(Entry::ExportImage, tr("Export Graphics As Image"), state.exportImage);
    addSeparator();
    add(Entry::Symmetry, tr("Symmetry"), state.symmetry);
    add(Entry::SymmetryReset, tr("Undo Symmetry"));
    add(Entry::Manager, tr("Manager Graphics"));
    addSeparator();
    add(Entry::Zoom, tr("Zoom"));
    add(Entry::Pan, tr("Pan"));
    add(Entry::Reset, tr("Reset"))->setShortcut(Qt::Key_Home);
}

QAction *ChartMenu::entry(Entry entry) const
{
    return m_entries.value(entry);
}

QAction *ChartMenu::add(Entry entry, const QString &text, bool enabled)
{
    QAction *action = addAction(text);
    action->setEnabled(enabled);
    m_entries.insert(entry, action);
    return action;
}

void ChartMenu::addTable(Entry entry, const QString &text, bool enabled, bool checked)
{
    QAction *action = add(entry, text, enabled);
    action->setCheckable(true);
    action->setChecked(checked);
}
