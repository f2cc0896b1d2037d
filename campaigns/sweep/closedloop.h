#pragma once

#include <QStringList>

/// A whole turn in steps of 1°, measured by the real program in the simulated chamber.
struct ClosedLoop
{
    int rows = 0;
    int starts = 0;
    int faults = 0;
    QStringList wrong;
};

/// Faults of both devices and the kills of the program follow from \a seed.
ClosedLoop measureInChamber(unsigned seed);
