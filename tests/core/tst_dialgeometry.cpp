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
    void needleTurn()
    {
        const auto turn = [](double min, double max, double value) {
            return DialGeometry::needleTurn(scaleOf(min, max), value);
        };
        QCOMPARE(turn(0, 360, 0), 0.0);
        QCOMPARE(turn(0, 360, -100), -40.0); // where a new gauge rests: at the lower stop
        QCOMPARE(turn(0, 280, -39), -39.0);
        QCOMPARE(turn(0, 280, 319), 319.0);
        QCOMPARE(turn(0, 280, std::numeric_limits<double>::infinity()), 320.0);
        QCOMPARE(turn(20, -60, 0), 70.0);
        QCOMPARE(turn(5, 5, 6), 320.0); // above a scale without extent
    }

    void rampColor()
    {
        const int expected[][4] = {{0, 50, 0, 255}, {1, 280, 0, 254}, {140, 280, 127, 127}};
        for (const auto &[index, count, red, blue] : expected) {
            const auto color = DialGeometry::rampColor(index, count);
            QCOMPARE(color.red, red);
            QCOMPARE(color.green, 0);
            QCOMPARE(color.blue, blue);
        }
    }

    void numberTexts()
    {
        QStringList texts;
        for (int i = 0; i <= 10; ++i)
            texts << DialGeometry::numberText(scaleOf(-7.0, 0.0), i);
        QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("-7 -6 -6 -5 -4 -4 -3 -2 -1 -1 0"));
    }

    void textPositions()
    {
        // Worked out by hand for a text of 20 by 10 units: the anchor at radius 75 or 40, less half
        // the width, plus a quarter of the height, the nudges, the fractions cut.
        const auto number = [](int index, int characters) {
            return DialGeometry::numberPosition({}, index, characters, {20, 10});
        };
        QCOMPARE(number(0, 3), QPoint(-56, 61));
        QCOMPARE(number(10, 2), QPoint(38, 59));
        QCOMPARE(number(10, 3), QPoint(36, 61));
        const auto label = [](int value, int characters) {
            return DialGeometry::rangeLabelPosition({}, value, characters, {20, 10});
        };
        QCOMPARE(label(0, 3), QPoint(-33, 35));
        QCOMPARE(label(270, 3), QPoint(25, -12));
        QCOMPARE(label(360, 2), QPoint(15, 33));
    }

    void rangeEnds()
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

    void truncated()
    {
        QCOMPARE(DialGeometry::truncated(1.9), 1);
        QCOMPARE(DialGeometry::truncated(-1.9), -1);
        // A scale without extent leads to these.
        QCOMPARE(DialGeometry::truncated(std::numeric_limits<double>::quiet_NaN()), 0);
        QCOMPARE(DialGeometry::truncated(-std::numeric_limits<double>::infinity()), 0);
        QCOMPARE(DialGeometry::truncated(1e300), 0);
    }
};

MZ_GUILESS_TEST(TestDialGeometry)
#include "tst_dialgeometry.moc"
