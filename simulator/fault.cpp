#include "fault.h"

#include "commandinterpreter.h"
#include "rotator.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace sim {

namespace {

struct KindInfo
{
    FaultKind kind;
    const char *name;
    const char *parameter; // as the help names it; null: none
    int fallback;          // the parameter when it is left out; -1: it must not be
    const char *effect;
};

constexpr int largestAmount = 3600000;

constexpr std::array<KindInfo, 13> kinds{{
    {FaultKind::NoReply, "no-reply", nullptr, 0, "the reply is swallowed"},
    {FaultKind::Late, "late", ":MS", -1, "the reply and all behind it wait MS milliseconds"},
    {FaultKind::Pieces, "pieces", "[:MS]", 20,
     "the reply comes in pieces MS milliseconds apart (20), cut inside a micro sign too"},
    {FaultKind::TwoLines, "two-lines", nullptr, 0, "the reply comes twice in one piece"},
    {FaultKind::NoNewline, "no-newline", nullptr, 0, "the reply has no newline"},
    {FaultKind::Garbage, "garbage", "[:BYTES]", 8,
     "BYTES stray bytes (8), a NUL first, are strewn into the reply"},
    {FaultKind::Refuse, "refuse", nullptr, 0, "a setting is refused and stays as it was"},
    {FaultKind::NumericFrequency, "numeric-frequency", nullptr, 0,
     "a frequency with a unit is refused, only a number in GHz is taken"},
    {FaultKind::DropBefore, "drop-before", nullptr, 0,
     "the connection is dropped before the reply"},
    {FaultKind::DropInside, "drop-inside", nullptr, 0, "the connection is dropped in mid-reply"},
    {FaultKind::DropAfter, "drop-after", nullptr, 0, "the connection is dropped after the reply"},
    {FaultKind::CalSilent, "cal-silent", nullptr, 0, "zeroing and calibration never report an end"},
    {FaultKind::CalFail, "cal-fail", nullptr, 0, "zeroing and calibration report a failure"},
}};

const KindInfo *kindNamed(const QString &name)
{
    const auto *const found =
        std::find_if(kinds.begin(), kinds.end(),
                     [&name](const KindInfo &info) { return name == QLatin1String(info.name); });
    return found == kinds.end() ? nullptr : found;
}

bool readNumber(const QString &text, int minimum, int *number)
{
    bool isNumber = false;
    *number = text.toInt(&isNumber);
    return isNumber && *number >= minimum && *number <= largestAmount;
}

bool readKind(const QString &text, Fault *fault)
{
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const KindInfo *const info = kindNamed(name);
    if (!info)
        return false;
    fault->kind = info->kind;
    fault->amount = info->fallback;
    if (name.size() == text.size())
        return info->fallback >= 0;
    return info->parameter && readNumber(text.mid(name.size() + 1), 1, &fault->amount);
}

/// Whether the turntable can be befallen by \a kind: everything but what concerns settings of the
/// instrument, zeroing and calibration.
bool isOfRotator(FaultKind kind)
{
    return kind != FaultKind::NumericFrequency && kind != FaultKind::CalSilent &&
           kind != FaultKind::CalFail;
}

bool readOnly(const QString &value, Fault *fault)
{
    if (fault->ofRotator) {
        fault->only = value.toLatin1();
        return Rotator::commands().contains(fault->only);
    }
    fault->only = value.toUpper().toLatin1();
    return CommandInterpreter::headers().contains(fault->only);
}

bool readQualifier(const QString &text, Fault *fault)
{
    const QString name = text.section(QLatin1Char('='), 0, 0);
    const QString value = text.mid(name.size() + 1);
    if (name == QLatin1String("only"))
        return readOnly(value, fault);
    if (name == QLatin1String("after"))
        return readNumber(value, 0, &fault->after);
    if (name == QLatin1String("every"))
        return readNumber(value, 1, &fault->every);
    if (name == QLatin1String("times"))
        return readNumber(value, 1, &fault->times);
    if (name == QLatin1String("p")) {
        bool isNumber = false;
        fault->probability = value.toDouble(&isNumber);
        return isNumber && fault->probability >= 0.0 && fault->probability <= 1.0;
    }
    return false;
}

std::optional<Fault> parse(Fault fault, const QString &text, QString *error)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (!readKind(parts.first(), &fault) || (fault.ofRotator && !isOfRotator(fault.kind))) {
        *error = QCoreApplication::translate("sim::Fault", "Unknown fault or bad parameter: %1")
                     .arg(parts.first());
        return std::nullopt;
    }
    for (const QString &part : parts.mid(1)) {
        if (!readQualifier(part, &fault)) {
            *error = QCoreApplication::translate("sim::Fault", "Bad qualifier in \"%1\": %2")
                         .arg(text, part);
            return std::nullopt;
        }
    }
    return fault;
}

} // namespace

bool Fault::concerns(const QByteArray &line) const
{
    const QByteArray header = ofRotator ? Rotator::command(line) : CommandInterpreter::header(line);
    if (header.isEmpty() || (!only.isEmpty() && header != only))
        return false;
    if (ofRotator)
        return true;
    switch (kind) {
    case FaultKind::Refuse:
        return CommandInterpreter::isSetting(line);
    case FaultKind::NumericFrequency:
        return CommandInterpreter::isTextFrequency(line);
    case FaultKind::CalSilent:
    case FaultKind::CalFail:
        return header == "CAL" || header == "CAL:ZERO";
    default:
        return true;
    }
}

std::optional<Fault> parseFault(const QString &text, QString *error)
{
    return parse({}, text, error);
}

std::optional<Fault> parseRotatorFault(const QString &text, QString *error)
{
    Fault fault;
    fault.ofRotator = true;
    return parse(fault, text, error);
}

QByteArray faultName(FaultKind kind)
{
    const auto *const found = std::find_if(
        kinds.begin(), kinds.end(), [kind](const KindInfo &info) { return info.kind == kind; });
    return found->name;
}

QString faultHelp()
{
    QString text = QStringLiteral("Faults (--fault may be given several times; faults add up):\n");
    for (const KindInfo &info : kinds) {
        const QString form =
            QLatin1String(info.name) + QLatin1String(info.parameter ? info.parameter : "");
        text += QStringLiteral("  %1 %2\n").arg(form, -18).arg(QLatin1String(info.effect));
    }
    text += QStringLiteral(
        "Qualifiers, behind a comma each; a fault counts the commands it concerns:\n"
        "  only=COMMAND       this command alone: \"FREQ\" is the setting, \"FREQ?\" the query\n"
        "  after=N            the first N pass unharmed\n"
        "  every=N            then each Nth is befallen\n"
        "  times=N            N times at most\n"
        "  p=P                with this probability, drawn from the seed\n"
        "--rotator-fault takes those that do not concern settings, zeroing and calibration, with "
        "the\n"
        "turntable's commands (p, P, S, K, _, \\dump_state); refuse answers with RPRT -5.\n"
        "Example: --fault late:800,every=3 --fault 'drop-inside,only=GET?,after=20,times=1'\n");
    return text;
}

} // namespace sim
