#include "cli/values.h"

#include "simulatorprocess.h"
#include "testfiles.h"
#include "testmain.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

const QString program = QStringLiteral(MZ_BIN_DIR "/mz6218-cli");

struct Ended
{
    int status = -1;
    QString output;
    QString messages;
};

Ended run(const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList linesOf(const QString &path)
{
    return QString::fromUtf8(contentOf(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

/// The program as scripts and services use it, with the simulated instrument.
class TestCli : public QObject
{
    Q_OBJECT

private:
    /// The lines of the only file in \a folder whose name ends in \a ending.
    static QStringList file(const QTemporaryDir &folder, const char *ending)
    {
        const QStringList names =
            QDir(folder.path())
                .entryList({QStringLiteral("*") + QLatin1String(ending)}, QDir::Files);
        return names.size() == 1 ? linesOf(folder.filePath(names.first())) : QStringList();
    }

private slots:
    void durations()
    {
        const auto milliseconds = [](const char *text) {
            const auto duration = Values::duration(QLatin1String(text));
            return duration ? *duration / 1000000 : -1;
        };
        QCOMPARE(milliseconds("500ms"), 500);
        QCOMPARE(milliseconds("1.5s"), 1500);
        QCOMPARE(milliseconds("5min"), 300000);
        QCOMPARE(milliseconds("1h"), 3600000);
        QCOMPARE(milliseconds("0"), 0);
        for (const char *bad : {"", "5", "s", "-1s", "1 s", "1e3s", "1m", "99999999999h", "1,5s"})
            QCOMPARE(milliseconds(bad), -1);
    }

    void commands_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("output"); // a regular expression
        const auto row = [](const char *name, const char *fault, const char *arguments, int status,
                            const char *output) {
            QTest::newRow(name) << QString::fromLatin1(fault) << QString::fromLatin1(arguments)
                                << status << QString::fromLatin1(output);
        };
        const char *const none = "no-reply,p=0";
#define TIME "[0-9-]{10}T[0-9:]{8}\\.[0-9]{3}\\+00:00"
        row("identify", none, "identify", 0,
            "identity: MZ6218,.*\nfrequency: 50 MHz\noffset: 0 dB\naveraging: 1\nunit: dBm\n"
            "relative: off\n");
        row("identify as JSON", none, "--json identify", 0,
            R"(\{"identity":"MZ6218,.*","frequency_hz":50000000,"offset_db":0,"averaging":1,)"
            R"("unit":"dBm","relative":false\})"
            "\n");
        row("read as JSON", none, "--json read", 0,
            R"(\{"time":")" TIME R"(","power_dbm":-20.00,"text":"-20.00dBm"\})"
            "\n");
        row("read", none, "read --count 2", 0, "(" TIME " -20.00 dBm -20.00dBm\n){2}");
        row("mean", none, "read --mean 3", 0, TIME " -20.0000 dBm\n");
        row("set", none, "set frequency 1500kHz offset -3.5 averaging 16 unit W relative on", 0,
            "frequency: 1500 KHz\noffset: -3.5 dB\naveraging: 16\nunit: W\nrelative: on\n");
        row("greatest frequency", none, "set frequency 40GHz", 0, "frequency: 40 GHz\n");
        row("set as JSON", none, "--json set relative off averaging 2", 0,
            "\\{\"relative\":false,\"averaging\":2\\}\n");
        row("what is read back differs", none, "set offset 1.005 averaging 2", 1,
            "offset: 1 dB\naveraging: 2\n");
        row("refused", "refuse,only=OFFS", "set averaging 4 offset 1 unit W", 1, "averaging: 4\n");
        row("nothing is sent before all is checked", none, "set averaging 4 offset x", 2, "");
        row("zero", none, "--json zero", 0, "\\{\"zero\":\"ok\"\\}\n");
        row("calibration that fails", "cal-fail", "calibrate", 1, "");
        row("lost", "drop-before,only=GET?,after=1", "read --count 5", 3,
            TIME " -20.00 dBm -20.00dBm\n" TIME " -\n");
        row("bad unit", none, "read --every 5", 2, "");
        row("unknown option", none, "read --often", 2, "");
#undef TIME
    }
    void commands()
    {
        QFETCH(QString, fault);
        QFETCH(QString, arguments);
        QFETCH(QString, output);
        SimulatorProcess simulator;
        QVERIFY(simulator.start(words("--noise 0 --calibration-time 0.1 --fault") +
                                words(qPrintable(fault))));
        const QString address =
            QStringLiteral("--lan=%1:%2").arg(simulator.address()).arg(simulator.port());
        const Ended ended = run(QStringList{address} + words(qPrintable(arguments)));
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(output))
                     .match(ended.output)
                     .hasMatch(),
                 qPrintable(ended.output + ended.messages));
        QTEST(ended.status, "status");
        QCOMPARE(ended.messages.isEmpty(), ended.status == 0);
        if (ended.status == 2)
            QCOMPARE(simulator.commands(), QStringList());
    }

    void usage_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QByteArray>("file"); // what --config names, if it names one
        QTest::addColumn<int>("status");
        const auto row = [](const char *name, const char *arguments, int status,
                            const char *file = "") {
            QTest::newRow(name) << text(arguments) << QByteArray(file) << status;
        };
        row("version", "--version", 0);
        row("help", "record --help", 0);
        row("no command", "--lan a", 2);
        row("no address", "read", 2);
        row("two addresses", "--lan a --serial b read", 2);
        row("bad port", "--lan a:b read", 2);
        row("limits crossed", "--lan a record --low -1 --high -2", 2);
        row("no tag", "--lan 127.0.0.1:1 --name a\\ record --format influx --no-wait --out -", 2);
        row("nobody there", "--lan 127.0.0.1:1 read", 3);
        row("not waiting", "--lan 127.0.0.1:1 record --no-wait --out -", 3);
        row("no place to write", "--lan 127.0.0.1:1 record --out /dev/null/x", 4);
        row("file missing", "--config /nowhere.toml record", 2);
        row("unknown key", "--config FILE record", 2, "[record]\nevry='1s'");
        row("everything in the file", "--config FILE record", 3,
            "lan = \"127.0.0.1:1\" # here\n[record]\nno-wait = true\nout = \"-\"\n");
        row("command line before file", "--config FILE --serial /nowhere record --every 1s", 3,
            "lan = 'a'\n[record]\nevery = '0'\nno-wait = true\nout = '-'\n");
        row("sharp in quotes", "--config FILE record", 4,
            "lan = '127.0.0.1:1'\n[record]\nout = '/dev/null/#'\n");
    }
    void usage()
    {
        QFETCH(QString, arguments);
        QFETCH(QByteArray, file);
        QTemporaryFile config;
        QVERIFY(config.open() && config.write(file) == file.size() && config.flush());
        const Ended ended = run(
            arguments.replace(QLatin1String("FILE"), config.fileName()).split(QLatin1Char(' ')));
        QTEST(ended.status, "status");
        QCOMPARE(ended.status == 0, ended.messages.isEmpty());
    }

    void recordOverALossAndAKill()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.start(words("--noise 0 --fault drop-before,only=GET?,after=3,times=1")));
        QTemporaryDir folder;
        const QString metrics = folder.filePath(QStringLiteral("m.prom"));
        const QStringList arguments =
            words("--name bench/1 record --every 100ms --poll 30ms") +
            QStringList{
                QStringLiteral("--lan=%1:%2").arg(simulator.address()).arg(simulator.port()),
                QStringLiteral("--out"), folder.path(), QStringLiteral("--prometheus"), metrics};
        QProcess killed;
        killed.start(program, arguments);
        QTRY_VERIFY(
            file(folder, ".events.jsonl").join(QString()).contains(QLatin1String("link-up")));
        const Ended second = run(arguments);
        QCOMPARE(second.status, 4);
        const qint64 rows = file(folder, ".csv").size();
        QTRY_VERIFY(file(folder, ".csv").size() > rows);
        killed.kill();
        killed.waitForFinished();

        QFile reader(metrics); // who reads the file meanwhile reads it as it was
        QVERIFY(reader.open(QFile::ReadOnly));
        const Ended ended = run(arguments + words("--count 3"));
        QCOMPARE(ended.status, 0);
        QVERIFY(reader.readAll() != contentOf(metrics));
        QStringList csv = file(folder, ".csv");
        const QString header = csv.takeFirst();
        QCOMPARE(csv.filter(header).size(), 0);
        QVERIFY(!csv.filter(QRegularExpression(QStringLiteral(",0,link$"))).isEmpty());
        int gaps = 0;
        for (int i = 1; i < csv.size(); ++i)
            gaps += csv[i].section(QLatin1Char(','), 1, 1) !=
                    csv[i - 1].section(QLatin1Char(','), 0, 0);
        QCOMPARE(gaps, 1); // between the one that was killed and the one that came after it
        QStringList events;
        for (const QString &line : file(folder, ".events.jsonl"))
            events << QJsonDocument::fromJson(line.toUtf8())[QStringLiteral("event")].toString();
        QCOMPARE(events, words("start link-lost link-up start stop"));
        QVERIFY(linesOf(metrics).contains(QStringLiteral("mz6218_up{meter=\"bench/1\"} 0")));
    }

    /// A row belongs to the day of its end.
    void rowOverMidnight()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const QTime east = QTime(0, 0).addSecs(now.time().secsTo(QTime(23, 59, 59)));
        qputenv("TZ", "AAA-" + east.toString(Qt::ISODate).toLatin1()); // midnight within a second
        QTemporaryDir folder;
        const Ended ended = run(words("--lan 127.0.0.1:1 record --every 1100ms --count 1 --out") +
                                QStringList(folder.path()));
        qputenv("TZ", "UTC0");
        QCOMPARE(ended.status, 0);
        const QString day = now.date().addDays(1).toString(Qt::ISODate);
        QCOMPARE(linesOf(folder.filePath(QStringLiteral("127.0.0.1_1-%1.csv").arg(day))).size(), 2);
    }

    void endedByASignal_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("status");
        QTest::newRow("record without an end") << "record --every 50ms" << 0;
        QTest::newRow("record with an end") << "record --every 50ms --duration 1h" << 130;
        QTest::newRow("read") << "read --count 100000 --every 50ms" << 130;
    }
    void endedByASignal()
    {
        QFETCH(QString, arguments);
        SimulatorProcess simulator("");
        QProcess process;
        if (arguments.startsWith(QLatin1String("record")))
            arguments += QLatin1String(" --out -");
        process.start(
            program,
            QStringList{
                QStringLiteral("--lan=%1:%2").arg(simulator.address()).arg(simulator.port())} +
                arguments.split(QLatin1Char(' ')));
        QVERIFY(process.waitForReadyRead(10000));
        process.terminate();
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QTEST(process.exitCode(), "status");
    }

    void pipeThatNobodyReads()
    {
        SimulatorProcess simulator("");
        for (const char *command : {"read --count 100000", "record --every 20ms --out -"}) {
            QProcess shell;
            shell.start(QStringLiteral("bash"),
                        {QStringLiteral("-c"),
                         QStringLiteral("set -o pipefail; %1 --lan %2:%3 %4 | head -n 1")
                             .arg(program, simulator.address())
                             .arg(simulator.port())
                             .arg(QLatin1String(command))});
            QVERIFY2(shell.waitForFinished(10000), command);
            QCOMPARE(shell.exitCode(), 0);
            QVERIFY(!shell.readAllStandardError().contains("mz6218-cli:"));
        }
    }
};

MZ_GUILESS_TEST(TestCli)

#include "tst_cli.moc"
