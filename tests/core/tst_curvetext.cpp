#include "2d/curvetext.h"
#include "testmain.h"

#include <QLocale>
#include <QRandomGenerator>

#include <cmath>
#include <cstring>
#include <limits>

using CurveText::Curve;
using CurveText::Status;
using Points = QVector<QPointF>;

Q_DECLARE_METATYPE(CurveText::Status)

namespace {

quint64 bits(double value)
{
    quint64 pattern = 0;
    std::memcpy(&pattern, &value, sizeof pattern);
    return pattern;
}

double fromBits(quint64 pattern)
{
    double value = 0.0;
    std::memcpy(&value, &pattern, sizeof value);
    return value;
}

/// Exact, where QPointF compares fuzzily.
bool same(const Points &a, const Points &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const QPointF &p, const QPointF &q) {
                          return bits(p.x()) == bits(q.x()) && bits(p.y()) == bits(q.y());
                      });
}

QByteArray fileWith(const QByteArray &rows)
{
    return "T\nF1\nAngle,Power\n" + rows;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

class TestCurveText : public QObject
{
    Q_OBJECT

private slots:
    void writesTheLayout();
    void writesNumbersLikeQt_data();
    void writesNumbersLikeQt();
    void anyDoubleSurvives();
    void keepsNamesOnOneLine();
    void readsFields_data();
    void readsFields();
    void readsFiles_data();
    void readsFiles();
    void refusesFiles_data();
    void refusesFiles();
    void readsPastedText_data();
    void readsPastedText();
    void reportsAndCancels();
};

void TestCurveText::writesTheLayout()
{
    const Points points{{0, -3.5}, {90, 12}};
    QCOMPARE(CurveText::toFile(QStringLiteral("T"), QStringLiteral("F1"), points),
             QByteArray("T\nF1\nAngle,Power\n0,-3.5\n90,12\n"));
    QCOMPARE(CurveText::toClipboard(QStringLiteral("F1"), points),
             QStringLiteral("F1\nAngle,Power\n0,-3.5\n90,12\n"));
    QCOMPARE(CurveText::toFile({}, QStringLiteral("天线"), {}),
             QStringLiteral("\n天线\nAngle,Power\n").toUtf8());
}

void TestCurveText::writesNumbersLikeQt_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](double value, const char *text) {
        QTest::newRow(text) << value << QString::fromLatin1(text);
    };
    row(12.5, "12.5");
    row(-3, "-3");
    row(1e-5, "1e-05");
    row(0.0001, "0.0001");
    row(100000, "100000");
    row(120000, "120000");
    row(1e6, "1e+06");
    row(1.2e6, "1200000");
    row(123456789012345680.0, "123456789012345680");
    row(0.1, "0.1");
    row(1e22, "1e+22");
    row(-1.5e100, "-1.5e+100");
    row(5e-324, "5e-324");
    row(std::numeric_limits<double>::max(), "1.7976931348623157e+308");
    row(0, "0");
}

void TestCurveText::writesNumbersLikeQt()
{
    QFETCH(const double, value);
    QTEST(CurveText::number(value), "text");
    QCOMPARE(CurveText::number(value), QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void TestCurveText::anyDoubleSurvives()
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

void TestCurveText::keepsNamesOnOneLine()
{
    const Points points{{1, 2}};
    const Curve curve = CurveText::fromFile(
        CurveText::toFile(QStringLiteral("two\nlines"), QStringLiteral("a\r\nb"), points));
    QCOMPARE(curve.status, Status::Complete);
    QCOMPARE(curve.title, QStringLiteral("two lines"));
    QCOMPARE(curve.name, QStringLiteral("a  b"));
    QCOMPARE(curve.points, points);
}

void TestCurveText::readsFields_data()
{
    QTest::addColumn<QString>("field");
    const char *const fields[]{
        "1",
        "-1",
        "+1",
        " 1.5 ",
        "\t7",
        "1.",
        ".5",
        "-.5",
        "1e3",
        "1E-3",
        "1e+3",
        "1e",
        "1e5000",
        "-1e5000",
        "1e-5000",
        "nan",
        "inf",
        "-inf",
        "abc",
        "",
        " ",
        "0x10",
        "1_000",
        "1 2",
        "--1",
        "-",
        "1.2.3",
        "5e-324",
        "2e-310",
        "0.1",
        "-0",
        "00012",
        "infinity",
        "1d5",
        "١",
        "1\"",
        "123456789012345678901234567890",
        "2.2250738585072011e-308",
        "9007199254740993",
        "0.500000000000000166533453693773481063544750213623046875",
    };
    for (const char *field : fields)
        QTest::addRow("[%s]", field) << QString::fromUtf8(field);
}

void TestCurveText::readsFields()
{
    QFETCH(const QString, field);
    const double expected = field.toDouble();
    const Points points = CurveText::fromFile(fileWith("3," + field.toUtf8() + '\n')).points;
    if (!std::isfinite(expected)) {
        QVERIFY(points.isEmpty());
        return;
    }
    QCOMPARE(points.size(), 1);
    QCOMPARE(bits(points.first().y()), bits(expected));
}

void TestCurveText::readsFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Points>("points");
    const QString name = QStringLiteral("F1");
    const Points points{{0, -3.5}, {90, 12}};
    const QByteArray plain = fileWith("0,-3.5\n90,12\n");

    QTest::newRow("as written") << plain << name << points;
    QTest::newRow("Windows line ends") << QByteArray(plain).replace("\n", "\r\n") << name << points;
    QTest::newRow("byte-order mark")
        << QByteArray("\xEF\xBB\xBF\nF1\nAngle,Power\n0,-3.5\n90,12\n") << name << points;
    QTest::newRow("mark on a file that starts with the name's line feed")
        << QByteArray("\xEF\xBB\xBFT\nF1\nPower and Angle\n0,-3.5\n90,12") << name << points;
    QTest::newRow("no last line feed") << plain.chopped(1) << name << points;
    QTest::newRow("header alone") << fileWith("") << name << Points();
    QTest::newRow("header alone, unended") << fileWith("").chopped(1) << name << Points();
    QTest::newRow("row of text") << fileWith("0,-3.5\nAntenna,horn\n90,12\n") << name
                                 << Points{{0, -3.5}, {0, 0}, {90, 12}};
    QTest::newRow("more fields") << fileWith("0,-3.5,x,y\n90,12,\n") << name << points;
    QTest::newRow("short and empty lines")
        << fileWith("\n0,-3.5\n7\n\n90,12\n\n") << name << points;
    QTest::newRow("empty fields") << fileWith(",5\n5,\n,\n") << name
                                  << Points{{0, 5}, {5, 0}, {0, 0}};
    QTest::newRow("NaN and infinities")
        << fileWith("nan,1\n0,-3.5\n1,inf\n-inf,2\n1,1e999\n90,12\n") << name << points;
    QTest::newRow("decimal commas") << fileWith("0,5;-3,2\n") << name << Points{{0, 0}};
    QTest::newRow("empty name") << QByteArray("T\n\nAngle Power\n1,2\n") << QString()
                                << Points{{1, 2}};
    QTest::newRow("name in Chinese") << QStringLiteral("图\n天线 一\nAngle,Power\n1,2\n").toUtf8()
                                     << QStringLiteral("天线 一") << Points{{1, 2}};
    const QString text = QString::fromLatin1(plain);
    QByteArray wide("\xFF\xFE", 2);
    for (const QChar c : text)
        wide.append(char(c.cell())).append(char(c.row()));
    QTest::newRow("UTF-16") << wide << name << points;
}

void TestCurveText::readsFiles()
{
    QFETCH(const QByteArray, bytes);
    const Curve curve = CurveText::fromFile(bytes);
    QCOMPARE(curve.status, Status::Complete);
    QTEST(curve.name, "name");
    QTEST(curve.points, "points");
}

void TestCurveText::refusesFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one line") << QByteArray("Angle,Power");
    QTest::newRow("two lines") << QByteArray("T\nAngle,Power\n");
    QTest::newRow("lower case") << QByteArray("T\nF1\nangle,power\n0,1\n");
    QTest::newRow("one of the words") << QByteArray("T\nF1\nAngle,Level\n0,1\n");
    QTest::newRow("header a line late") << QByteArray("T\nF1\n\nAngle,Power\n0,1\n");
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\1\n\0\n\xff\n",
                                          12);
}

void TestCurveText::refusesFiles()
{
    QFETCH(const QByteArray, bytes);
    const Curve curve = CurveText::fromFile(bytes);
    QCOMPARE(curve.status, Status::WrongHeader);
    QVERIFY(curve.points.isEmpty());
}

void TestCurveText::readsPastedText_data()
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
    row("as copied", "F1\nAngle,Power\n0,-3.5\n90,12\n", name, points);
    row("Windows line ends", "F1\r\nAngle,Power\r\n0,-3.5\r\n90,12", name, points);
    row("no header", "F1\n0,-3.5\n90,12\n", name, points);
    row("name with a comma", "2,4 GHz\nAngle,Power\n0,-3.5\n90,12\n", QStringLiteral("2,4 GHz"),
        points);
    row("name and header alone", "F1\nAngle,Power\n", name, {});
    row("short lines and infinities", "F1\n\n0,-3.5\nx\n1,inf\n90,12\n", name, points);
    row("a second header is text", "F1\nAngle,Power\n0,-3.5\nAngle,Power\n", name,
        {{0, -3.5}, {0, 0}});
    row("spreadsheet", "F1\t\nAngle\tPower\n0\t-3.5\n90\t12\n", name, points);
    row("spreadsheet without name", "Angle\tPower\r\n0\t-3.5\r\n90\t12\r\n", {}, points);
    row("spreadsheet's bare columns", "0\t-3.5\n90\t12\n", {}, points);
    row("spreadsheet with decimal commas", "F1\t\n0\t-3,5\n90\t12\n", name, points);
    row("some sentence", "Antennas\nare nice", QStringLiteral("Antennas"), {}, Status::NoCurve);
    row("addresses of dropped files", "file:///a,b.csv\nfile:///c,d.csv",
        QStringLiteral("file:///a,b.csv"), {{0, 0}}, Status::NoCurve);
}

void TestCurveText::readsPastedText()
{
    QFETCH(const QString, text);
    const Curve curve = CurveText::fromClipboard(text);
    QTEST(curve.status, "status");
    QTEST(curve.name, "name");
    QTEST(curve.points, "points");
}

void TestCurveText::reportsAndCancels()
{
    QByteArray bytes = fileWith(QByteArray("1.25,-2.5\n").repeated(400000));
    QVector<qint64> reports;
    const Curve whole = CurveText::fromFile(bytes, [&](qint64 done, qint64 total) {
        reports.append(done);
        return total == bytes.size();
    });
    QCOMPARE(whole.points.size(), 400000);
    QCOMPARE(reports.size(), 3);
    QVERIFY(std::is_sorted(reports.begin(), reports.end()) && reports.last() <= bytes.size());

    int calls = 0;
    const Curve part = CurveText::fromFile(bytes, [&calls](qint64, qint64) { return ++calls < 2; });
    QCOMPARE(part.status, Status::Cancelled);
    QVERIFY(part.points.isEmpty());
    QCOMPARE(calls, 2);
}

MZ_TEST_GUILESS_MAIN(TestCurveText)
#include "tst_curvetext.moc"
