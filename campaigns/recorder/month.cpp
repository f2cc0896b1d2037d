#include "month.h"

#include "recorder/isotime.h"
#include "recorder/outbox.h"
#include "recorder/recording.h"

#include <QDateTime>
#include <QHash>
#include <QRandomGenerator>

#include <algorithm>

namespace {

constexpr qint64 second = 1000000000;
constexpr qint64 every = 10 * second;

/// What may go on for a while, one at a time.
enum class Trouble { None, LinkLost, Silence, Garbled, Stopped, DiskFull };

class Month
{
public:
    Month(const QString &firstDay, int days, quint32 seed)
        : m_random(seed)
        , m_wallStart(
              QDateTime(QDate::fromString(firstDay, Qt::ISODate), QTime(0, 0)).toMSecsSinceEpoch())
        , m_end(qint64(days) * 86400 * second)
        , m_box([this](const Outbox::Line &lines) { return append(lines); })
        , m_recording(
              {every, {}}, at(0), [this](const Row &row) { take(row); },
              [](const char *, qint64, const JsonLine &) {})
    {}

    Verdict run()
    {
        m_recording.takeLink(MeterState::Open, {}, at(0));
        while (m_now < m_end) {
            changeTrouble();
            step();
        }
        m_isDiskFull = false;
        m_recording.finish(at(m_end), m_end, {}, true);
        m_box.flush();
        judge();
        return m_verdict;
    }

private:
    Moment at(qint64 steady) const { return {steady, m_wallStart + m_ahead + steady / 1000000}; }
    double chance() { return m_random.generateDouble(); }

    /// Every trouble lasts from seconds to hours, with as much quiet before the next.
    void changeTrouble()
    {
        if (m_now < m_until)
            return;
        const bool wasTrouble = m_trouble != Trouble::None;
        m_trouble = wasTrouble ? Trouble::None : Trouble(1 + m_random.bounded(5));
        m_until = m_now + qint64((5 + 20000 * chance() * chance() * chance()) * double(second));
        m_isDiskFull = m_trouble == Trouble::DiskFull;
        m_recording.takeLink(m_trouble == Trouble::LinkLost ? MeterState::Lost : MeterState::Open,
                             {}, at(m_now));
        if (!wasTrouble && chance() < 0.05) { // somebody sets the clock
            m_ahead += qint64((chance() - 0.5) * 4 * 3600000);
            m_steps << m_now / every;
        }
    }

    void step()
    {
        if (m_trouble == Trouble::Stopped) {
            m_now = std::min(m_until, m_end - 1);
            m_until = m_now;
        } else {
            m_now += qint64((0.4 + 0.3 * chance()) * double(second));
        }
        if (m_now >= m_end)
            return;
        m_recording.setAwaitsReply(m_trouble == Trouble::Silence);
        if (m_trouble == Trouble::LinkLost || m_trouble == Trouble::Silence) {
            m_recording.advance(at(m_now), m_now);
        } else {
            const bool isGarbled = m_trouble == Trouble::Garbled && chance() < 0.7;
            m_recording.take(MeterReading{isGarbled ? Reading::missing() : Reading::of(-20, {}),
                                          isGarbled ? Outcome::Garbled : Outcome::Ok, at(m_now)});
            m_valid[m_now / every] += !isGarbled;
        }
        m_box.flush();
    }

    void take(const Row &row)
    {
        m_box.add({localDate(row.time).toString(Qt::ISODate), RowText::header(RowFormat::Csv),
                   RowText::line(RowFormat::Csv, row, {})});
    }

    std::optional<QString> append(const Outbox::Line &lines)
    {
        if (m_isDiskFull)
            return QStringLiteral("full");
        m_disk << lines;
        return std::nullopt;
    }

    void judge()
    {
        QStringList rows;
        for (const Outbox::Line &piece : m_disk) {
            const QStringList lines =
                QString::fromUtf8(piece.text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            for (const QString &row : lines)
                m_verdict.expect(row.startsWith(piece.file),
                                 QStringLiteral("in the file of %1: %2").arg(piece.file, row));
            rows += lines;
        }
        judgeRows(rows, m_verdict);
        m_verdict.expect(m_verdict.rows == m_end / every,
                         QStringLiteral("%1 rows, not %2").arg(m_verdict.rows).arg(m_end / every));
        for (int i = 0; i < rows.size(); ++i) {
            const int valid = rows[i].section(QLatin1Char(','), 2, 2).toInt();
            m_verdict.expect(valid == m_valid.value(i),
                             QStringLiteral("%1 came: %2").arg(m_valid.value(i)).arg(rows[i]));
        }
        for (const qint64 index : m_steps)
            m_verdict.expect(hasClock(rows, int(index)),
                             QStringLiteral("a step is not told: ") + rows.value(int(index)));
        m_verdict.expect(m_box.takeLost() == 0, QStringLiteral("rows were given up"));
    }

    static bool hasClock(const QStringList &rows, int index)
    {
        // It is noticed at the next look, which may be in a later interval.
        const QStringList near = rows.mid(index, 3);
        return std::any_of(near.begin(), near.end(), [](const QString &row) {
            return row.endsWith(QLatin1String(",clock"));
        });
    }

    QRandomGenerator m_random;
    const qint64 m_wallStart;
    const qint64 m_end;
    qint64 m_now = 0;   // by the steady clock
    qint64 m_ahead = 0; // ms by which the wall clock was set
    qint64 m_until = 0;
    Trouble m_trouble = Trouble::None;
    bool m_isDiskFull = false;
    QVector<Outbox::Line> m_disk;
    QVector<qint64> m_steps;    // intervals in which the clock was set
    QHash<qint64, int> m_valid; // readings of each interval
    Outbox m_box;
    Recording m_recording;
    Verdict m_verdict;
};

} // namespace

Verdict runMonth(const QString &firstDay, int days, quint32 seed)
{
    return Month(firstDay, days, seed).run();
}
