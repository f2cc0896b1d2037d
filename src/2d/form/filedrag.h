#pragma once

#include <QStringList>

class QDropEvent;

/// Files that are dragged in from a file manager. They have to be told from a curve's text, since
/// files too can be asked for as text: their addresses.
namespace FileDrag {

/// The local files that \a event brings.
QStringList files(const QDropEvent &event);

inline bool holdsFiles(const QDropEvent &event)
{
    return !files(event).isEmpty();
}

} // namespace FileDrag
