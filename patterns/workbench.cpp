#include "patterns/workbench.h"

#include "patterns/patternwindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

Workbench::Workbench(const QString &settingsFile, QObject *parent)
    : WindowContext(parent)
    , m_settings(settingsFile)
    , m_recentFiles(m_settings.recentFiles())
    , m_polarView(m_settings.polarView())
    , m_nullProminence(m_settings.nullProminence())
    , m_beamLevels(m_settings.beamLevels())
{
    m_language.set(m_settings.language());
}

PatternWindow *Workbench::openWindow()
{
    auto *window = new PatternWindow(*this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

QString Workbench::folder() const
{
    const QString stored = m_settings.folder();
    return stored.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                            : stored;
}

void Workbench::rememberFolder(const QString &file)
{
    m_settings.setFolder(QFileInfo(file).absolutePath());
}

void Workbench::setPolarView(const PolarView &view)
{
    m_polarView = view;
    m_settings.setPolarView(view);
    emit polarViewChanged(view);
}

void Workbench::setNullProminence(double prominence)
{
    m_nullProminence = prominence;
    m_settings.setNullProminence(prominence);
    emit nullProminenceChanged(prominence);
}

void Workbench::setBeamLevels(const QVector<double> &levels)
{
    m_beamLevels = levels;
    m_settings.setBeamLevels(levels);
    emit beamLevelsChanged(levels);
}

void Workbench::stop()
{
    m_isStopping = true;
    // Closed, not only ended: a window stores its place when it is closed.
    QApplication::closeAllWindows();
    QApplication::quit();
}

void Workbench::useLanguage(const QString &code)
{
    m_language.set(code);
    emit languageChanged();
}

void Workbench::setLanguage(const QString &code)
{
    useLanguage(code);
    m_settings.setLanguage(code);
}

void Workbench::addRecentFile(const QString &file)
{
    m_recentFiles.add(file);
    storeRecentFiles();
}

void Workbench::removeRecentFile(const QString &file)
{
    m_recentFiles.remove(file);
    storeRecentFiles();
}

void Workbench::clearRecentFiles()
{
    m_recentFiles.clear();
    storeRecentFiles();
}

void Workbench::storeRecentFiles()
{
    m_settings.setRecentFiles(m_recentFiles.paths());
    emit recentFilesChanged();
}
