#pragma once

/// Lets a program with windows print on the console that it was started from. Windows gives such a
/// program none; output that was redirected goes where it was sent. Does nothing on other systems.
///
/// To be called before something is printed, by a program that then ends: the prompt that shares
/// its console with one would end it with Ctrl+C or with its own window.
void useParentConsole();
