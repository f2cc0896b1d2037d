#pragma once

#include <QString>
#include <QVector>

#include <optional>

/// Whether the console can write what it keeps, before something is lost.
namespace WriteCheck {

/// What the console keeps.
enum class Kept { Settings, Records, Log };

/// Where it is kept, and what stands in the way.
struct Place
{
    Kept kept = Kept::Settings;
    QString path;                    ///< the file of the settings, the folder of the others
    std::optional<QString> obstacle; ///< why it cannot be written; nothing when it can
};

/// Why the file at \a path could not be written, or created together with the folders that it
/// lacks; nothing when it could. Leaves everything as it was.
std::optional<QString> obstacle(const QString &path);

/// The settings beside the program, the records in \a recordFolder and the log whose present file
/// is \a logFile, given from the program's folder, in this order.
QVector<Place> places(const QString &recordFolder, const QString &logFile);

} // namespace WriteCheck
