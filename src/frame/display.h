#pragma once

#include <QStringList>

/// What a program with windows does where there is no display: it answers in plain words, where Qt
/// would abort.
namespace Display {

/// Called before the application object is made; false where there is no display. The application
/// object can be made all the same (it then draws into memory), so that Qt's own options are taken
/// out of the command line before the rest is judged. A platform that \a arguments or the
/// environment name is taken for a display. Until qInstallMessageHandler is called again, a display
/// that cannot be reached ends the program, with a text on standard error and status 1.
bool prepare(const QStringList &arguments);

/// For a program that can do without: a display that is named but cannot be reached is passed over
/// as if there were none. Called after prepare().
void makeOptional();

/// For work that shows no window: the application object draws into memory, whatever displays there
/// are. Called before prepare().
void drawIntoMemory();

/// What to tell a user who has no display.
QString missingText();

} // namespace Display
