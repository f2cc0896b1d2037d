#include "patterns/workbenchsettings.h"

#include "2d/data/patternsupplement.h"
#include "2d/data/supplementtext.h"
#include "storage/filewriting.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <array>
#include <optional>

namespace {

/// The words for orientations in the file, in the order of the enumeration.
const std::array<const char *, 4> orientationWords{"down-clockwise", "up-clockwise",
                                                   "up-counterclockwise", "right-counterclockwise"};
constexpr auto wholeCircleWord = "0-360";
constexpr auto halfCirclesWord = "-180-180";

/// What is stored in \a file, nothing at the first start; no object when it cannot be read.
std::optional<QJsonObject> stored(const QString &file)
{
    QFile source(file);
    QByteArray text;
    if (source.open(QIODevice::ReadOnly))
        text = source.readAll();
    if (source.error() == QFileDevice::NoError || !source.exists())
        return QJsonDocument::fromJson(text).object();
    qWarning().noquote() << "Settings not read from" << file << ":" << source.errorString();
    return std::nullopt;
}

QJsonValue stored(const QString &file, const QString &key)
{
    return stored(file).value_or(QJsonObject()).value(key);
}

void store(const QString &file, const QString &key, const QJsonValue &value)
{
    std::optional<QJsonObject> all = stored(file);
    if (!all)
        return; // the other settings would be lost
    all->insert(key, value);
    QDir().mkpath(QFileInfo(file).absolutePath());
    const FileOutcome outcome = replaceFile(file, QJsonDocument(*all).toJson());
    if (outcome.kind != FileOutcome::Kind::Written)
        qWarning().noquote() << "Settings not written to" << file << ":" << outcome.reason;
}

} // namespace

WorkbenchSettings::WorkbenchSettings(const QString &file)
    : m_file(file)
{
    if (m_file.isEmpty()) {
        m_file = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/mz6218/mz6218-patterns.json");
    }
}

QStringList WorkbenchSettings::recentFiles() const
{
    return stored(m_file, QStringLiteral("recentFiles")).toVariant().toStringList();
}

void WorkbenchSettings::setRecentFiles(const QStringList &paths)
{
    store(m_file, QStringLiteral("recentFiles"), QJsonArray::fromStringList(paths));
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

PolarView WorkbenchSettings::polarView() const
{
    PolarView view;
    const QString word = stored(m_file, QStringLiteral("polarOrientation")).toString();
    for (std::size_t i = 0; i < orientationWords.size(); ++i) {
        if (word == QLatin1String(orientationWords.at(i)))
            view.orientation = static_cast<PolarOrientation>(i);
    }
    if (stored(m_file, QStringLiteral("polarLabels")).toString() == QLatin1String(wholeCircleWord))
        view.labels = PolarLabels::WholeCircle;
    return view;
}

void WorkbenchSettings::setPolarView(const PolarView &view)
{
    const auto word = orientationWords.at(static_cast<std::size_t>(view.orientation));
    const bool whole = view.labels == PolarLabels::WholeCircle;
    store(m_file, QStringLiteral("polarOrientation"), QLatin1String(word));
    store(m_file, QStringLiteral("polarLabels"),
          QLatin1String(whole ? wholeCircleWord : halfCirclesWord));
}

double WorkbenchSettings::nullProminence() const
{
    const double prominence =
        stored(m_file, QStringLiteral("nullProminence")).toDouble(usualNullProminence);
    return prominence >= 0.0 && prominence <= 100.0 ? prominence : usualNullProminence;
}

void WorkbenchSettings::setNullProminence(double prominence)
{
    store(m_file, QStringLiteral("nullProminence"), prominence);
}

QVector<double> WorkbenchSettings::beamLevels() const
{
    const QString levels = stored(m_file, QStringLiteral("beamLevels")).toString();
    return readDrops(levels).value_or(QVector<double>());
}

void WorkbenchSettings::setBeamLevels(const QVector<double> &levels)
{
    store(m_file, QStringLiteral("beamLevels"), dropsText(levels));
}

QJsonObject WorkbenchSettings::measuring() const
{
    return stored(m_file, QStringLiteral("measuring")).toObject();
}

void WorkbenchSettings::setMeasuring(const QJsonObject &inputs)
{
    store(m_file, QStringLiteral("measuring"), inputs);
}

QByteArray WorkbenchSettings::windowGeometry() const
{
    const QString geometry = stored(m_file, QStringLiteral("windowGeometry")).toString();
    return QByteArray::fromBase64(geometry.toLatin1());
}

void WorkbenchSettings::setWindowGeometry(const QByteArray &geometry)
{
    store(m_file, QStringLiteral("windowGeometry"), QString::fromLatin1(geometry.toBase64()));
}
