#include "2d/data/curvetext.h"
#include "testmain.h"

#include <QLocale>
#include <QRandomGenerator>

#include <cmath>
#include <cstring>

using CurveText::Curve;
using CurveText::Status;
using Points = QVector<QPointF>;

Q_DECLARE_METATYPE(CurveText::Status)

namespace {

double fromBits(quint64 pattern)
{
    double value = 0.0;
    std::memcpy(&value, &pattern, sizeof value);
    return value;
}

/// Exact, where QPointF compares fuzzily.
bool same(const Points &a, const Points &b)
{
    return a.size() == b.size() &&
           std::memcmp(a.constData(), b.constData(), std::size_t(a.size()) * sizeof(QPointF)) == 0;
}

QByteArray fileWith(const QByteArray &rows)
{
    return "T\nF1\nAngle,Power\n" + rows;
}

} // namespace

class TestCurveText : public QObject
{
    Q_OBJECT

private slots:
    void writesTheLayout()
    {
        const Points points{{0, -3.5}, {90, 12}};
        QCOMPARE(CurveText::toFile(QStringLiteral("T"), QStringLiteral("F1"), points),
                 QByteArray("T\nF1\nAngle,Power\n0,-3.5\n90,12\n"));
        QCOMPARE(CurveText::toClipboard(QStringLiteral("F1"), points),
                 QStringLiteral("F1\nAngle,Power\n0,-3.5\n90,12\n"));
        // A title or name of two lines would shift all lines below it.
        QCOMPARE(CurveText::toFile(QStringLiteral("a\nb"), QStringLiteral("天\n线"), {}),
                 QByteArray("a b\n天 线\nAngle,Power\n"));
    }

    /// The figures that a reader of the files sees; anyDoubleSurvives() asks Qt about all others.
    void writesNumbers()
    {
        const QString expected = QStringLiteral(
            "12.5 -3 1e-05 0.0001 100000 120000 1e+06 1200000 0.1 1e+22 -1.5e+100 5e-324 0");
        for (const QString &number : expected.split(QLatin1Char(' ')))
            QCOMPARE(CurveText::number(number.toDouble()), number);
    }

    void anyDoubleSurvives()
    {
        QRandomGenerator random(20240611);
        Points points;
        for (int i = 0; i < 20000; ++i) {
            const double wild = fromBits(random.generate64());
            const double tidy =
                std::round(random.bounded(1e9) - 5e8) / std::pow(10.0, random.bounded(12));
            const double round = random.bounded(1000) * std::pow(10.0, random.bounded(130));
            for (const double value : {wild, tidy, round}) {
                if (!std::isfinite(value) || value == 0.0)
                    continue;
                QCOMPARE(CurveText::number(value),
                         QString::number(value, 'g', QLocale::FloatingPointShortest));
                points.append(QPointF(value, -value));
            }
        }
        QVERIFY(points.size() > 50000);
        const QByteArray file = CurveText::toFile({}, QStringLiteral("any"), points);
        QVERIFY(same(CurveText::fromFile(file).points, points));
        QVERIFY(same(CurveText::fromClipboard(CurveText::toClipboard({}, points)).points, points));
    }

    /// Every field reads as by QString::toDouble, whichever path it takes.
    void readsFields()
    {
        const QString fields = QStringLiteral(
            "-1|+1| 1.5 |1.|-.5|1E-3|1e|1e5000|1e-5000|nan|-inf|abc||0x10|1_000|1 "
            "2 3|--1|-|1.2.3|5e-324|-0|00012|1d5|١|"
            "123456789012345678901234567890|2.2250738585072011e-308|9007199254740993|0."
            "500000000000000166533453693773481063544750213623046875");
        for (const QString &field : fields.split(QLatin1Char('|'))) {
            const double value = field.toDouble();
            const Points expected = std::isfinite(value) ? Points{{3, value}} : Points();
            const Points points =
                CurveText::fromFile(fileWith("3," + field.toUtf8() + '\n')).points;
            QVERIFY2(same(points, expected), qPrintable(field));
        }
    }

    void readsFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Points>("points");
        const Points points{{0, -3.5}, {90, 12}};
        const QByteArray plain = fileWith("0,-3.5\n90,12\n");

        QTest::newRow("Windows line ends") << QByteArray(plain).replace("\n", "\r\n") << points;
        QTest::newRow("byte-order mark, no last line feed")
            << QByteArray("\xEF\xBB\xBFT\nF1\nPower and Angle\n0,-3.5\n90,12") << points;
        QTest::newRow("short and empty lines") << fileWith("\n0,-3.5\n7\n\n90,12\n\n") << points;
        QTest::newRow("fields that are no numbers")
            << fileWith(",5\n5,\nAntenna,horn\n1,2,\n") << Points{{0, 5}, {5, 0}, {0, 0}, {1, 2}};
        QTest::newRow("semicolons and decimal commas")
            << QByteArray("T;\r\nF1;\r\nAngle;Power\r\n0;-3,5\r\n90;12;;\r\n;\r\n") << points;
        QTest::newRow("tabs, blanks, quotes") << fileWith("0\t-3,5\n\"90,0\";\"12\"\n1,5   -2.5\n")
                                              << Points{{0, -3.5}, {90, 12}, {1.5, -2.5}};
        QTest::newRow("group separators are no numbers")
            << fileWith("0;1.234,5\n90;12\n") << Points{{0, 0}, {90, 12}};
        QByteArray wide("\xFF\xFE", 2);
        for (const char c : plain)
            wide.append(c).append('\0');
        QTest::newRow("UTF-16") << wide << points;
    }

    void readsFiles()
    {
        QFETCH(const QByteArray, bytes);
        const Curve curve = CurveText::fromFile(bytes);
        QCOMPARE(curve.status, Status::Complete);
        QCOMPARE(curve.name, QStringLiteral("F1"));
        QTEST(curve.points, "points");
    }

    void recognisesEncodings()
    {
        const auto name = [](const QByteArray &bytes, const char *wanted) {
            QString encoding;
            const QByteArray utf8 = CurveText::asUtf8("T\n" + bytes + "\nAngle,Power\n", &encoding);
            return encoding == QLatin1String(wanted) ? CurveText::fromFile(utf8).name : encoding;
        };
        QCOMPARE(name("\xc0\xae\xb0\xc8H\xc3\xe6 10 GHz", "GBK"), QStringLiteral("喇叭H面 10 GHz"));
        QCOMPARE(name("Gr\xf6\xdf"
                      "e 90\xb0",
                      "Windows-1252"),
                 QStringLiteral("Größe 90°"));
        QCOMPARE(name(QStringLiteral("喇叭 90°").toUtf8(), ""), QStringLiteral("喇叭 90°"));
    }

    void refusesFiles()
    {
        for (const char *bytes :
             {"", "T\nAngle,Power\n", "T\nF1\nangle,power\n0,1\n", "T\nF1\nAngle,Level\n0,1\n"}) {
            const Curve curve = CurveText::fromFile(QByteArray(bytes));
            QVERIFY2(curve.status == Status::WrongHeader && curve.points.isEmpty(), bytes);
        }
    }

    void readsPastedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Status>("status");
        QTest::addColumn<QString>("name");
        QTest::addColumn<Points>("points");
        const QString name = QStringLiteral("F1");
        const Points points{{0, -3.5}, {90, 12}};
        const auto row = [](const char *what, const char *text, const QString &curveName,
                            const Points &curvePoints, Status status = Status::Complete) {
            QTest::newRow(what) << QString::fromUtf8(text) << status << curveName << curvePoints;
        };
        row("no header, Windows line ends", "F1\r\n0,-3.5\r\n90,12", name, points);
        row("short lines and infinities", "F1\n\n0,-3.5\nx\n1,inf\n90,12\n", name, points);
        row("a second header is text", "F1\nAngle,Power\n0,-3.5\nAngle,Power\n", name,
            {{0, -3.5}, {0, 0}});
        row("spreadsheet", "F1\t\nAngle\tPower\n0\t-3,5\n90\t12\n", name, points);
        row("numbers alone", "0,-3.5\n90,12\n", {}, points);
        row("numbers as a name", "0,5\nAngle,Power\n0,-3.5\n90,12\n", QStringLiteral("0,5"),
            points);
        row("some sentence", "Antennas\nare nice", QStringLiteral("Antennas"), {}, Status::NoCurve);
        row("addresses of dropped files", "file:///a,b.csv\nfile:///c,d.csv",
            QStringLiteral("file:///a,b.csv"), {{0, 0}}, Status::NoCurve);
    }

    void readsPastedText()
    {
        QFETCH(const QString, text);
        const Curve curve = CurveText::fromClipboard(text);
        QTEST(curve.status, "status");
        QTEST(curve.name, "name");
        QTEST(curve.points, "points");
    }

    void reportsAndCancels()
    {
        QByteArray bytes = fileWith(QByteArray("1.25,-2.5\n").repeated(400000));
        QVector<qint64> reports;
        const Curve whole = CurveText::fromFile(bytes, [&](qint64 done, qint64 total) {
            reports.append(done);
            return total == bytes.size();
        });
        QCOMPARE(whole.points.size(), 400000);
        QCOMPARE(reports.size(), 3);

        int calls = 0;
        const Curve part =
            CurveText::fromFile(bytes, [&calls](qint64, qint64) { return ++calls < 2; });
        QCOMPARE(part.status, Status::Cancelled);
        QVERIFY(part.points.isEmpty());
        QCOMPARE(calls, 2);
    }
};

MZ_GUILESS_TEST(TestCurveText)
#include "tst_curvetext.moc"
