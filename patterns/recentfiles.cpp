#include "patterns/recentfiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString cleaned(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

RecentFiles::RecentFiles(const QStringList &stored)
{
    for (auto path = stored.crbegin(); path != stored.crend(); ++path) {
        if (!path->isEmpty())
            add(*path);
    }
}

void RecentFiles::add(const QString &path)
{
    const QString added = cleaned(path);
    m_paths.removeAll(added);
    m_paths.prepend(added);
    while (m_paths.size() > limit)
        m_paths.removeLast();
}

void RecentFiles::remove(const QString &path)
{
    m_paths.removeAll(cleaned(path));
}
