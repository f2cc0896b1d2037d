#pragma once

#include <QString>

#include <cstdio>

/// The examination that support asks for: what the console needs of this machine, and whether an
/// instrument answers.
namespace Doctor {

/// Writes the report to \a out while it goes, and returns whether nothing is wrong. \a address is a
/// host or PORT[:BAUD]; empty: no instrument is asked. \a hasDisplay as Display::prepare told;
/// \a logFile is the log's present file, given from the program's folder.
/// Changes nothing, and takes no longer than the link waits for an instrument. Needs the
/// application object; the message handler is replaced.
bool examine(const QString &address, bool hasDisplay, const QString &logFile, std::FILE *out);

} // namespace Doctor
