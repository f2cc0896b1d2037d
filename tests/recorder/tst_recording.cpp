#include "recorder/recording.h"

#include "testmain.h"

namespace {

constexpr qint64 second = 1000000000;

/// Seconds as text with a decimal where they have one.
QString seconds(qint64 milliseconds)
{
    return QString::number(double(milliseconds) / 1000);
}

} // namespace

/// What becomes of readings, losses and clocks, in intervals of ten seconds that begin at 0 by both
/// clocks.
class TestRecording : public QObject
{
    Q_OBJECT

private:
    struct Bench
    {
        explicit Bench(const Limits &limits = {})
            : recording(
                  {10 * second, limits}, {0, 0},
                  [this](const Row &row) {
                      rows << QStringLiteral("%1-%2 %3/%4 %5")
                                  .arg(seconds(row.start), seconds(row.time))
                                  .arg(row.valid)
                                  .arg(row.invalid)
                                  .arg(row.reason);
                      last = row;
                  },
                  [this](const char *name, qint64 wall, const JsonLine &details) {
                      events << QLatin1String(name) + QLatin1Char('@') + seconds(wall);
                      lastDetails = details.line();
                  })
        {}
        Moment at(double time) const
        {
            return {qint64(time * double(second)), qint64((time + ahead) * 1000)};
        }
        /// A reading of \a level dBm; 100 stands for one that ended as \a outcome.
        void read(double time, double level, Outcome outcome = Outcome::Ok, bool isRelative = false)
        {
            recording.take(MeterReading{level == 100 ? Reading::missing() : Reading::of(level, {}),
                                        outcome, at(time), isRelative});
        }
        void advance(double time) { recording.advance(at(time), at(time).steady); }
        void link(double time, MeterState state)
        {
            recording.takeLink(state, QStringLiteral("why"), at(time));
        }
        void describe(double time, const char *identity, std::optional<double> offset)
        {
            MeterDescription description;
            description.identity = QLatin1String(identity);
            description.settings.offset = offset;
            recording.take(description, at(time));
        }

        double ahead = 0; ///< seconds by which the wall clock is ahead of the steady one
        QStringList rows;
        QStringList events;
        QByteArray lastDetails;
        Row last;
        Recording recording;
    };

private slots:
    void everyIntervalHasItsRow()
    {
        Bench bench;
        bench.advance(10); // before the first contact
        bench.link(11, MeterState::Open);
        for (int i = 0; i < 10; ++i)
            bench.read(12 + i * 0.1, -20);
        bench.read(19.999, -10);
        QCOMPARE(bench.rows, QStringList({QStringLiteral("0-10 0/0 link")}));
        bench.read(20, -30); // a reply at the very end belongs to the next
        QCOMPARE(QString::number(bench.last.mean.value_or(0), 'f', 4), QStringLiteral("-17.4036"));
        QCOMPARE(bench.last.last, std::optional(-10.0));
        bench.read(21, 100, Outcome::Garbled);
        bench.read(22, 100, Outcome::Timeout);
        bench.recording.setAwaitsReply(true);
        bench.advance(40);
        bench.recording.setAwaitsReply(false);
        bench.advance(50);
        bench.read(51, 100, Outcome::Link);
        bench.link(51, MeterState::Lost);
        bench.recording.finish(bench.at(73), bench.at(73).steady, {}, true);
        QCOMPARE(bench.rows.mid(1).join(QLatin1Char('|')),
                 QStringLiteral("10-20 11/0 ok|20-30 1/2 garbled|30-40 0/0 timeout|40-50 0/0 none|"
                                "50-60 0/1 link|60-70 0/0 link"));
        QVERIFY(!bench.last.mean);
    }
    void lastIntervalIsWrittenIfItHoldsAReading()
    {
        Bench bench;
        bench.read(3, -20);
        bench.recording.finish(bench.at(4.5), bench.at(4.5).steady, {}, true);
        QCOMPARE(bench.rows, QStringList({QStringLiteral("0-4.5 1/0 ok")}));
        QVERIFY(!bench.last.sigma);
    }

    void levelsOfTwoKindsHaveNoMean()
    {
        Bench bench({-10.0, {}});
        bench.read(1, -20);
        bench.read(2, -3, Outcome::Ok, true);
        bench.advance(10);
        QCOMPARE(bench.rows, QStringList({QStringLiteral("0-10 1/0 ok")}));
        QCOMPARE(bench.last.minimum, std::optional(-3.0));
        QCOMPARE(bench.last.isRelative, std::optional(true));
        QCOMPARE(bench.events, QStringList());
    }

    void clockThatSteps()
    {
        Bench bench;
        bench.link(1, MeterState::Open);
        bench.read(2, -20);
        bench.ahead = 0.9; // a clock that is set a little is no step
        bench.read(3, -20);
        bench.ahead = -3600;
        bench.read(4, -20);
        bench.advance(10);
        bench.advance(20);
        bench.ahead = 7200; // while the process is stopped for three intervals
        bench.advance(51);
        QCOMPARE(bench.rows.join(QLatin1Char('|')),
                 QStringLiteral("0--3590 3/0 clock|-3590--3580 0/0 none|-3580-7230 0/0 clock|"
                                "7230-7240 0/0 none|7240-7250 0/0 none"));
        QCOMPARE(
            bench.events.filter(QStringLiteral("clock")),
            QStringList({QStringLiteral("clock-step@-3596"), QStringLiteral("clock-step@7251")}));
        QCOMPARE(bench.lastDetails, QByteArray("{\"seconds\":10800}\n"));
    }

    void events()
    {
        Bench bench({-10.0, {}});
        bench.link(1, MeterState::Opening);
        bench.describe(2, "A", 1);
        bench.describe(3, "", 1); // what is not told has not changed
        bench.describe(4, "A", 2);
        bench.describe(5, "B", 2);
        bench.link(6, MeterState::Lost);
        bench.link(7, MeterState::Opening);
        bench.link(8, MeterState::Lost);
        bench.link(9, MeterState::Open);
        bench.read(9.5, -9.5);
        bench.advance(20); // an interval without a mean changes nothing
        bench.read(21, -10.1);
        bench.read(31, -10.2);
        bench.recording.finish(bench.at(42), bench.at(42).steady, {}, true);
        QCOMPARE(
            bench.events.join(QLatin1Char(' ')),
            QStringLiteral("start@2 settings-changed@4 identity-changed@5 link-lost@6 link-up@9 "
                           "alarm-on@10 alarm-off@40 stop@42"));
        QCOMPARE(bench.last.offset, std::optional(2.0));
    }
};

MZ_GUILESS_TEST(TestRecording)

#include "tst_recording.moc"
