#pragma once

#include "2d/data/polarorientation.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

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

    /// How the polar chart is turned; 0 degrees up and clockwise when nothing was stored.
    PolarView polarView() const;
    void setPolarView(const PolarView &view);

    /// dB; the usual one when nothing, or nothing sensible, was stored.
    double nullProminence() const;
    void setNullProminence(double prominence);

    /// Levels below the peak at which beam widths are shown, positive dB, ascending.
    QVector<double> beamLevels() const;
    void setBeamLevels(const QVector<double> &levels);

    /// What was entered for the last measurement, as it was stored.
    QJsonObject measuring() const;
    void setMeasuring(const QJsonObject &inputs);

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray &geometry);

private:
    QString m_file;
};
