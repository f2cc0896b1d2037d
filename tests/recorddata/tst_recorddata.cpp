#include "recorddata/clockticks.h"
#include "recorddata/recordreader.h"
#include "testfiles.h"
#include "testmain.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <cmath>
#include <random>

namespace {

const QByteArray consoleHeader = "Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n";
const QByteArray csvHeader =
    "time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,last_dbm,frequency_hz,"
    "offset_db,relative,averaging,valid,reason\n";

QByteArray csvRow(const QByteArray &time, const QByteArray &start, const QByteArray &mean,
                  const QByteArray &relative = "0")
{
    const QByteArray valid = mean.isEmpty() ? "0" : "1";
    return time + ',' + start + ',' + valid + ",0," + mean + ",,,,,2450000000,0," + relative +
           ",16," + valid + (mean.isEmpty() ? ",timeout\n" : ",ok\n");
}

/// The same on 2026-11-21 in a zone one hour east, for a row at second \a second of 12:00.
QByteArray csvRowAt(int second, const QByteArray &mean, const QByteArray &relative = "0")
{
    const auto text = [](int at) {
        return "2026-11-21T12:00:" + QByteArray::number(at).rightJustified(2, '0') + ".000+01:00";
    };
    return csvRow(text(second), text(second - 1), mean, relative);
}

QByteArray jsonRow(const QByteArray &second, const QByteArray &mean)
{
    return "{\"time\":\"2026-11-21T12:00:" + second +
           ".000+01:00\",\"start\":\"2026-11-21T12:00:" + second +
           ".000+01:00\",\"n_valid\":1,\"mean_dbm\":" + mean +
           ",\"relative\":0,\"valid\":" + (mean == "null" ? "0" : "1") + ",\"reason\":\"ok\"}\n";
}

QByteArray consoleRow(const QByteArray &time, const QByteArray &power)
{
    return "2026/11/21 " + time + ",2.45,0," + power + "dBm,x\n";
}

/// The points as "seconds after 12:00:00=level", with "|" for a gap and "dB" for a relative level.
QByteArray shown(const RecordData &data)
{
    const double noon = 1795262400.0; // 2026-11-21 12:00 by the clock of the record
    QByteArray text;
    for (int i = 0; i < data.size(); ++i) {
        if (i > 0)
            text += data.gaps({i - 1, i}) > 0 ? " | " : " ";
        text += QByteArray::number(data.time(i) - noon) + '=' + QByteArray::number(data.level(i)) +
                (data.isRelative(i) ? "dB" : "");
    }
    return text;
}

} // namespace

class TestRecordData : public QObject
{
    Q_OBJECT

private slots:
    void readsRows_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("points");
        QTest::addColumn<int>("leftOut");

        QTest::newRow("intervals") << csvHeader + csvRowAt(1, "-20.0312") + csvRowAt(2, "-1e1")
                                   << QByteArray("1=-20.0312 2=-10") << 0;
        QTest::newRow("an invalid row, a time without rows")
            << csvHeader + csvRowAt(1, "-20") + csvRowAt(2, "") + csvRowAt(3, "-21") +
                   csvRowAt(20, "-22") + csvRowAt(21, "-23")
            << QByteArray("1=-20 | 3=-21 | 20=-22 21=-23") << 0;
        QTest::newRow("a longer interval from here on")
            << csvHeader + csvRowAt(1, "-20") + csvRowAt(2, "-20") +
                   csvRow("2026-11-21T12:00:12.000+01:00", "2026-11-21T12:00:02.000+01:00", "-21")
            << QByteArray("1=-20 2=-20 12=-21") << 0;
        QTest::newRow("the zone changes, the clock is put back, the unit changes")
            << csvHeader + csvRowAt(1, "-20") +
                   csvRow("2026-11-21T16:30:02.000+05:30", "2026-11-21T16:30:01.000+05:30", "-21") +
                   csvRowAt(1, "-22") + csvRowAt(2, "0.5", "1")
            << QByteArray("1=-20 2=-21 | 1=-22 2=0.5dB") << 0;
        QTest::newRow("torn, not a number, Windows' ends of line")
            << csvHeader + csvRowAt(1, "-20") + "2026-11-21T12:0\n" +
                   csvRowAt(2, "-21").replace("\n", "\r\n") + csvRowAt(3, "nan") +
                   csvRowAt(4, "-22").chopped(1)
            << QByteArray("1=-20 2=-21") << 1;
        QTest::newRow("objects") << jsonRow("01", "-20.5") + jsonRow("02", "null") +
                                        jsonRow("03", "-7")
                                 << QByteArray("1=-20.5 | 3=-7") << 0;
        QTest::newRow("minutes") << consoleHeader + consoleRow("12:00", "-20.00") +
                                        consoleRow("12:00", "-20.50") +
                                        consoleRow("12:01", "-21.00")
                                 << QByteArray("0=-20 30=-20.5 60=-21") << 0;
        QTest::newRow("a pause of twice the step is none")
            << consoleHeader + consoleRow("12:00", "-20.00") + consoleRow("12:01", "-21.00") +
                   consoleRow("12:03", "-22.00")
            << QByteArray("0=-20 60=-21 180=-22") << 0;
        QTest::newRow("the leap day and the day behind it")
            << consoleHeader +
                   "2024/02/29 23:59,2.45,0,-20dBm,x\n2024/03/01 00:00,2.45,0,-21dBm,x\n"
            << QByteArray("-8.60113e+07=-20 -8.60112e+07=-21") << 0;
        QTest::newRow("no reading, a minute that goes back, a pause")
            << consoleHeader + consoleRow("12:00", "-20.00") + consoleRow("12:01", "100.00") +
                   consoleRow("12:02", "-21.00") + consoleRow("12:01", "-22.00") +
                   consoleRow("12:02", "-23.00") + consoleRow("12:09", "-24.00")
            << QByteArray("0=-20 | 120=-21 | 60=-22 120=-23 | 540=-24") << 0;
    }

    void readsRows()
    {
        QFETCH(QByteArray, text);
        RecordReader reader;
        QCOMPARE(reader.open({write("rows", text)}, {}), RecordReader::Outcome::Read);
        QTEST(shown(reader.data()), "points");
        QTEST(reader.linesLeftOut(), "leftOut");
    }

    void joinsFollowsAndCopies()
    {
        const QString second =
            write("b-2026-11-21.csv", csvHeader + csvRowAt(3, "-22") + csvRowAt(4, "-23"));
        const QString first = write("a.csv", csvHeader + csvRowAt(1, "-20") + csvRowAt(2, "-21"));
        RecordReader reader;
        int steps = 0;
        QCOMPARE(reader.open({second, first}, [&steps](double) { return ++steps > 0; }),
                 RecordReader::Outcome::Read);
        QVERIFY(steps > 0);
        QCOMPARE(reader.paths(), (QStringList{first, second}));
        QCOMPARE(shown(reader.data()), QByteArray("1=-20 2=-21 3=-22 4=-23"));
        QCOMPARE(reader.row(2) + '\n', csvRowAt(3, "-22"));

        QBuffer copy;
        copy.open(QBuffer::WriteOnly);
        QVERIFY(reader.copyRows(reader.data().between(reader.data().time(1), reader.data().time(2)),
                                copy));
        QCOMPARE(copy.data(), csvHeader + csvRowAt(2, "-21") + csvRowAt(3, "-22"));

        QCOMPARE(reader.follow(), RecordReader::Outcome::Unchanged);
        write("b-2026-11-21.csv", csvRowAt(5, "-24") + "2026", QFile::Append); // the rest follows
        QCOMPARE(reader.follow(), RecordReader::Outcome::Read);
        write("b-2026-11-22.csv", csvHeader + csvRowAt(6, "-25"));
        QCOMPARE(reader.follow(), RecordReader::Outcome::Read);
        QCOMPARE(shown(reader.data()), QByteArray("1=-20 2=-21 3=-22 4=-23 5=-24 6=-25"));
        RecordReader oldDay;
        QCOMPARE(oldDay.open({second}, {}), RecordReader::Outcome::Read);
        QCOMPARE(oldDay.follow(), RecordReader::Outcome::Unchanged);
        write("b-2026-11-22.csv", csvHeader);
        QCOMPARE(reader.follow(), RecordReader::Outcome::Replaced);

        // a minute's rows move while more of them come
        const QString day = write("day.csv", consoleHeader + consoleRow("12:00", "-20.00"));
        RecordReader console;
        QCOMPARE(console.open({day}, {}), RecordReader::Outcome::Read);
        write("day.csv", consoleRow("12:00", "-21.00"), QFile::Append);
        QCOMPARE(console.follow(), RecordReader::Outcome::Read);
        QCOMPARE(shown(console.data()), QByteArray("0=-20 30=-21"));

        RecordReader cancelled;
        QCOMPARE(cancelled.open({first}, [](double) { return false; }),
                 RecordReader::Outcome::Cancelled);
    }

    void refusesWhatIsNoRecord()
    {
        const QString csv = write("a.csv", csvHeader);
        const QString other = write("b.csv", consoleHeader);
        const QString picture = write("c.png", QByteArray(100000, '\x7f'));
        for (const QStringList &paths :
             {QStringList{csv, other}, QStringList{picture},
              QStringList{m_folder.filePath(QStringLiteral("none.csv"))}}) {
            RecordReader reader;
            QCOMPARE(reader.open(paths, {}), RecordReader::Outcome::Failed);
            QVERIFY2(reader.error().contains(paths.last()), qPrintable(reader.error()));
        }
    }

    /// Gaps, a clock put back and 20,000 points: every answer against a look at all points.
    void answersAsAWalkWould()
    {
        std::mt19937 random(3);
        std::uniform_real_distribution<double> uniform(0.0, 1.0);
        RecordData data;
        double time = 1000.0;
        for (int i = 0; i < 20000; ++i) {
            time += i == 12000 ? -300.0 : 0.1 + (uniform(random) < 0.001 ? 50.0 : 0.0);
            data.append({time, -20.0 + uniform(random), false, uniform(random) < 0.01, {}});
        }
        data.index();

        for (int round = 0; round < 20; ++round) {
            const double from = data.begin() + (data.end() - data.begin()) * uniform(random);
            const double to = from + 400.0 * uniform(random);
            int count = 0;
            int ended = 0;
            double sum = 0.0;
            for (int i = 0; i < data.size(); ++i) {
                if (data.time(i) < from || data.time(i) > to)
                    continue;
                ++count;
                sum += std::pow(10.0, data.level(i) / 10.0);
            }
            PowerStatistics all;
            for (const PointRange &range : data.between(from, to)) {
                all.merge(data.statistics(range));
                ended += range.last - range.first + 1;
            }
            QCOMPARE(ended, count);
            QCOMPARE(int(all.count()), count);
            if (count > 0)
                QVERIFY(std::abs(*all.mean() - 10.0 * std::log10(sum / count)) < 1e-9);

            // the columns hold every point in view, a column's points share its pixel, and gaps
            // show
            const double width = 300;
            int covered = 0;
            int before = -1;
            for (const RecordData::Column &column : data.columns(from, to, int(width))) {
                for (int i = column.first; i <= column.last; ++i) {
                    covered += data.time(i) >= from && data.time(i) <= to ? 1 : 0;
                    QVERIFY(data.level(i) >= data.level(column.low));
                    QVERIFY(data.level(i) <= data.level(column.high));
                }
                const double wide = data.time(column.last) - data.time(column.first);
                QVERIFY(wide <= (to - from) / width + 1e-6);
                if (before >= 0 && column.first == before + 1)
                    QCOMPARE(column.startsAnew, data.gaps({before, column.first}) > 0);
                before = column.last;
            }
            QCOMPARE(covered, count);
        }
        QCOMPARE(data.nearest(-5.0), 0);
        QCOMPARE(data.nearest(1e9), data.size() - 1);
    }

    void labelsOfTime()
    {
        const double midnight = 1795219200.0; // 2026-11-21
        QCOMPARE(ClockTicks::label(midnight, 3600.0), QStringLiteral("11-21"));
        QCOMPARE(ClockTicks::label(midnight, 1.0), QStringLiteral("00:00:00"));
    }

private:
    QString write(const char *name, const QByteArray &text, QFile::OpenMode mode = QFile::WriteOnly)
    {
        return ::write(m_folder.filePath(QLatin1String(name)), text, mode);
    }

    QTemporaryDir m_folder;
};

MZ_GUILESS_TEST(TestRecordData)
#include "tst_recorddata.moc"
