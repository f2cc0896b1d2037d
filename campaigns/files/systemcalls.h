#pragma once

#include "failure.h"

#include <QString>

/// The system calls of this process on the files of one folder: counted, and made to fail. The C
/// library's functions are replaced for Qt's libraries too, since a program's own symbols come
/// before a library's; everything outside the folder, and every other thread, goes on undisturbed.
namespace SystemCalls {

/// What happens to which call.
struct Plan
{
    int number = -1; ///< counted from 0; none by default
    Failure failure;
    bool isShare = false; ///< the folder is on a server, which knows no files without a name
};

/// The folder of the files, which the program seems to lie in as well, and the date at which the
/// clock stands still. Call before there is an application object.
void setStage(const QString &folder, qint64 secondsSinceEpoch);

/// From now on the calls of this thread count. Each is told to the descriptor \a report as a line
/// "call NUMBER FUNCTION KIND", before it takes place; one that fails by the plan as
/// "failed NUMBER FUNCTION KIND".
void watch(const Plan &plan, int report);

} // namespace SystemCalls
