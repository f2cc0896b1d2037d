#pragma once

#include "2d/data/polarorientation.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a window of the workbench needs of the program around it: the things that all windows
/// share. Windows know this alone, so that none of them depends on how the program makes others.
class WindowContext : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Makes and shows a further window.
    virtual void openFurtherWindow() = 0;

    /// The files opened last, the latest first, absolute paths.
    virtual QStringList recentFiles() const = 0;
    virtual void addRecentFile(const QString &file) = 0;
    virtual void removeRecentFile(const QString &file) = 0;
    virtual void clearRecentFiles() = 0;

    /// The folder in which a file dialog starts.
    virtual QString folder() const = 0;
    /// Makes the folder of \a file the one in which the next file dialog starts.
    virtual void rememberFolder(const QString &file) = 0;

    /// Whether the program was told to end, with nobody there to answer questions.
    virtual bool isStopping() const = 0;

    virtual QByteArray windowGeometry() const = 0;
    virtual void rememberGeometry(const QByteArray &geometry) = 0;

    virtual PolarView polarView() const = 0;
    /// Turns the polar charts of all windows, also at the next start.
    virtual void setPolarView(const PolarView &view) = 0;

    /// The prominence that makes a minimum a null, dB.
    virtual double nullProminence() const = 0;
    /// Computes the supplementary figures of all windows anew, also at the next start.
    virtual void setNullProminence(double prominence) = 0;

    /// Levels below the peak at which beam widths are shown, positive dB, ascending.
    virtual QVector<double> beamLevels() const = 0;
    /// Shows other beam widths in all windows, also at the next start.
    virtual void setBeamLevels(const QVector<double> &levels) = 0;

    /// What was entered for the last measurement.
    virtual QJsonObject measuring() const = 0;
    virtual void rememberMeasuring(const QJsonObject &inputs) = 0;

    /// "en" or "cn".
    virtual QString language() const = 0;
    /// Shows all windows in "en" or "cn" from now on, also at the next start.
    virtual void setLanguage(const QString &code) = 0;

signals:
    void polarViewChanged(const PolarView &view);
    void nullProminenceChanged(double prominence);
    void beamLevelsChanged(const QVector<double> &levels);
    void languageChanged();
    void recentFilesChanged();
};
