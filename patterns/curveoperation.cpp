#include "patterns/curveoperation.h"

#include "2d/form/curveset.h"

bool CurveOperation::isPossible(const CurveSet &curves) const
{
    return curves.selected() != 0 && !curves.points(curves.selected()).isEmpty();
}
