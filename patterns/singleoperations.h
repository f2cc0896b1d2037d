#pragma once

#include "patterns/curveoperation.h"

#include <memory>

/// Operations on the selected curve.
namespace SingleOperations {

std::unique_ptr<CurveOperation> normalise();
std::unique_ptr<CurveOperation> mirror();
std::unique_ptr<CurveOperation> rotate();
std::unique_ptr<CurveOperation> smooth();

} // namespace SingleOperations
