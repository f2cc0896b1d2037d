#include "watch/watchsettings.h"

#include "storage/filewriting.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QString key(const char *name)
{
    return QLatin1String(name);
}

double number(const QJsonObject &object, const char *name, double low, double high, double usual)
{
    const double value = object.value(key(name)).toDouble(usual);
    return std::isfinite(value) && value >= low && value <= high ? value : usual;
}

} // namespace

QString WatchSettings::ownFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/console.json");
}

QByteArray WatchSettings::toText() const
{
    const QJsonObject limitValues{
        {key("high"), high},
        {key("low"), low},
        {key("watchHigh"), limits.high.has_value()},
        {key("watchLow"), limits.low.has_value()},
        {key("hysteresis"), limits.hysteresis},
        {key("inARow"), limits.inARow},
        {key("latched"), limits.latched},
    };
    const QJsonObject all{
        {key("window"), QString::fromLatin1(windowState.toBase64())},
        {key("statisticsOver"), key(isStatisticsOverShown ? "shown" : "reset")},
        {key("reconnect"), reconnects},
        {key("limits"), limitValues},
    };
    return QJsonDocument(all).toJson();
}

WatchSettings WatchSettings::parse(const QByteArray &text)
{
    constexpr double farthest = 200.0; // dBm
    WatchSettings settings;
    const QJsonObject all = QJsonDocument::fromJson(text).object();
    settings.windowState = QByteArray::fromBase64(all.value(key("window")).toString().toLatin1());
    settings.isStatisticsOverShown =
        all.value(key("statisticsOver")).toString() == QLatin1String("shown");
    settings.reconnects = all.value(key("reconnect")).toBool();
    const QJsonObject values = all.value(key("limits")).toObject();
    settings.high = number(values, "high", -farthest, farthest, settings.high);
    settings.low = number(values, "low", -farthest, farthest, settings.low);
    Limits &limits = settings.limits;
    if (values.value(key("watchHigh")).toBool())
        limits.high = settings.high;
    if (values.value(key("watchLow")).toBool())
        limits.low = settings.low;
    limits.hysteresis = number(values, "hysteresis", 0.0, 20.0, limits.hysteresis);
    limits.inARow = int(number(values, "inARow", 1.0, 1000.0, limits.inARow));
    limits.latched = values.value(key("latched")).toBool();
    return settings;
}

WatchSettings WatchSettings::load(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? parse(file.readAll()) : WatchSettings();
}

void WatchSettings::save(const QString &path) const
{
    const QByteArray text = toText();
    QFile before(path);
    const QByteArray former =
        before.open(QIODevice::ReadOnly) ? before.readAll() : WatchSettings().toText();
    before.close();
    if (text == former)
        return;
    const FileOutcome outcome = replaceFile(path, text);
    if (outcome.kind != FileOutcome::Kind::Written)
        qWarning().noquote() << "Settings not written to" << path << ":" << outcome.reason;
}
