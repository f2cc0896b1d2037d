#include "2d/form/filedrag.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace FileDrag {

QStringList files(const QDropEvent &event)
{
    QStringList files;
    const QList<QUrl> addresses = event.mimeData()->urls();
    for (const QUrl &address : addresses) {
        if (address.isLocalFile())
            files.append(address.toLocalFile());
    }
    return files;
}

} // namespace FileDrag
