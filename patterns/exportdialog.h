#pragma once

#include "patterns/formats/cut.h"

#include <optional>

class CurveSet;
class QWidget;

/// Curves that are to go into one pattern file.
struct PatternChoice
{
    PatternFormats::Format format = PatternFormats::Format::Msi;
    int horizontal = 0; ///< number of the curve; 0: none
    int vertical = 0;
};

namespace ExportDialog {

/// Asks for the format and its curves among \a curves; nothing when cancelled.
std::optional<PatternChoice> ask(QWidget *parent, const CurveSet &curves);

} // namespace ExportDialog
