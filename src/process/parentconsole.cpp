#include "process/parentconsole.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

#include <cstdio>

#include <windows.h>

namespace {

void openUnlessRedirected(std::FILE *stream)
{
    // Negative: the runtime found nothing to write to.
    if (_fileno(stream) < 0)
        std::freopen("CONOUT$", "w", stream);
}

} // namespace

void useParentConsole()
{
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0)
        return;
    openUnlessRedirected(stdout);
    openUnlessRedirected(stderr);
}

#else

void useParentConsole()
{}

#endif
