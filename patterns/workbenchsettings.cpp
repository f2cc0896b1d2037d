#include "patterns/workbenchsettings.h"

#include <QDir>
#include <QSettings>

namespace {

QVariant stored(const QString &file, const QString &key)
{
    return QSettings(file, QSettings::IniFormat).value(key);
}

void store(const QString &file, const QString &key, const QVariant &value)
{
    QSettings(file, QSettings::IniFormat).setValue(key, value);
}

} // namespace

WorkbenchSettings::WorkbenchSettings(const QString &file)
    : m_file(file)
{
    if (m_file.isEmpty()) {
        m_file = QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("mz6218"),
                           QStringLiteral("mz6218-patterns"))
                     .fileName();
    }
}

QStringList WorkbenchSettings::recentFiles() const
{
    return stored(m_file, QStringLiteral("recentFiles")).toStringList();
}

void WorkbenchSettings::setRecentFiles(const QStringList &paths)
{
    store(m_file, QStringLiteral("recentFiles"), paths);
}

QString WorkbenchSettings::language() const
{
    const QString language = stored(m_file, QStringLiteral("language")).toString();
    return language == QStringLiteral("cn") ? language : QStringLiteral("en");
}

void WorkbenchSettings::setLanguage(const QString &language)
{
    store(m_file, QStringLiteral("language"), language);
}

QString WorkbenchSettings::folder() const
{
    const QString folder = stored(m_file, QStringLiteral("folder")).toString();
    return QDir(folder).exists() ? folder : QString();
}

void WorkbenchSettings::setFolder(const QString &folder)
{
    store(m_file, QStringLiteral("folder"), folder);
}

QByteArray WorkbenchSettings::windowGeometry() const
{
    return stored(m_file, QStringLiteral("windowGeometry")).toByteArray();
}

void WorkbenchSettings::setWindowGeometry(const QByteArray &geometry)
{
    store(m_file, QStringLiteral("windowGeometry"), geometry);
}
