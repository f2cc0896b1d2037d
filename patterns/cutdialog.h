#pragma once

#include "patterns/curvefilereader.h"

class QWidget;

namespace CutDialog {

/// Asks which cuts of \a pattern, read from \a file, are to be opened and of what field; the
/// principal ones of the total field are chosen at first. Nothing when the file is to be left out.
std::optional<CutChoice> ask(QWidget *parent, const QString &file,
                             const PatternFormats::PatternFile &pattern);

} // namespace CutDialog
