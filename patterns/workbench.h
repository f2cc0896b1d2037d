#pragma once

#include "frame/language.h"
#include "patterns/recentfiles.h"
#include "patterns/workbenchsettings.h"

#include <QObject>

class PatternWindow;

/// The running program: what its windows share, and the windows themselves.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// \a settingsFile empty: the user's own one.
    explicit Workbench(const QString &settingsFile = {}, QObject *parent = nullptr);

    /// Makes and shows a window, which deletes itself when it is closed.
    PatternWindow *openWindow();

    const WorkbenchSettings &settings() const { return m_settings; }
    const QStringList &recentFiles() const { return m_recentFiles.paths(); }
    QString language() const { return m_language.code(); }

    /// The folder in which a file dialog starts.
    QString folder() const;
    /// Makes the folder of \a file the one in which the next file dialog starts.
    void rememberFolder(const QString &file);
    void rememberGeometry(const QByteArray &geometry) { m_settings.setWindowGeometry(geometry); }

    /// Shows all windows in "en" or "cn" as long as the program runs.
    void useLanguage(const QString &code);

public slots:
    /// Shows all windows in "en" or "cn" from now on, also at the next start.
    void setLanguage(const QString &code);
    void addRecentFile(const QString &file);
    void removeRecentFile(const QString &file);
    void clearRecentFiles();

signals:
    void languageChanged();
    void recentFilesChanged();

private:
    void storeRecentFiles();

    WorkbenchSettings m_settings;
    RecentFiles m_recentFiles;
    Language m_language;
};
