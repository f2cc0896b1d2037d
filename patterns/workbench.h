#pragma once

#include "frame/language.h"
#include "patterns/recentfiles.h"
#include "patterns/windowcontext.h"
#include "patterns/workbenchsettings.h"

class PatternWindow;

/// The running program: what its windows share, and the windows themselves.
class Workbench : public WindowContext
{
    Q_OBJECT

public:
    /// \a settingsFile empty: the user's own one.
    explicit Workbench(const QString &settingsFile = {}, QObject *parent = nullptr);

    /// Makes and shows a window, which deletes itself when it is closed.
    PatternWindow *openWindow();

    void openFurtherWindow() override { openWindow(); }
    QStringList recentFiles() const override { return m_recentFiles.paths(); }
    void addRecentFile(const QString &file) override;
    void removeRecentFile(const QString &file) override;
    void clearRecentFiles() override;
    QString folder() const override;
    void rememberFolder(const QString &file) override;
    QByteArray windowGeometry() const override { return m_settings.windowGeometry(); }
    void rememberGeometry(const QByteArray &geometry) override
    {
        m_settings.setWindowGeometry(geometry);
    }
    bool isStopping() const override { return m_isStopping; }
    PolarView polarView() const override { return m_polarView; }
    void setPolarView(const PolarView &view) override;
    double nullProminence() const override { return m_nullProminence; }
    void setNullProminence(double prominence) override;
    QVector<double> beamLevels() const override { return m_beamLevels; }
    void setBeamLevels(const QVector<double> &levels) override;
    QJsonObject measuring() const override { return m_settings.measuring(); }
    void rememberMeasuring(const QJsonObject &inputs) override { m_settings.setMeasuring(inputs); }
    QString language() const override { return m_language.code(); }
    void setLanguage(const QString &code) override;

    /// Closes all windows and dialogs without questions and ends the program.
    void stop();

    /// Shows all windows in "en" or "cn" as long as the program runs.
    void useLanguage(const QString &code);

private:
    void storeRecentFiles();

    WorkbenchSettings m_settings;
    RecentFiles m_recentFiles;
    PolarView m_polarView;
    double m_nullProminence;
    QVector<double> m_beamLevels;
    Language m_language;
    bool m_isStopping = false;
};
