#include "2d/view/chartmenustate.h"

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
