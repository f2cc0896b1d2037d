#include "patterns/filenames.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

QString fileNameFrom(const QString &text, const QString &fallback)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\x00-\\x1f\\x7f\"*/:<>?\\\\|]"));
    static const QRegularExpression outerDots(QStringLiteral("^[.\\s]+|[.\\s]+$"));
    // Windows drops dots at the end, and a dot in front would hide the file elsewhere.
    const QString name =
        QString(text).replace(forbidden, QStringLiteral("_")).left(100).remove(outerDots);
    return name.isEmpty() ? fallback : name;
}

QStringList sampleFiles(const QString &programFolder)
{
    const QStringList names{QStringLiteral("dipole.csv"), QStringLiteral("patch.csv"),
                            QStringLiteral("horn.csv"), QStringLiteral("array.csv")};
    const QStringList folders{QStringLiteral("/samples/"), QStringLiteral("/../samples/")};
    for (const QString &folder : folders) {
        QStringList files;
        for (const QString &name : names) {
            const QFileInfo file(programFolder + folder + name);
            if (file.isFile())
                files.append(QDir::cleanPath(file.absoluteFilePath()));
        }
        if (!files.isEmpty())
            return files;
    }
    return {};
}
