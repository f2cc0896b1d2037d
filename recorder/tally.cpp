#include "recorder/tally.h"

#include <utility>

namespace {

QString reasonText(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Timeout:
        return QStringLiteral("timeout");
    case Outcome::Garbled:
        return QStringLiteral("garbled");
    case Outcome::Refused:
        return QStringLiteral("refused");
    case Outcome::Link:
        return QStringLiteral("link");
    case Outcome::Ok:
        break;
    }
    return QStringLiteral("ok");
}

} // namespace

void Tally::add(const MeterReading &reading)
{
    if (reading.reading.isValid()) {
        // Levels in dB and in dBm have no mean between them; the latest kind counts.
        if (std::exchange(m_isRelative, reading.isRelative) != reading.isRelative)
            m_statistics = {};
        m_statistics.add(reading.reading.level);
        m_last = reading.reading.level;
        return;
    }
    ++m_invalid;
    if (!m_spoiled)
        m_spoiled = reading.outcome == Outcome::Ok ? Outcome::Garbled : reading.outcome;
}

void Tally::fill(Row &row, const QString &idle) const
{
    row.valid = int(m_statistics.count());
    row.invalid = m_invalid;
    row.mean = m_statistics.mean();
    row.minimum = m_statistics.minimum();
    row.maximum = m_statistics.maximum();
    row.sigma = m_statistics.sigma();
    row.last = m_last;
    if (m_isRelative)
        row.isRelative = true;
    if (m_hasStep)
        row.reason = QStringLiteral("clock");
    else
        row.reason = isEmpty() ? idle : reasonText(m_spoiled.value_or(Outcome::Ok));
}
