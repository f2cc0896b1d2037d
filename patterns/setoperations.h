#pragma once

#include "patterns/curveoperation.h"

#include <memory>

/// Operations on several curves, and the masks that curves are held against.
namespace SetOperations {

std::unique_ptr<CurveOperation> average();
std::unique_ptr<CurveOperation> envelope();
std::unique_ptr<CurveOperation> compare();
std::unique_ptr<CurveOperation> loadMask();

} // namespace SetOperations
