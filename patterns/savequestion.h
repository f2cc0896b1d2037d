#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class QWidget;

/// A kind of file that can be written.
struct SaveFormat
{
    QString description;
    QStringList suffixes; ///< without dots, lower case; the first is appended to a bare name
};

/// \a file with the suffix that it will have: the first one of \a preferred for a bare name.
/// Nothing when its suffix is none of \a formats, since a file must not hold what its name denies.
std::optional<QString> withSuffix(const QString &file, const QVector<SaveFormat> &formats,
                                  const SaveFormat &preferred);

/// Asks for the file to write, \a proposed at first, a path with a suffix of the first format.
/// Whether an existing file may be replaced is asked of the name as it will be written, suffix
/// included; a suffix that is no format is told, and the dialog comes again. Empty when cancelled.
QString askSaveFile(QWidget *parent, const QString &caption, const QString &proposed,
                    const QVector<SaveFormat> &formats);

/// Asks whether \a files, which exist, may be replaced.
bool askReplace(QWidget *parent, const QStringList &files);
