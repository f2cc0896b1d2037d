#pragma once

#include "patterns/batch.h"

namespace Batch {

/// Writes the report of all curves of \a files as the file \a output, HTML or PDF by its suffix,
/// and returns the exit status. Needs a QApplication; its platform may draw into memory.
ExitStatus writeReport(const QString &output, const QStringList &files, QTextStream &messages);

} // namespace Batch
