#include "scenarios.h"

#include "randomscenario.h"
#include "testfiles.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr const char *first = "times=1";
constexpr const char *second = "after=1,times=1";
constexpr const char *third = "after=2,times=1";

struct Place
{
    const char *name;
    const char *group;
    const char *command; ///< the one that is befallen
    const char *when;    ///< which of these
    QVector<Deed> deeds;
};

QVector<Place> startUpPlaces()
{
    QVector<Place> places;
    for (const char *query : {"*IDN?", "FREQ?", "AVER:COUN?", "REL?", "OFFS?", "UNIT:POW?"})
        places.append({query,
                       "start-up queries",
                       query,
                       first,
                       {Deed::Open, Deed::Poll, Deed::Record, Deed::Poll}});
    return places;
}

/// The settings, and the queries that read them back.
QVector<Place> settingPlaces()
{
    struct Setting
    {
        const char *command;
        const char *query;
        const char *readBack;
        Deed deed;
    };
    constexpr std::array<Setting, 5> settings{{
        {"FREQ", "FREQ?", "FREQ? behind FREQ", Deed::SetFrequency},
        {"OFFS", "OFFS?", "OFFS? behind OFFS", Deed::SetOffset},
        {"AVER:COUN", "AVER:COUN?", "AVER:COUN? behind AVER:COUN", Deed::SetAverageCount},
        {"REL", "REL?", "REL? behind REL", Deed::RelativeOn},
        {"UNIT:POW", "UNIT:POW?", "UNIT:POW? behind UNIT:POW", Deed::ShowWatts},
    }};
    QVector<Place> places;
    for (const Setting &setting : settings) {
        const QVector<Deed> deeds{Deed::Open, Deed::Poll, setting.deed, Deed::Record, Deed::Poll};
        places.append({setting.command, "settings", setting.command, first, deeds});
        places.append({setting.readBack, "settings read back", setting.query, second, deeds});
    }
    return places;
}

QVector<Place> taskPlaces()
{
    return {{"CAL:ZERO",
             "zeroing",
             "CAL:ZERO",
             first,
             {Deed::Open, Deed::Poll, Deed::Zero, Deed::Poll}},
            {"CAL",
             "calibration",
             "CAL",
             first,
             {Deed::Open, Deed::Poll, Deed::Calibrate, Deed::Poll}}};
}

QVector<Place> pollPlaces()
{
    const QVector<Deed> polls{Deed::Open,   Deed::Poll, Deed::Poll, Deed::Poll,
                              Deed::Record, Deed::Poll, Deed::Poll};
    return {{"GET?, first", "polls", "GET?", first, polls},
            {"GET?, third", "polls", "GET?", third, polls}};
}

/// Every other reading, so that what one leaves behind meets the next.
Place badLine()
{
    constexpr int polls = 14;
    return {"GET?, every other", "polls", "GET?", "every=2,times=6",
            QVector<Deed>{Deed::Open} + QVector<Deed>(polls, Deed::Poll)};
}

/// The fault is in the air when the user closes, and opens again before the close is done.
Place closingPlace()
{
    return {"closing",
            "closing",
            "GET?",
            first,
            {Deed::Open, Deed::ReadAndClose, Deed::Open, Deed::Poll}};
}

QVector<Place> placesOf(const QString &kind)
{
    if (kind == QLatin1String("refuse") || kind == QLatin1String("numeric-frequency")) {
        QVector<Place> places;
        for (const Place &place : settingPlaces()) {
            const bool isSetting = !QByteArray(place.command).endsWith('?');
            const bool isFrequency = place.command == QByteArray("FREQ");
            if (isSetting && (isFrequency || kind == QLatin1String("refuse")))
                places.append(place);
        }
        return places;
    }
    if (kind.startsWith(QLatin1String("cal-")))
        return taskPlaces();
    QVector<Place> places = startUpPlaces() + settingPlaces() + pollPlaces() + taskPlaces() +
                            QVector<Place>{closingPlace()};
    if (!kind.startsWith(QLatin1String("drop")))
        places.append(badLine()); // a link that is dropped has no next reading
    return places;
}

bool isTask(const Place &place)
{
    return QByteArray(place.command).startsWith("CAL");
}

/// What must have come of \a kind at \a place.
void expect(Scenario &scenario, const QString &kind, const Place &place)
{
    const bool drops = kind.startsWith(QLatin1String("drop"));
    const QSet<QString> resultless{text("no-reply"), text("no-newline"), text("cal-silent")};
    const bool ends = drops || (isTask(place) && resultless.contains(kind));
    if (place.name == QByteArray("closing")) {
        // A wished-for close is no error, whatever happens meanwhile.
        scenario.outcome = Ending::Open;
        scenario.errorBoxes = 0;
    } else if (isTask(place) && kind == QLatin1String("garbage")) {
        scenario.outcome = Ending::Either; // it depends on where the stray bytes fall
    } else {
        scenario.outcome = ends ? Ending::Closed : Ending::Open;
        scenario.errorBoxes = ends ? 1 : 0;
    }
}

QString modeName(LinkMode mode)
{
    return text(mode == serialLink ? "serial/" : "tcp/");
}

Scenario makeScenario(LinkMode mode, const Place &place, const QString &kind)
{
    Scenario scenario;
    scenario.name = modeName(mode) + text(place.name) + QLatin1Char('/') + kind;
    scenario.group = text(place.group);
    scenario.mode = mode;
    scenario.faults = QStringList(
        QStringLiteral("%1,only=%2,%3").arg(kind, text(place.command), text(place.when)));
    scenario.deeds = place.deeds;
    expect(scenario, kind, place);
    return scenario;
}

/// What befalls a link without any fault in the instrument's replies.
QVector<Scenario> fromOutside(LinkMode mode)
{
    struct Outside
    {
        const char *name;
        QVector<Deed> deeds;
        Ending outcome;
        int errorBoxes;
    };
    QVector<Outside> list{
        {"nobody there", {Deed::OpenNowhere}, Ending::Closed, 1},
        {"nobody there, then somebody",
         {Deed::OpenNowhere, Deed::Open, Deed::Poll},
         Ending::Open,
         1},
        {"nothing goes wrong",
         {Deed::Open, Deed::Poll, Deed::Zero, Deed::SetFrequency, Deed::Record, Deed::Close,
          Deed::Open, Deed::Poll},
         Ending::Open,
         0},
        {"off while polled", {Deed::Open, Deed::Poll, Deed::StopInstrument}, Ending::Closed, 1},
        {"off before a setting",
         {Deed::Open, Deed::Poll, Deed::StopInstrument, Deed::SetOffset},
         Ending::Closed,
         1},
        {"off before zeroing",
         {Deed::Open, Deed::Poll, Deed::StopInstrument, Deed::Zero},
         Ending::Closed,
         1},
        {"off before the close",
         {Deed::Open, Deed::Poll, Deed::StopInstrument, Deed::Close},
         Ending::Closed,
         0}};
    if (mode == lanLink)
        list.append({"busy with another client",
                     {Deed::OccupyInstrument, Deed::Open, Deed::Poll, Deed::SetOffset,
                      Deed::LeaveInstrument, Deed::Poll, Deed::Poll},
                     Ending::Open,
                     0});

    QVector<Scenario> scenarios;
    for (const Outside &outside : qAsConst(list))
        scenarios.append({modeName(mode) + text("outside/") + text(outside.name),
                          text("from outside"),
                          mode,
                          {},
                          outside.deeds,
                          outside.outcome,
                          outside.errorBoxes,
                          false});
    return scenarios;
}

const QStringList &kinds()
{
    static const QStringList list{
        text("no-reply"),          text("late:60"),     text("late:900"),    text("pieces"),
        text("two-lines"),         text("no-newline"),  text("garbage"),     text("refuse"),
        text("numeric-frequency"), text("drop-before"), text("drop-inside"), text("drop-after"),
        text("cal-silent"),        text("cal-fail")};
    return list;
}

} // namespace

namespace Scenarios {

QVector<Scenario> systematic()
{
    QVector<Scenario> scenarios;
    for (const LinkMode mode : {serialLink, lanLink}) {
        for (const QString &kind : kinds()) {
            for (const Place &place : placesOf(kind))
                scenarios.append(makeScenario(mode, place, kind));
        }
        scenarios += fromOutside(mode);
    }
    return scenarios;
}

QVector<Scenario> random(int count, quint32 seed)
{
    constexpr quint32 perSeed = 100000;
    QVector<Scenario> scenarios;
    for (int i = 0; i < count; ++i) {
        const LinkMode mode = i % 2 == 0 ? serialLink : lanLink;
        scenarios.append(randomScenario(mode, seed * perSeed + quint32(i)));
    }
    return scenarios;
}

QVector<Scenario> slice()
{
    QVector<Scenario> scenarios;
    int turn = 0;
    for (const QString &kind : kinds()) {
        // Steps of a size that meets every group of places and, in turn, both modes.
        constexpr int stride = 7;
        const QVector<Place> places = placesOf(kind);
        const LinkMode mode = turn % 2 == 0 ? lanLink : serialLink;
        scenarios.append(makeScenario(mode, places.at(turn * stride % places.size()), kind));
        ++turn;
    }
    // What has gone wrong once.
    for (const char *name :
         {"tcp/OFFS/drop-before", "serial/OFFS/refuse", "tcp/REL/drop-after",
          "serial/REL? behind REL/drop-inside", "serial/closing/drop-before",
          "tcp/outside/busy with another client", "tcp/random/100023", "serial/random/100004"})
        scenarios.append(named(text(name)));
    return scenarios;
}

Scenario named(const QString &name)
{
    const QStringList parts = name.split(QLatin1Char('/'));
    if (parts.value(1) == QLatin1String("random"))
        return randomScenario(parts.value(0) == QLatin1String("tcp") ? lanLink : serialLink,
                              parts.value(2).toUInt());
    const QVector<Scenario> all = systematic();
    const auto found = std::find_if(all.begin(), all.end(), [&name](const Scenario &scenario) {
        return scenario.name == name;
    });
    return found == all.end() ? Scenario() : *found;
}

} // namespace Scenarios
