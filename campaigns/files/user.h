#pragma once

#include "modalscript.h"

/// Answers the dialogs of a save: gives the file dialog \a file and calls \a chosen as soon as it
/// has taken that, agrees to replacing the file, and prints what each box says on standard error as
/// "box: TEXT".
class User : public ModalScript
{
public:
    explicit User(const QString &file = {}, const std::function<void()> &chosen = {});

    /// Reads and closes the boxes that nobody waits for.
    static void closeBoxes();
};
