#pragma once

#include <QString>

/// What the context menu of a chart has to know of it.
struct ChartSituation
{
    bool curveSelected = false;
    bool updateFinished = false; ///< the curves are complete
    bool markTablesShown = false;
    bool parameterTableShown = false;
    int markCount = 0;
    QString clipboardText;
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

ChartMenuState chartMenuState(const ChartSituation &situation);
