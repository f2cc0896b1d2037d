#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What the workbench remembers from one session to the next: a JSON file in the user's own
/// configuration folder, since the program's folder may well be read-only.
class WorkbenchSettings
{
public:
    /// \a file empty: the user's own file.
    explicit WorkbenchSettings(const QString &file = {});

    const QString &file() const { return m_file; }

    QStringList recentFiles() const;
    void setRecentFiles(const QStringList &paths);

    /// "en" or "cn"; "en" when nothing was stored.
    QString language() const;
    void setLanguage(const QString &language);

    /// The folder of the file dialogs; empty when nothing was stored or the folder is gone.
    QString folder() const;
    void setFolder(const QString &folder);

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray &geometry);

private:
    QString m_file;
};
