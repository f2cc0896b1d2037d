#include "meter/backoff.h"
#include "meter/meter.h"

#include "simulatorprocess.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <memory>

namespace {

QString addressText(const std::optional<MeterAddress> &address)
{
    if (!address)
        return QStringLiteral("-");
    return QStringLiteral("%1 %2 %3 %4")
        .arg(address->mode)
        .arg(address->place)
        .arg(address->value)
        .arg(address->name());
}

} // namespace

/// The asynchronous face of the link, against the simulated instrument.
class TestMeter : public QObject
{
    Q_OBJECT

private:
    /// A meter at a simulator with \a options, and a record of what it tells.
    struct Bench
    {
        explicit Bench(const QString &options, LinkMode mode = lanLink, int wait = 5000)
        {
            const QString all = QStringLiteral("--noise 0 --calibration-time 0.1 ") + options +
                                (mode == lanLink ? QString() : QStringLiteral(" --serial"));
            if (!simulator.start(all.split(QLatin1Char(' '))))
                qFatal("no simulator: %s", qPrintable(simulator.errorText()));
            LinkWaits waits;
            waits.reading = wait;
            const MeterAddress address =
                mode == lanLink ? MeterAddress{mode, simulator.address(), simulator.port()}
                                : MeterAddress{mode, simulator.serialPath(), usualBaudRate};
            meter = std::make_unique<Meter>(address, waits);
            const auto note = [this](const char *letters, auto value) {
                told += QLatin1Char(letters[int(value)]);
            };
            QObject::connect(meter.get(), &Meter::stateChanged, meter.get(),
                             [note](MeterState state) { note("co+-", state); });
            QObject::connect(meter.get(), &Meter::reopened, meter.get(), [note] { note("r", 0); });
            QObject::connect(meter.get(), &Meter::described, meter.get(),
                             [note, this](const MeterDescription &description) {
                                 last = description;
                                 note("d", 0);
                             });
            QObject::connect(meter.get(), &Meter::reading, meter.get(),
                             [note](const MeterReading &reading) {
                                 note(reading.reading.isValid() ? "v" : "?tgrl", reading.outcome);
                             });
            QObject::connect(meter.get(), &Meter::answered, meter.get(),
                             [note](const MeterAnswer &answer) { note("STGRL", answer.outcome); });
            QObject::connect(
                meter.get(), &Meter::taskEnded, meter.get(),
                [note](MeterTask, const MeterAnswer &answer) { note("ZTGRL", answer.outcome); });
        }

        SimulatorProcess simulator;
        std::unique_ptr<Meter> meter;
        QString told; ///< a letter for each signal
        MeterDescription last;
    };

private slots:
    void addresses()
    {
        const auto lan = [](const char *text) {
            return addressText(MeterAddress::lan(QString::fromUtf8(text)));
        };
        const auto serial = [](const char *text) {
            return addressText(MeterAddress::serial(QString::fromUtf8(text)));
        };
        QCOMPARE(lan("bench1"), QStringLiteral("1 bench1 5001 bench1"));
        QCOMPARE(lan("bench1:5001"), QStringLiteral("1 bench1 5001 bench1"));
        QCOMPARE(lan("10.0.0.1:5002"), QStringLiteral("1 10.0.0.1 5002 10.0.0.1:5002"));
        QCOMPARE(lan("bench1:65535"), QStringLiteral("1 bench1 65535 bench1:65535"));
        QCOMPARE(lan("[fe80::1]:7"), QStringLiteral("1 fe80::1 7 fe80::1:7"));
        QCOMPARE(lan("fe80::1"), QStringLiteral("1 fe80::1 5001 fe80::1"));
        for (const char *bad : {"", ":5001", "host:", "host:0", "host:65536", "host:5x", "[::1]:"})
            QCOMPARE(lan(bad), QStringLiteral("-"));
        QCOMPARE(serial("COM3:9600"), QStringLiteral("0 COM3 9600 COM3"));
        QCOMPARE(serial("/dev/pci-0:1.0-port"),
                 QStringLiteral("0 /dev/pci-0:1.0-port 115200 /dev/pci-0:1.0-port"));
        for (const char *bad : {"", ":9600", "COM3:0", "COM3:99999999999"})
            QCOMPARE(serial(bad), QStringLiteral("-"));
    }

    void frequenciesInAnyLetters()
    {
        for (const auto &[unit, hertz] :
             {std::pair("GHZ", 2e9), {"MHz", 2e6}, {"MHZ", 2e6}, {"KHz", 2e3}, {"khz", 2e3}}) {
            MeterSettings settings;
            settings.frequency = 2.0;
            settings.frequencyUnit = QLatin1String(unit);
            QCOMPARE(settings.frequencyHz(), std::optional(hertz));
        }
    }

    void backoff()
    {
        Backoff backoff;
        QVector<int> waits;
        for (int i = 0; i < 8; ++i)
            waits << backoff.next(0.5);
        QCOMPARE(waits, (QVector<int>{1000, 2000, 4000, 8000, 16000, 32000, 60000, 60000}));
        backoff.reset();
        QCOMPARE(backoff.next(0), 800);
        QCOMPARE(backoff.next(1), 2400);
    }

    void requestsAreAnsweredInTurn()
    {
        Bench bench(QStringLiteral("--fault refuse,only=OFFS --fault cal-fail,only=CAL"));
        Meter &meter = *bench.meter;
        meter.open(Meter::Keeping::Once);
        meter.setFrequency(QStringLiteral("2450"), QStringLiteral("MHz"));
        meter.setOffset(1);
        meter.describe();
        meter.run(MeterTask::Zeroing);
        meter.run(MeterTask::Calibration);
        meter.read();
        QTRY_COMPARE(bench.told, QStringLiteral("o+SRdZRv"));
        QCOMPARE(bench.last.identity, QStringLiteral("MZ6218,SIM000001," MZ_VERSION));
        QCOMPARE(bench.last.settings.frequencyHz(), std::optional(2.45e9));
        QCOMPARE(bench.last.settings.isRelative, std::optional(false));
        const int before = bench.told.size();
        bench.simulator.stop();
        meter.read();
        // The loss is told before or after the reading that it spoils.
        QTRY_COMPARE(bench.told.size(), before + 2);
        QVERIFY2(bench.told.mid(before).contains(QLatin1Char('l')), qPrintable(bench.told));
        QCOMPARE(meter.state(), MeterState::Lost);
    }

    void lateReplySpoilsOneAnswer_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("serial") << int(serialLink);
        QTest::newRow("TCP") << int(lanLink);
    }
    void lateReplySpoilsOneAnswer()
    {
        QFETCH(int, mode);
        if (mode != lanLink && !SimulatorProcess::hasSerialPort)
            QSKIP(SimulatorProcess::noSerialPort);
        Bench bench(QStringLiteral("--fault late:800,only=GET?,times=1"), LinkMode(mode), 400);
        bench.meter->open(Meter::Keeping::Once);
        bench.meter->read();
        bench.meter->describe();
        bench.meter->read();
        QTRY_COMPARE_WITH_TIMEOUT(bench.told, QStringLiteral("o+trdv"), 20000);
        QCOMPARE(bench.last.outcome, Outcome::Ok);
        QVERIFY(bench.last.identity.startsWith(QLatin1String("MZ6218")));
    }

    void lostLinkComesBack_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("told"); // a regular expression
        QTest::newRow("dropped instead of a reading") << "drop-before,only=GET?,after=2,times=1"
                                                      << R"(o\+dvvl-or\+dv)";
        // The next reading may be under way by then.
        QTest::newRow("dropped between readings") << "drop-after,only=GET?,after=1,times=1"
                                                  << R"(o\+dvvl?-or\+dv)";
        QTest::newRow("reply that never came") << "no-reply,only=GET?,after=1,times=1"
                                               << R"(o\+dvtrdv)";
        QTest::newRow("no identity") << "no-reply,only=*IDN?"
                                     << R"(or\+dvv)";
        QTest::newRow("silence") << "no-reply,times=3"
                                 << R"(orrdt-or\+dv)";
    }
    void lostLinkComesBack()
    {
        QFETCH(QString, fault);
        QFETCH(QString, told);
        Bench bench(QStringLiteral("--fault ") + fault, lanLink, 400);
        bench.meter->poll(20);
        bench.meter->open(Meter::Keeping::Forever);
        const QRegularExpression begin(QLatin1Char('^') + told);
        QTRY_VERIFY2_WITH_TIMEOUT(begin.match(bench.told).hasMatch(), qPrintable(bench.told),
                                  20000);
    }

    void stopDoesNotWaitForTheInstrument()
    {
        Bench bench(QStringLiteral("--fault no-reply"), lanLink, 60000);
        bench.meter->open(Meter::Keeping::Once);
        bench.meter->read();
        QVERIFY(bench.simulator.waitForCommand(QStringLiteral("GET?")));
        QElapsedTimer timer;
        timer.start();
        bench.meter->stop();
        QVERIFY(timer.elapsed() < 10000);
        QCOMPARE(bench.meter->state(), MeterState::Closed);
    }
};

MZ_GUILESS_TEST(TestMeter)

#include "tst_meter.moc"
