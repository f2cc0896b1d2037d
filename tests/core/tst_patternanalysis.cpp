#include "2d/data/patternanalysis.h"
#include "2d/data/viewrange.h"
#include "testmain.h"

using Points = QVector<QPointF>;
using Pair = QPair<double, double>;

namespace {

ParaInfo figuresOf(const Points &points)
{
    return analysePattern(points)->figures;
}

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
    void findsFigures()
    {
        const ParaInfo inner =
            figuresOf(every10Degrees({-9, -4, -12, -6, 0, -6, -13, -5, -8}, -40));
        QCOMPARE(inner.gain, Pair(0, 0));
        QCOMPARE(inner.halfPowerLeft, Pair(-5, -3));
        QCOMPARE(inner.halfPowerRight, Pair(5, -3));
        QCOMPARE(inner.firstNullLeft, Pair(-20, -12));
        QCOMPARE(inner.firstNullRight, Pair(20, -13));
        QCOMPARE(inner.firstSideLobeLeft, Pair(-30, -4));
        QCOMPARE(inner.firstSideLobeRight, Pair(30, -5));
        QCOMPARE(inner.backLobe, Pair(-100, -100)); // a half circle has none
        QCOMPARE(inner.axialRatio, Pair(0, 13));
        QCOMPARE(inner.crossPolarRatio, Pair(0, 0)); // stays open
    }

    void keepsItsOddities()
    {
        const ParaInfo falling = figuresOf(every10Degrees({0, -4, -9, -6, -12}));
        QCOMPARE(falling.firstNullLeft, Pair(0, 0));
        QCOMPARE(falling.firstSideLobeLeft, Pair(0, 0));
        QCOMPARE(falling.halfPowerLeft, Pair(0, -100));
        QCOMPARE(falling.halfPowerRight, Pair(0, -3)); // both angles go when one is missing
        const ParaInfo rising = figuresOf(every10Degrees({-12, -6, -9, -4, 0}));
        QCOMPARE(rising.firstNullRight, Pair(40, 0));
        QCOMPARE(rising.halfPowerRight, Pair(0, 10000));
        QCOMPARE(rising.halfPowerLeft, Pair(0, -3));

        // Half-power crossings: interpolated, but neither between equal angles nor at index 1.
        QCOMPARE(figuresOf(every10Degrees({-40, 0, -40, -50})).halfPowerLeft, Pair(9.25, -3));
        QCOMPARE(figuresOf({{-9, -20}, {0, -20}, {0, 0}, {9, -20}}).halfPowerLeft, Pair(0, -3));
        QCOMPARE(figuresOf(every10Degrees({0, -40, -41})).halfPowerRight, Pair(0, -3));
        // The peak of a plateau is its lowest angle.
        QCOMPARE(figuresOf(every10Degrees({-9, 5, 5, 5, -9})).gain, Pair(10, 5));
        // A level met twice misleads the left side lobe, and only that.
        const Points twice = every10Degrees({-3, -12, -5, -20, -4, -12, 0, -12});
        QCOMPARE(figuresOf(twice).firstSideLobeLeft, Pair(0, -3));
        const Points twiceRight = every10Degrees({-3, -12, -5, 0, -12, -4, -20});
        QCOMPARE(figuresOf(twiceRight).firstSideLobeRight, Pair(50, -4));

        QCOMPARE(figuresOf({{-180, -30}, {-160, -10}, {10, 0}}).backLobe, Pair(-170, -20));
        // In the curve's own order, so that the first segment over the angle counts.
        const double slope = -30.0 / -190.0;
        QCOMPARE(figuresOf({{10, 0}, {-180, -30}, {-160, -10}}).backLobe,
                 Pair(-170, 0 - 10 * slope + slope * -170));
        QCOMPARE(figuresOf({{-170, -8}, {-170, -9}, {10, 0}}).backLobe, Pair(-170, -9));
        QCOMPARE(figuresOf({{-180, -30}, {0, 0}, {180, -20}}).backLobe, Pair(180, -20));
        QCOMPARE(figuresOf({{7, -2}}).firstSideLobeRight, Pair(7, -2));
    }

    void placesLines()
    {
        const auto line = [](PatternLine which, const ViewRange &axes) {
            const Points points = every10Degrees({-9, -4, -12, -6, 0, -6, -13, -5, -8}, -40);
            return patternLine(which, analysePattern(points)->lines, axes).value_or(QLineF());
        };
        const ViewRange all{-180, 180, -40, 10};
        QCOMPARE(line(PatternLine::Peak, all), QLineF(0, -40, 0, 0));
        QCOMPARE(line(PatternLine::HalfPowerLeft, all), QLineF(-5, -40, -5, -3));
        QCOMPARE(line(PatternLine::HalfPowerRight, all), QLineF(5, -40, 5, -3));
        QCOMPARE(line(PatternLine::HalfPowerLevel, all), QLineF(-5, -3, 5, -3));
        QCOMPARE(line(PatternLine::SideLobeLeft, all), QLineF(-30, -40, -30, -4));
        QCOMPARE(line(PatternLine::SideLobeRight, all), QLineF(30, -40, 30, -5));
        QCOMPARE(line(PatternLine::SideLobeRight, {0, 30, -5, 0}), QLineF(30, -5, 30, -5));
        QCOMPARE(line(PatternLine::Peak, {-180, 180, -40, -1}), QLineF());
        QCOMPARE(line(PatternLine::Peak, {1, 180, -40, 10}), QLineF());
        QCOMPARE(line(PatternLine::HalfPowerLevel, {-4, 180, -40, 10}), QLineF());
    }

    void drawsNoLineForWhatIsMissing()
    {
        const auto analysis = analysePattern(every10Degrees({0, -4, -9}, -100));
        const ViewRange axes{-20000, 20000, -20000, 20000};
        QVERIFY(!analysePattern({}));
        QVERIFY(!patternLine(PatternLine::HalfPowerLeft, analysis->lines, axes));
        QVERIFY(!patternLine(PatternLine::HalfPowerLevel, analysis->lines, axes));
        QCOMPARE(patternLine(PatternLine::HalfPowerRight, analysis->lines, axes),
                 std::optional<QLineF>(QLineF(-90, -20000, -90, -3)));
    }
};

MZ_GUILESS_TEST(TestPatternAnalysis)
#include "tst_patternanalysis.moc"
