#pragma once

#include <QStringList>

struct PatternSupplement;

constexpr int supplementColumns = 4;

/// The cells of one row of the supplementary table: half-power beam width and first-null beam width
/// in degrees, side-lobe level and front-to-back ratio in dB, two decimals; a dash for what is
/// missing.
QStringList supplementCells(const PatternSupplement &figures);
