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
    void rampColor_data();
    void rampColor();
    void numberTexts_data();
    void numberTexts();
    void textPositions_data();
    void textPositions();
    void rangeEnds_data();
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
    QTest::newRow("middle of the scale") << 0.0 << 360.0 << 180.0 << 140.0;
    QTest::newRow("end of the scale") << 0.0 << 360.0 << 360.0 << 280.0;
    QTest::newRow("value of a new gauge rests at the lower stop")
        << 0.0 << 360.0 << -100.0 << -40.0;
    QTest::newRow("a little below the scale") << 0.0 << 280.0 << -39.0 << -39.0;
    QTest::newRow("a little above the scale") << 0.0 << 280.0 << 319.0 << 319.0;
    QTest::newRow("far above stops at the upper stop") << 0.0 << 280.0 << 321.0 << 320.0;
    QTest::newRow("no end of power") << 0.0 << 280.0 << infinity << 320.0;
    QTest::newRow("power levels below zero") << -60.0 << 20.0 << -20.0 << 140.0;
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

void TestDialGeometry::rampColor_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("blue");

    QTest::newRow("first tick is blue") << 0 << 50 << 0 << 255;
    QTest::newRow("first arc is nearly blue") << 1 << 280 << 0 << 254;
    QTest::newRow("middle arc") << 140 << 280 << 127 << 127;
    QTest::newRow("last arc is red") << 280 << 280 << 255 << 0;
}

void TestDialGeometry::rampColor()
{
    QFETCH(int, index);
    QFETCH(int, count);
    const auto color = DialGeometry::rampColor(index, count);
    QTEST(color.red, "red");
    QCOMPARE(color.green, 0);
    QTEST(color.blue, "blue");
}

void TestDialGeometry::numberTexts_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("texts");

    QTest::newRow("new gauge") << 0.0 << 360.0 << "0 36 72 108 144 180 216 252 288 324 360";
    QTest::newRow("power levels") << -60.0 << 20.0 << "-60 -52 -44 -36 -28 -20 -12 -4 4 12 20";
    QTest::newRow("rounded to whole numbers") << 0.0 << 7.0 << "0 1 1 2 3 4 4 5 6 6 7";
    QTest::newRow("scale without extent") << 5.0 << 5.0 << "5 5 5 5 5 5 5 5 5 5 5";
}

void TestDialGeometry::numberTexts()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QStringList texts;
    for (int i = 0; i <= 10; ++i)
        texts << DialGeometry::numberText(scaleOf(min, max), i);
    QTEST(texts.join(QLatin1Char(' ')), "texts");
}

void TestDialGeometry::textPositions_data()
{
    QTest::addColumn<int>("index"); // a division of the scale; -1 for a label of the overlay
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("characters");
    QTest::addColumn<QPoint>("position");

    // Worked out by hand for a text of 20 by 10 units: the anchor at radius 75 or 40, less half the
    // width, plus a quarter of the height, the nudges, the fractions cut.
    QTest::newRow("lower left, short") << 0 << 0 << 2 << QPoint(-58, 59);
    QTest::newRow("lower left, long") << 0 << 0 << 3 << QPoint(-56, 61);
    QTest::newRow("upper left, long") << 3 << 0 << 3 << QPoint(-70, -40);
    QTest::newRow("lower right, short") << 10 << 0 << 2 << QPoint(38, 59);
    QTest::newRow("lower right, long") << 10 << 0 << 3 << QPoint(36, 61);
    QTest::newRow("overlay at the start, short") << -1 << 0 << 2 << QPoint(-35, 33);
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

void TestDialGeometry::rangeEnds_data()
{
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("angle");

    QTest::newRow("start of the scale") << 360.0 << 0.0 << "0" << 0 << 240.0;
    QTest::newRow("quarter") << 360.0 << 90.0 << "90" << 90 << 165.0;
    QTest::newRow("end of the scale") << 360.0 << 360.0 << "360" << 360 << -60.0;
    QTest::newRow("a fraction counts as 0") << 360.0 << 12.5 << "12.5" << 0 << 240.0;
    QTest::newRow("an exponent counts as 0") << 2e6 << 1e6 << "1e+06" << 0 << 240.0;
}

void TestDialGeometry::rangeEnds()
{
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(double, angle);
    const auto end = DialGeometry::rangeEnd(scaleOf(0.0, max), value);
    QTEST(end.text, "text");
    QTEST(end.number, "number");
    QVERIFY(qAbs(end.angle - angle) < 1e-9);

    const auto shifted = DialGeometry::rangeEnd(scaleOf(-40.0, 20.0), -10.0);
    QVERIFY2(qAbs(shifted.angle - 90.0) < 1e-9, "the middle of a scale that starts below zero");
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
