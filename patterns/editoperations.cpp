#include "patterns/editoperations.h"

std::vector<std::unique_ptr<CurveOperation>> editOperations()
{
    return {};
}
