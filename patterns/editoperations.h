#pragma once

#include "patterns/curveoperation.h"

#include <memory>
#include <vector>

/// The operations of the *Edit* menu in their order.
std::vector<std::unique_ptr<CurveOperation>> editOperations();
