#include "Logic/replyparser.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace {

QString withoutNewlines(QString line)
{
    return line.remove(QLatin1Char('\n'));
}

/// Takes \a prefix off the start of \a text; false, leaving the text alone, when it is not there.
bool takePrefix(QString &text, QLatin1String prefix)
{
    if (!text.startsWith(prefix))
        return false;
    text.remove(0, prefix.size());
    return true;
}

/// The text behind \a prefix, or the whole line when it does not start so.
QString valueText(const QString &line, QLatin1String prefix)
{
    QString text = withoutNewlines(line);
    takePrefix(text, prefix);
    return text;
}

/// The finite number that \a text is.
std::optional<double> number(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Whether \a value is what the instrument tells when it is asked for \a name.
bool isValueOf(const QByteArray &name, QString value)
{
    if (name == "FREQ") {
        for (const char *unit : {"GHz", "MHz", "KHz"}) {
            if (value.endsWith(QLatin1String(unit), Qt::CaseInsensitive)) {
                value.chop(3);
                break;
            }
        }
        return number(value).has_value();
    }
    if (name == "OFFS")
        return number(value.remove(QLatin1String("dB"))).has_value();
    if (name == "GET") {
        const QStringList fields = value.split(QLatin1Char(','));
        return fields.size() == 2 && number(QString(fields.first()).remove(QLatin1String("dBm")));
    }
    if (name == "AVER:COUN") {
        bool isNumber = false;
        value.toInt(&isNumber);
        return isNumber;
    }
    const auto isOneOf = [&value](const char *one, const char *other) {
        return value.compare(QLatin1String(one), Qt::CaseInsensitive) == 0 ||
               value.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
    };
    if (name == "UNIT:POW")
        return isOneOf("dBm", "W");
    if (name == "REL")
        return isOneOf("ON", "OFF");
    return !value.trimmed().isEmpty();
}

bool isRefusal(const QString &line)
{
    return line.contains(QLatin1String("ERR")) || line.contains(QLatin1String("FAIL"));
}

} // namespace

namespace ReplyParser {

bool isConfirmed(const QString &line)
{
    return line.contains(QLatin1String("OK"));
}

QString identity(const QString &line)
{
    return withoutNewlines(line).remove(QLatin1String("RETURN:IDN "));
}

Frequency frequency(const QString &line)
{
    QString text = withoutNewlines(line);
    QString unit;
    if (takePrefix(text, QLatin1String("RETURN:FREQ ")) && text.contains(QLatin1String("Hz"))) {
        unit = text.right(3);
        text.remove(unit);
    }
    return {text.toDouble(), unit};
}

double offset(const QString &line)
{
    QString text = withoutNewlines(line);
    if (takePrefix(text, QLatin1String("RETURN:OFFS ")))
        text.remove(QLatin1String("dB"));
    return text.toDouble();
}

QString powerUnit(const QString &line)
{
    return valueText(line, QLatin1String("RETURN:UNIT:POW "));
}

QString measureState(const QString &line)
{
    return valueText(line, QLatin1String("RETURN:REL "));
}

int averageCount(const QString &line)
{
    return valueText(line, QLatin1String("RETURN:AVER:COUN ")).toInt();
}

Power power(const QString &line)
{
    QString text = withoutNewlines(line);
    // Behind the rest of a reply that lost its end stands another one: the two have no number
    // between them.
    if (!takePrefix(text, QLatin1String("RETURN:GET ")) || text.contains(QLatin1String("RETURN:")))
        return {};
    QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() != 2)
        return {};
    const std::optional<double> level = number(fields.first().remove(QLatin1String("dBm")));
    return {level.value_or(Power().dbm), fields.last()};
}

std::optional<double> relativeLevel(const QString &text)
{
    return text.endsWith(QLatin1String("dB")) ? number(text.chopped(2)) : std::nullopt;
}

TaskResult taskResult(const QString &line)
{
    // In this order: the first that is found decides about a line that holds several.
    static const std::array<std::pair<QLatin1String, TaskResult>, 4> reports{{
        {QLatin1String("RETURN:CAL:OK"), TaskResult::CalibrationSucceeded},
        {QLatin1String("RETURN:CAL:FAIL"), TaskResult::CalibrationFailed},
        {QLatin1String("RETURN:CAL:ZERO:OK"), TaskResult::ZeroSucceeded},
        {QLatin1String("RETURN:CAL:ZERO:FAIL"), TaskResult::ZeroFailed},
    }};
    const auto found = std::find_if(reports.begin(), reports.end(), [&line](const auto &report) {
        return line.contains(report.first);
    });
    return found == reports.end() ? TaskResult::None : found->second;
}

Outcome outcome(const QByteArray &command, const QString &line)
{
    const QByteArray text = command.trimmed();
    if (text.endsWith('?')) {
        const QByteArray name = text.mid(text.startsWith('*') ? 1 : 0).chopped(1);
        QString value = line;
        if (takePrefix(value, QLatin1String("RETURN:" + name + ' ')) && isValueOf(name, value))
            return Outcome::Ok;
        return isRefusal(line) ? Outcome::Refused : Outcome::Garbled;
    }
    const TaskResult result = taskResult(line);
    const bool isOk = text == "CAL"        ? result == TaskResult::CalibrationSucceeded
                      : text == "CAL:ZERO" ? result == TaskResult::ZeroSucceeded
                                           : isConfirmed(line);
    if (isOk)
        return Outcome::Ok;
    return isRefusal(line) ? Outcome::Refused : Outcome::Garbled;
}

} // namespace ReplyParser
