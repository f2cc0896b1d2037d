#pragma once

#include "measure/limits.h"

#include <QByteArray>
#include <QString>

/// What the panels of a long watch remember, and their file beside "config.ini". While everything
/// is as a new console has it, no file is written.
struct WatchSettings
{
    QByteArray windowState; ///< where the panels stand, as QMainWindow keeps it
    bool isStatisticsOverShown = false;
    bool reconnects = false;
    Limits limits;
    double high = 0.0; ///< dBm; the level also while it is not watched
    double low = -60.0;

    /// "console.json" beside the program.
    static QString ownFile();
    /// Reads a file; what is missing or makes no sense is as in a new console.
    static WatchSettings load(const QString &path);
    /// Replaces the file.
    void save(const QString &path) const;

    QByteArray toText() const;
    static WatchSettings parse(const QByteArray &text);
};
