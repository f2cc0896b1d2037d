#include "recorder/dayfiles.h"
#include "recorder/isotime.h"
#include "recorder/metrics.h"
#include "recorder/outbox.h"
#include "recorder/row.h"

#include "testfiles.h"
#include "testmain.h"

#include <QTemporaryDir>

#include <ctime>

namespace {

/// A row with everything in it; the times are 2026-11-21 20:03:02.117 UTC and a second before.
Row fullRow()
{
    Row row;
    row.time = 1795291382117;
    row.start = row.time - 1000;
    row.valid = 3;
    row.invalid = 1;
    row.mean = -17.40361;
    row.minimum = -20;
    row.maximum = -10.005;
    row.sigma = 6.48184;
    row.last = -0.00001;
    row.frequencyHz = 2450000000;
    row.offset = -3.5;
    row.isRelative = false;
    row.averaging = 16;
    row.reason = QStringLiteral("timeout");
    return row;
}

Row emptyRow()
{
    Row row;
    row.time = 1795291382117;
    row.start = row.time - 1000;
    row.reason = QStringLiteral("link");
    return row;
}

} // namespace

/// Texts and files of the recorder.
class TestRecorderUnits : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QByteArray>("full");
        QTest::addColumn<QByteArray>("empty");
        QTest::newRow("csv")
            << int(RowFormat::Csv)
            << QByteArray(
                   "2026-11-21T20:03:02.117+00:00,2026-11-21T20:03:01.117+00:00,3,1,-17.4036,"
                   "-20.00,-10.005,6.4818,0.00,2450000000,-3.5,0,16,1,timeout\n")
            << QByteArray("2026-11-21T20:03:02.117+00:00,2026-11-21T20:03:01.117+00:00,0,0,,,,,,,,"
                          ",,0,link\n");
        QTest::newRow("jsonl")
            << int(RowFormat::JsonLines)
            << QByteArray(
                   R"({"time":"2026-11-21T20:03:02.117+00:00","start":"2026-11-21T20:03:01.117+00:00",)"
                   R"("n_valid":3,"n_invalid":1,"mean_dbm":-17.4036,"min_dbm":-20.00,)"
                   R"("max_dbm":-10.005,"sigma_db":6.4818,"last_dbm":0.00,"frequency_hz":2450000000,)"
                   R"("offset_db":-3.5,"relative":0,"averaging":16,"valid":1,"reason":"timeout"})"
                   "\n")
            << QByteArray(
                   R"({"time":"2026-11-21T20:03:02.117+00:00","start":"2026-11-21T20:03:01.117+00:00",)"
                   R"("n_valid":0,"n_invalid":0,"mean_dbm":null,"min_dbm":null,"max_dbm":null,)"
                   R"("sigma_db":null,"last_dbm":null,"frequency_hz":null,"offset_db":null,)"
                   R"("relative":null,"averaging":null,"valid":0,"reason":"link"})"
                   "\n");
        QTest::newRow("influx")
            << int(RowFormat::Influx)
            << QByteArray("mz6218,meter=a\\ b\\,c\\=d start=1795291381117000000i,n_valid=3i,"
                          "n_invalid=1i,mean_dbm=-17.4036,min_dbm=-20.00,max_dbm=-10.005,"
                          "sigma_db=6.4818,last_dbm=0.00,frequency_hz=2450000000i,offset_db=-3.5,"
                          "relative=0i,averaging=16i,valid=1i,reason=\"timeout\" "
                          "1795291382117000000\n")
            << QByteArray("mz6218,meter=a\\ b\\,c\\=d start=1795291381117000000i,n_valid=0i,"
                          "n_invalid=0i,valid=0i,reason=\"link\" 1795291382117000000\n");
    }
    void rows()
    {
        QFETCH(int, format);
        const QString meter = QStringLiteral("a b,c=d");
        QTEST(RowText::line(RowFormat(format), fullRow(), meter), "full");
        QTEST(RowText::line(RowFormat(format), emptyRow(), meter), "empty");
        QCOMPARE(
            RowText::header(RowFormat(format)),
            QByteArray(format == int(RowFormat::Csv)
                           ? "time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,"
                             "last_dbm,frequency_hz,offset_db,relative,averaging,valid,reason\n"
                           : ""));
    }

    /// The hour that comes twice in autumn, by the clock of New York, whose rule is the one that
    /// Windows takes for every TZ; and a zone that is no whole hours away.
    void times()
    {
        const qint64 first = 1793511000000; // 2026-11-01 05:30 UTC
        const auto at = [](const char *zone, qint64 wall) {
            qputenv("TZ", zone);
            ::tzset();
            return isoTime(wall);
        };
        const char *const newYork = "EST5EDT,M3.2.0,M11.1.0";
        QCOMPARE(at(newYork, first), QStringLiteral("2026-11-01T01:30:00.000-04:00"));
        QCOMPARE(at(newYork, first + 3600000), QStringLiteral("2026-11-01T01:30:00.000-05:00"));
        QCOMPARE(at("AAA5:45", first), QStringLiteral("2026-10-31T23:45:00.000-05:45"));
        QCOMPARE(localDate(first), QDate(2026, 10, 31));
        QCOMPARE(localDate(first + 900000), QDate(2026, 11, 1)); // midnight begins the day
        QCOMPARE(at("BBB-5:30", first), QStringLiteral("2026-11-01T11:00:00.000+05:30"));
        QCOMPARE(at("UTC0", first + 7), QStringLiteral("2026-11-01T05:30:00.007+00:00"));
    }

    void outbox()
    {
        QByteArray disk;
        bool isFull = false;
        Outbox box(
            [&](const Outbox::Line &lines) -> std::optional<QString> {
                if (isFull)
                    return QStringLiteral("full");
                disk += lines.file.toLatin1() + ':' + lines.text + '|';
                return std::nullopt;
            },
            3);
        const auto add = [&box](const char *file, const char *text) {
            box.add({QLatin1String(file), {}, text});
        };
        add("a", "1");
        add("a", "2");
        add("b", "3");
        QVERIFY(!box.flush());
        QCOMPARE(disk, QByteArray("a:12|b:3|"));
        isFull = true;
        add("b", "4");
        const auto failed = box.flush();
        QVERIFY(failed && failed->isFailing && failed->reason == QLatin1String("full"));
        for (const char *text : {"5", "6", "7"})
            add("c", text);
        QVERIFY(!box.flush()); // told already
        QCOMPARE(box.waiting(), std::size_t(3));
        isFull = false;
        const auto resumed = box.flush();
        QVERIFY(resumed && !resumed->isFailing);
        QCOMPARE(box.takeLost(), qint64(1));
        QCOMPARE(disk, QByteArray("a:12|b:3|c:567|"));
    }

    void dayFiles_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("empty") << QByteArray() << QByteArray("head,er\nrow\nrow\n");
        QTest::newRow("whole") << QByteArray("head,er\nold\n")
                               << QByteArray("head,er\nold\nrow\nrow\n");
        QTest::newRow("torn row") << QByteArray("head,er\nol")
                                  << QByteArray("head,er\nol\nrow\nrow\n");
        QTest::newRow("torn header") << QByteArray("head") << QByteArray("head,er\nrow\nrow\n");
        QTest::newRow("header without its newline")
            << QByteArray("head,er") << QByteArray("head,er\nrow\nrow\n");
        QTest::newRow("torn line of something else")
            << QByteArray("hea?") << QByteArray("hea?\nrow\nrow\n");
    }
    void dayFiles()
    {
        QFETCH(QByteArray, before);
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("new/a_b__c-2026-11-21.csv"));
        DayFiles files(QFileInfo(path).path(), QStringLiteral("a/b:µc"));
        QCOMPARE(files.open(), std::nullopt);
        const QString name = files.fileName(QDate(2026, 11, 21), QStringLiteral(".csv"));
        QCOMPARE(name, QFileInfo(path).fileName());
        if (!before.isEmpty()) {
            write(path, before);
        }
        QCOMPARE(files.append({name, "head,er\n", "row\n"}), std::nullopt);
        QCOMPARE(files.append({name, "head,er\n", "row\n"}), std::nullopt);
        QTEST(contentOf(path), "after");
    }

    void filesBelongToOneProgram()
    {
        QTemporaryDir folder;
        const Outbox::Line line{QStringLiteral("f"), {}, "row\n"};
        {
            DayFiles files(folder.path(), QStringLiteral("meter"));
            DayFiles others(folder.path(), QStringLiteral("meter"));
            DayFiles neighbours(folder.path(), QStringLiteral("meter2"));
            QCOMPARE(files.open(), std::nullopt);
            QVERIFY(others.open());
            QCOMPARE(neighbours.open(), std::nullopt);
#ifndef Q_OS_WIN // where a folder with an open file cannot go away
            // A folder that went away is waited for, and the lock taken anew.
            QVERIFY(QDir(folder.path()).removeRecursively());
            QVERIFY(files.append(line));
            QVERIFY(QDir().mkpath(folder.path()));
            QCOMPARE(files.append(line), std::nullopt);
            QVERIFY(others.open());
#endif
        }
        DayFiles next(folder.path(), QStringLiteral("meter"));
        QCOMPARE(next.open(), std::nullopt);
        DayFiles nowhere(write(folder.filePath(QStringLiteral("file"))) + QStringLiteral("/x"),
                         QStringLiteral("meter"));
        QVERIFY(nowhere.open());
    }

    void metrics()
    {
        Metrics metrics;
        metrics.meter = QStringLiteral("a\"\\\n");
        metrics.row = fullRow();
        metrics.row->last = 20; // whose power every C library knows exactly
        metrics.lastValid = metrics.row->time;
        metrics.valid = 5;
        metrics.alarm = LimitAlarm({-10.0, {}});
        metrics.alarm.add(-9);
        const QByteArray text = metrics.text();
        const auto has = [](const QByteArray &all, const char *line) {
            return ('\n' + all).contains('\n' + QByteArray(line) + '\n');
        };
        for (const char *line :
             {"mz6218_up{meter=\"a\\\"\\\\\\n\"} 1", "# TYPE mz6218_readings_total counter",
              "mz6218_power_dbm{meter=\"a\\\"\\\\\\n\"} 20",
              "mz6218_power_watts{meter=\"a\\\"\\\\\\n\"} 0.1",
              "mz6218_last_reading_timestamp_seconds{meter=\"a\\\"\\\\\\n\"} 1795291382.117",
              "mz6218_readings_total{meter=\"a\\\"\\\\\\n\",result=\"valid\"} 5",
              "mz6218_readings_total{meter=\"a\\\"\\\\\\n\",result=\"invalid\"} 0",
              "mz6218_limit_exceeded{meter=\"a\\\"\\\\\\n\",limit=\"high\"} 1"})
            QVERIFY2(has(text, line), line);
        QVERIFY(!text.contains("limit=\"low\""));
        metrics.row->isRelative = true;
        QVERIFY(!metrics.text().contains("dbm"));
        QVERIFY(metrics.text().contains("_up{meter=\"a\\\"\\\\\\n\"} 1\n"));
        metrics.row->valid = 0;
        QVERIFY(metrics.text().contains("_up{meter=\"a\\\"\\\\\\n\"} 0\n"));
    }
};

MZ_GUILESS_TEST(TestRecorderUnits)

#include "tst_recorderunits.moc"
