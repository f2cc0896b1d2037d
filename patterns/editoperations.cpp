#include "patterns/editoperations.h"

#include "patterns/measure/gaincomparison.h"
#include "patterns/setoperations.h"
#include "patterns/singleoperations.h"

std::vector<std::unique_ptr<CurveOperation>> editOperations()
{
    std::vector<std::unique_ptr<CurveOperation>> operations;
    operations.push_back(SingleOperations::normalise());
    operations.push_back(SingleOperations::mirror());
    operations.push_back(SingleOperations::rotate());
    operations.push_back(SingleOperations::smooth());
    operations.push_back(SetOperations::average());
    operations.push_back(SetOperations::envelope());
    operations.push_back(SetOperations::compare());
    operations.push_back(SetOperations::loadMask());
    operations.push_back(GainComparison::operation());
    return operations;
}
