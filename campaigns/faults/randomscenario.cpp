#include "randomscenario.h"

#include <QRandomGenerator>

#include <array>

namespace {

template<std::size_t size>
auto pick(const std::array<const char *, size> &choices, QRandomGenerator &random)
{
    return QString::fromLatin1(choices.at(random.bounded(quint32(size))));
}

/// A kind of fault for any command. Stray bytes and pieces do not meet: a NUL takes the rest of its
/// piece away, so that a number could lose digits from its middle, which nobody could tell from a
/// true one as the replies carry no checksum.
QString randomKind(QRandomGenerator &random, bool inPieces)
{
    constexpr std::array<const char *, 12> kinds{
        "no-reply",    "late:60",           "late:900",    "two-lines",  "no-newline", "refuse",
        "drop-before", "numeric-frequency", "drop-inside", "drop-after", "cal-fail",   nullptr};
    const quint32 choice = random.bounded(quint32(kinds.size()));
    if (kinds.at(choice))
        return QString::fromLatin1(kinds.at(choice));
    return inPieces ? QStringLiteral("pieces") : QStringLiteral("garbage");
}

QString randomFault(QRandomGenerator &random, bool inPieces)
{
    constexpr std::array<const char *, 14> commands{
        "*IDN?", "FREQ?", "OFFS?",    "UNIT:POW?", "REL?",      "AVER:COUN?", "GET?",
        "FREQ",  "OFFS",  "UNIT:POW", "REL",       "AVER:COUN", "CAL",        "CAL:ZERO"};
    const QString kind = randomKind(random, inPieces);
    QString fault = kind;
    // Half of the faults befall any command, and polls are the most frequent of these. The kinds
    // that concern a few commands alone would hardly ever meet another one.
    const bool isGeneral = !kind.startsWith(QLatin1String("cal-")) &&
                           kind != QLatin1String("refuse") &&
                           kind != QLatin1String("numeric-frequency");
    if (isGeneral && random.bounded(2) == 0)
        fault += QStringLiteral(",only=") + pick(commands, random);
    if (random.bounded(2) == 0)
        fault += QStringLiteral(",after=%1").arg(random.bounded(12));
    if (random.bounded(3) == 0)
        fault += QStringLiteral(",every=%1").arg(1 + random.bounded(3));
    if (random.bounded(4) == 0)
        fault += QStringLiteral(",p=0.5");
    return fault + QStringLiteral(",times=%1").arg(1 + random.bounded(3));
}

Deed randomDeed(QRandomGenerator &random)
{
    constexpr std::array<Deed, 20> deeds{Deed::Open,         Deed::Open,
                                         Deed::Open,         Deed::Poll,
                                         Deed::Poll,         Deed::Poll,
                                         Deed::Poll,         Deed::Poll,
                                         Deed::SetFrequency, Deed::SetOffset,
                                         Deed::RelativeOn,   Deed::RelativeOff,
                                         Deed::ShowWatts,    Deed::SetAverageCount,
                                         Deed::Zero,         Deed::Calibrate,
                                         Deed::Record,       Deed::ShowDbm,
                                         Deed::Close,        Deed::ReadAndClose};
    return deeds.at(random.bounded(quint32(deeds.size())));
}

} // namespace

Scenario randomScenario(LinkMode mode, quint32 seed)
{
    constexpr int mostFaults = 3;
    constexpr int deeds = 12;
    QRandomGenerator random(seed);
    Scenario scenario;
    scenario.name = QStringLiteral("%1/random/%2")
                        .arg(mode == serialLink ? QStringLiteral("serial") : QStringLiteral("tcp"))
                        .arg(seed);
    scenario.group = QStringLiteral("random combinations");
    scenario.mode = mode;
    scenario.reachesFault = false;
    const bool inPieces = random.bounded(2) == 0;
    const int faults = 1 + random.bounded(mostFaults);
    for (int i = 0; i < faults; ++i)
        scenario.faults.append(randomFault(random, inPieces));
    scenario.deeds.append(Deed::Open);
    for (int i = 0; i < deeds; ++i)
        scenario.deeds.append(randomDeed(random));
    return scenario;
}
