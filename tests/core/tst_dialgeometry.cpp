#include "widgets/dialgeometry.h"

#include "testmain.h"

#include <limits>

using DialGeometry::Scale;

namespace {

Scale scaleOf(double min, double max)
{
    Scale scale;
    scale.min = min;
    scale.max = max;
    return scale;
}

} // namespace

class TestDialGeometry : public QObject
{
    Q_OBJECT

private slots:
    void needleTurn_data();
    void needleTurn();
    void rampColor();
    void numberTexts();
    void textPositions_data();
    void textPositions();
    void rangeEnds();
    void truncated();
};

void TestDialGeometry::needleTurn_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("turn");
    const double infinity = std::numeric_limits<double>::infinity();

    QTest::newRow("start of the scale") << 0.0 << 360.0 << 0.0 << 0.0;
    QTest::newRow("value of a new gauge rests at the lower stop")
        << 0.0 << 360.0 << -100.0 << -40.0;
    QTest::newRow("a little below the scale") << 0.0 << 280.0 << -39.0 << -39.0;
    QTest::newRow("a little above the scale") << 0.0 << 280.0 << 319.0 << 319.0;
    QTest::newRow("far above stops at the upper stop") << 0.0 << 280.0 << 321.0 << 320.0;
    QTest::newRow("no end of power") << 0.0 << 280.0 << infinity << 320.0;
    QTest::newRow("scale from high to low") << 20.0 << -60.0 << 0.0 << 70.0;
    QTest::newRow("scale without extent, value above") << 5.0 << 5.0 << 6.0 << 320.0;
}

void TestDialGeometry::needleTurn()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(double, turn);
    QVERIFY(qAbs(DialGeometry::needleTurn(scaleOf(min, max), value) - turn) < 1e-9);
}

void TestDialGeometry::rampColor()
{
    const int expected[][4] = {{0, 50, 0, 255}, {1, 280, 0, 254}, {140, 280, 127, 127}};
    for (const auto &[index, count, red, blue] : expected) {
        const auto color = DialGeometry::rampColor(index, count);
        QCOMPARE(color.red, red);
        QCOMPARE(color.green, 0);
        QCOMPARE(color.blue, blue);
    }
}

void TestDialGeometry::numberTexts()
{
    QStringList texts;
    for (int i = 0; i <= 10; ++i)
        texts << DialGeometry::numberText(scaleOf(-7.0, 0.0), i);
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("-7 -6 -6 -5 -4 -4 -3 -2 -1 -1 0"));
}

void TestDialGeometry::textPositions_data()
{
    QTest::addColumn<int>("index"); // a division of the scale; -1 for a label of the overlay
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("characters");
    QTest::addColumn<QPoint>("position");

    // Worked out by hand for a text of 20 by 10 units: the anchor at radius 75 or 40, less half the
    // width, plus a quarter of the height, the nudges, the fractions cut.
    QTest::newRow("lower left, long") << 0 << 0 << 3 << QPoint(-56, 61);
    QTest::newRow("lower right, short") << 10 << 0 << 2 << QPoint(38, 59);
    QTest::newRow("lower right, long") << 10 << 0 << 3 << QPoint(36, 61);
    QTest::newRow("overlay at the start, long") << -1 << 0 << 3 << QPoint(-33, 35);
    QTest::newRow("overlay upper right, long") << -1 << 270 << 3 << QPoint(25, -12);
    QTest::newRow("overlay at the end, short") << -1 << 360 << 2 << QPoint(15, 33);
}

void TestDialGeometry::textPositions()
{
    QFETCH(int, index);
    QFETCH(int, number);
    QFETCH(int, characters);
    const QSize size(20, 10);
    const Scale scale;
    const QPoint position = index >= 0
                                ? DialGeometry::numberPosition(scale, index, characters, size)
                                : DialGeometry::rangeLabelPosition(scale, number, characters, size);
    QTEST(position, "position");
}

void TestDialGeometry::rangeEnds()
{
    const auto angle = [](double min, double max, double value) {
        return DialGeometry::rangeEnd(scaleOf(min, max), value).angle;
    };
    QCOMPARE(angle(0, 360, 360), -60.0);
    QCOMPARE(angle(-40, 20, -10), 90.0);
    // What is not written as a whole number counts as 0.
    QCOMPARE(angle(0, 360, 12.5), 240.0);
    QCOMPARE(angle(0, 2e6, 1e6), 240.0);
    QCOMPARE(DialGeometry::rangeEnd(scaleOf(0, 2e6), 1e6).text, QStringLiteral("1e+06"));
}

void TestDialGeometry::truncated()
{
    QCOMPARE(DialGeometry::truncated(1.9), 1);
    QCOMPARE(DialGeometry::truncated(-1.9), -1);
    // A scale without extent leads to these.
    QCOMPARE(DialGeometry::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
    QCOMPARE(DialGeometry::truncated(-std::numeric_limits<double>::infinity()), 0);
    QCOMPARE(DialGeometry::truncated(1e300), 0);
}

MZ_TEST_GUILESS_MAIN(TestDialGeometry)
#include "tst_dialgeometry.moc"
