#pragma once

#include <QString>
#include <QStringList>

/// A file name made of \a text: characters that no file system takes are replaced, an empty text
/// gives \a fallback. Without folder and suffix.
QString fileNameFrom(const QString &text, const QString &fallback);

/// The sample curve files that ship with the program, whose own folder is \a programFolder: below
/// it as built, beside it as installed. Empty when they were not installed.
QStringList sampleFiles(const QString &programFolder);
