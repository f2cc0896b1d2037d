#include "commandinterpreter.h"

#include "instrument.h"
#include "powertext.h"

#include <QRegularExpression>

namespace sim {

namespace {

const char *const confirmed = "RETURN:OK";
const char *const undefinedHeader = "RETURN:ERR -113,Undefined header";
const char *const missingParameter = "RETURN:ERR -109,Missing parameter";
const char *const unexpectedParameter = "RETURN:ERR -108,Parameter not allowed";
const char *const wrongType = "RETURN:ERR -104,Data type error";
const char *const settingsConflict = "RETURN:ERR -221,Settings conflict";
const char *const outOfRange = "RETURN:ERR -222,Data out of range";
const char *const illegalValue = "RETURN:ERR -224,Illegal parameter value";

const QList<QByteArray> &queries()
{
    static const QList<QByteArray> list{"*IDN?", "FREQ?", "OFFS?",     "UNIT:POW?",
                                        "REL?",  "GET?",  "AVER:COUN?"};
    return list;
}

const QList<QByteArray> &settings()
{
    static const QList<QByteArray> list{"FREQ", "OFFS", "UNIT:POW", "REL", "AVER:COUN"};
    return list;
}

const QList<QByteArray> &operations()
{
    static const QList<QByteArray> list{"CAL", "CAL:ZERO"};
    return list;
}

QByteArray parameter(const QByteArray &line)
{
    const QByteArray text = line.simplified();
    const int blank = text.indexOf(' ');
    return blank < 0 ? QByteArray() : text.mid(blank + 1);
}

QByteArray confirmation(bool taken)
{
    return taken ? confirmed : outOfRange;
}

} // namespace

CommandInterpreter::CommandInterpreter(Instrument &instrument)
    : m_instrument(instrument)
{}

Answer CommandInterpreter::execute(const QByteArray &line, const Quirks &quirks)
{
    const QByteArray name = header(line);
    const QByteArray value = parameter(line);
    if (name.isEmpty())
        return {};
    if (settings().contains(name)) {
        if (quirks.refuseSettings)
            return {settingsConflict};
        if (quirks.numericFrequencyOnly && isTextFrequency(line))
            return {wrongType};
        return {value.isEmpty() ? missingParameter : set(name, value)};
    }
    const bool isOperation = operations().contains(name);
    if (!isOperation && !queries().contains(name))
        return {undefinedHeader};
    if (!value.isEmpty())
        return {unexpectedParameter};
    if (isOperation)
        return {{}, name == "CAL" ? Operation::Calibration : Operation::Zeroing};
    return {query(name)};
}

QByteArray CommandInterpreter::result(Operation operation, bool success)
{
    const QByteArray name = operation == Operation::Zeroing ? "CAL:ZERO" : "CAL";
    return "RETURN:" + name + (success ? ":OK" : ":FAIL");
}

QByteArray CommandInterpreter::header(const QByteArray &line)
{
    return line.simplified().split(' ').first().toUpper();
}

bool CommandInterpreter::isSetting(const QByteArray &line)
{
    return settings().contains(header(line));
}

bool CommandInterpreter::isTextFrequency(const QByteArray &line)
{
    return header(line) == "FREQ" && parameter(line).toUpper().endsWith("HZ");
}

QList<QByteArray> CommandInterpreter::headers()
{
    return queries() + settings() + operations();
}

QByteArray CommandInterpreter::query(const QByteArray &name) const
{
    if (name == "*IDN?")
        return "RETURN:IDN " + m_instrument.identity();
    QByteArray value;
    if (name == "FREQ?")
        value = m_instrument.frequencyText();
    else if (name == "OFFS?")
        value = twoDecimals(m_instrument.offset()) + "dB";
    else if (name == "UNIT:POW?")
        value = m_instrument.powerUnit() == PowerUnit::DBm ? "dBm" : "W";
    else if (name == "REL?")
        value = m_instrument.isRelative() ? "ON" : "OFF";
    else if (name == "AVER:COUN?")
        value = QByteArray::number(m_instrument.averageCount());
    else
        value = m_instrument.measure();
    return "RETURN:" + name.chopped(1) + ' ' + value;
}

QByteArray CommandInterpreter::set(const QByteArray &name, const QByteArray &value)
{
    if (name == "FREQ")
        return setFrequency(value);
    if (name == "OFFS")
        return setOffset(value);
    if (name == "AVER:COUN")
        return setAverageCount(value);
    if (name == "UNIT:POW")
        return setPowerUnit(value);
    return setRelative(value);
}

QByteArray CommandInterpreter::setFrequency(const QByteArray &value)
{
    static const QRegularExpression form(QStringLiteral("^([-+0-9.eE]+)\\s*([KMG]HZ)?$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(value));
    bool isNumber = false;
    const double number = match.captured(1).toDouble(&isNumber);
    if (!isNumber)
        return wrongType;
    const QString unit = match.captured(2).toUpper();
    if (unit == QLatin1String("KHZ"))
        return confirmation(m_instrument.setFrequency(number, FrequencyUnit::KHz));
    if (unit == QLatin1String("MHZ"))
        return confirmation(m_instrument.setFrequency(number, FrequencyUnit::MHz));
    // A number alone is in GHz.
    return confirmation(m_instrument.setFrequency(number, FrequencyUnit::GHz));
}

QByteArray CommandInterpreter::setOffset(QByteArray value)
{
    if (value.toUpper().endsWith("DB"))
        value = value.chopped(2).trimmed();
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? confirmation(m_instrument.setOffset(number)) : wrongType;
}

QByteArray CommandInterpreter::setAverageCount(const QByteArray &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? confirmation(m_instrument.setAverageCount(number)) : wrongType;
}

QByteArray CommandInterpreter::setPowerUnit(const QByteArray &value)
{
    const QByteArray unit = value.toUpper();
    if (unit != "DBM" && unit != "W")
        return illegalValue;
    m_instrument.setPowerUnit(unit == "W" ? PowerUnit::Watt : PowerUnit::DBm);
    return confirmed;
}

QByteArray CommandInterpreter::setRelative(const QByteArray &value)
{
    const QByteArray state = value.toUpper();
    if (state != "ON" && state != "OFF")
        return illegalValue;
    m_instrument.setRelative(state == "ON");
    return confirmed;
}

} // namespace sim
