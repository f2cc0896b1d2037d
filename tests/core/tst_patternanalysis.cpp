#include "2d/patternanalysis.h"
#include "2d/viewrange.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <algorithm>

using Points = QVector<QPointF>;
using Pair = QPair<double, double>;

Q_DECLARE_METATYPE(PatternLine)
Q_DECLARE_METATYPE(ViewRange)

namespace {

constexpr std::array<Pair ParaInfo::*, 10> allFigures{
    &ParaInfo::gain,
    &ParaInfo::halfPowerLeft,
    &ParaInfo::halfPowerRight,
    &ParaInfo::firstNullLeft,
    &ParaInfo::firstNullRight,
    &ParaInfo::firstSideLobeLeft,
    &ParaInfo::firstSideLobeRight,
    &ParaInfo::backLobe,
    &ParaInfo::axialRatio,
    &ParaInfo::crossPolarRatio,
};

/// Levels on the angles 0, 10, 20, ... degrees.
Points every10Degrees(const QVector<double> &levels, double first = 0.0)
{
    Points points;
    for (int i = 0; i < levels.size(); ++i)
        points.append(QPointF(first + 10.0 * i, levels[i]));
    return points;
}

} // namespace

class TestPatternAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void ignoresTheOrderOfPoints();
    void findsFigures_data();
    void findsFigures();
    void placesLines_data();
    void placesLines();
    void drawsNoLineForWhatIsMissing();
};

/// Angles that ascend take a road of their own; the back lobe alone goes by the curve's order.
void TestPatternAnalysis::ignoresTheOrderOfPoints()
{
    QRandomGenerator random(6218);
    for (int round = 0; round < 500; ++round) {
        Points curve;
        const int size = 1 + random.bounded(40);
        for (int i = 0; i < size; ++i) // levels in steps of a tenth: ties and plateaus
            curve.append(QPointF(360.0 * i / size - 180.0, random.bounded(60) * 0.1));
        const auto ascending = analysePattern(curve);
        std::shuffle(curve.begin(), curve.end(), random);
        const auto shuffled = analysePattern(curve);
        QVERIFY(ascending && shuffled);
        for (const auto figure : allFigures) {
            if (figure != &ParaInfo::backLobe)
                QCOMPARE(shuffled->figures.*figure, ascending->figures.*figure);
        }
    }
}

void TestPatternAnalysis::findsFigures_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("figure");
    QTest::addColumn<Pair>("expected");
    const auto row = [](const char *name, const Points &points, int figure, Pair expected) {
        QTest::newRow(name) << points << figure << expected;
    };
    enum { Gain, HalfLeft, HalfRight, NullLeft, NullRight, LobeLeft, LobeRight, Back, Axial };

    const Points lobes = every10Degrees({-9, -4, -12, -6, 0, -6, -13, -5, -8}, -40);
    row("gain", lobes, Gain, {0, 0});
    row("half power left between two points", lobes, HalfLeft, {-5, -3});
    row("half power right between two points", lobes, HalfRight, {5, -3});
    row("null left", lobes, NullLeft, {-20, -12});
    row("null right", lobes, NullRight, {20, -13});
    row("side lobe left", lobes, LobeLeft, {-30, -4});
    row("side lobe right", lobes, LobeRight, {30, -5});
    row("no back lobe in a half circle", lobes, Back, {-100, -100});
    row("axial ratio", lobes, Axial, {0, 13});

    const Points falling = every10Degrees({0, -4, -9, -6, -12});
    row("peak first: null left is the peak", falling, NullLeft, {0, 0});
    row("peak first: side lobe left is the peak", falling, LobeLeft, {0, 0});
    row("peak first: no half power left, level kept apart", falling, HalfLeft, {0, -100});
    row("peak first: both half-power angles go", falling, HalfRight, {0, -3});
    const Points rising = every10Degrees({-12, -6, -9, -4, 0});
    row("peak last: null right is the peak", rising, NullRight, {40, 0});
    row("peak last: side lobe right", rising, LobeRight, {10, -6});
    row("peak last: no half power right, level kept apart", rising, HalfRight, {0, 10000});
    row("peak last: both half-power angles go", rising, HalfLeft, {0, -3});

    const Points early = every10Degrees({-40, 0, -40, -50});
    row("crossing left of index 1 is interpolated", early, HalfLeft, {9.25, -3});
    row("crossing at index 2 is interpolated", early, HalfRight, {10.75, -3});
    const Points flatPeak = {{-10, -20}, {0, -20}, {0, 0}, {10, -20}};
    row("equal angles are not interpolated", flatPeak, HalfLeft, {0, -3});
    row("crossing right at index 1 is that point's angle", every10Degrees({0, -40, -41}), HalfRight,
        {0, -3});

    row("the peak of a plateau is its lowest angle", every10Degrees({-9, 5, 5, 5, -9}), Gain,
        {10, 5});
    row("a level met twice misleads the left side lobe",
        every10Degrees({-3, -12, -5, -20, -4, -12, 0, -12}), LobeLeft, {0, -3});
    row("a level left of the peak does not mislead the right one",
        every10Degrees({-3, -12, -5, 0, -12, -4, -20}), LobeRight, {50, -4});

    const Points plateaus = every10Degrees({-3, -5, -5, -12, -12, 0, -12, -12, -5, -5, -3});
    row("equal levels end the fall to the left null", plateaus, NullLeft, {40, -12});
    row("equal levels end the fall to the right null", plateaus, NullRight, {60, -12});
    row("equal levels end the rise to the left side lobe", plateaus, LobeLeft, {20, -5});
    row("equal levels end the rise to the right side lobe", plateaus, LobeRight, {80, -5});

    row("back of a peak at 0 is +180", {{-180, -30}, {0, 0}, {180, -20}}, Back, {180, -20});
    row("back of a peak at 10 is -170", {{-180, -30}, {-160, -10}, {10, 0}}, Back, {-170, -20});
    const double slope = -30.0 / -190.0;
    row("back in the curve's own order", {{10, 0}, {-180, -30}, {-160, -10}}, Back,
        {-170, 0 - 10 * slope + slope * -170});
    row("back between equal angles", {{-170, -8}, {-170, -9}, {10, 0}}, Back, {-170, -9});
    row("one point alone", {{7, -2}}, LobeRight, {7, -2});
}

void TestPatternAnalysis::findsFigures()
{
    QFETCH(const Points, points);
    QFETCH(const int, figure);
    const auto analysis = analysePattern(points);
    QVERIFY(analysis.has_value());
    const Pair actual = analysis->figures.*allFigures[static_cast<std::size_t>(figure)];
    QTEST(actual, "expected");
}

void TestPatternAnalysis::placesLines_data()
{
    QTest::addColumn<ViewRange>("axes");
    QTest::addColumn<PatternLine>("line");
    QTest::addColumn<QLineF>("expected");
    const ViewRange all{-180, 180, -40, 10};
    const auto row = [](const char *name, const ViewRange &axes, PatternLine line,
                        QLineF expected) { QTest::newRow(name) << axes << line << expected; };
    row("peak from the lower end of the axis", all, PatternLine::Peak, {0, -40, 0, 0});
    row("half power right", all, PatternLine::HalfPowerRight, {5, -40, 5, -3});
    row("half-power level", all, PatternLine::HalfPowerLevel, {-5, -3, 5, -3});
    row("side lobe left", all, PatternLine::SideLobeLeft, {-30, -40, -30, -4});
    row("side lobe right", all, PatternLine::SideLobeRight, {30, -40, 30, -5});
    row("on the limits counts as inside", {0, 30, -5, 0}, PatternLine::SideLobeRight,
        {30, -5, 30, -5});
    row("peak above the axis", {-180, 180, -40, -1}, PatternLine::Peak, {});
    row("one end of the level outside", {-4, 180, -40, 10}, PatternLine::HalfPowerLevel, {});
    row("the other half-power line stays", {-4, 180, -40, 10}, PatternLine::HalfPowerRight,
        {5, -40, 5, -3});
}

void TestPatternAnalysis::placesLines()
{
    QFETCH(const ViewRange, axes);
    QFETCH(const PatternLine, line);
    const auto analysis =
        analysePattern(every10Degrees({-9, -4, -12, -6, 0, -6, -13, -5, -8}, -40));
    QTEST(patternLine(line, analysis->lines, axes).value_or(QLineF()), "expected");
}

void TestPatternAnalysis::drawsNoLineForWhatIsMissing()
{
    QVERIFY(!analysePattern({}));
    const auto analysis = analysePattern(every10Degrees({0, -4, -9}, -100));
    const ViewRange axes{-20000, 20000, -20000, 20000};
    QVERIFY(!patternLine(PatternLine::HalfPowerLeft, analysis->lines, axes));
    QVERIFY(!patternLine(PatternLine::HalfPowerLevel, analysis->lines, axes));
    QCOMPARE(patternLine(PatternLine::HalfPowerRight, analysis->lines, axes),
             std::optional<QLineF>(QLineF(-90, -20000, -90, -3)));
}

MZ_TEST_GUILESS_MAIN(TestPatternAnalysis)
#include "tst_patternanalysis.moc"
