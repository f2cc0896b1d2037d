#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

/// The text of a literal in UTF-8.
inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// The words of a line with blanks between them.
inline QStringList words(const QByteArray &utf8)
{
    return QString::fromUtf8(utf8).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// What the file at \a path holds; "cannot be read" if it cannot.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

/// Writes \a content to a file at \a path, in a folder that is made if need be; its path again.
inline QString write(const QString &path, const QByteArray &content = {},
                     QIODevice::OpenMode mode = QIODevice::WriteOnly)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(mode) || file.write(content) != content.size())
        qFatal("no test file: %s", qPrintable(path));
    return path;
}
