#include "2d/data/markjump.h"
#include "2d/data/patternsupplement.h"
#include "2d/data/polarorientation.h"
#include "2d/data/supplementtext.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

using Points = QVector<QPointF>;

namespace {

/// The angle in -180 to 180 degrees.
double around(double angle)
{
    return angle - 360.0 * std::floor((angle + 180.0) / 360.0);
}

/// A main lobe 20 degrees wide at 3 dB and 80 between its nulls, with a side lobe 12 dB down on
/// each side and a back lobe 20 dB down, for directions \a offset degrees off its peak.
double lobedLevel(double offset)
{
    const double off = std::abs(around(offset));
    if (off <= 40.0)
        return -3.0 * off / 10.0 * (off <= 10.0 ? 1.0 : 1.0 + (off - 10.0) / 15.0);
    if (off <= 80.0)
        return -36.0 + 24.0 * (1.0 - std::abs(off - 60.0) / 20.0);
    return off <= 140.0 ? -30.0 : -30.0 + (off - 140.0) / 4.0;
}

Points pattern(double peak, double first, double last, double step = 1.0)
{
    Points points;
    const int count = static_cast<int>(std::round((last - first) / step));
    for (int i = 0; i <= count; ++i)
        points.append(QPointF(first + i * step, lobedLevel(first + i * step - peak)));
    return points;
}

/// To the digits that are left of sums over angles; 999 for a figure that is missing.
float rounded(std::optional<double> figure)
{
    return float(figure.value_or(999));
}

Points withLevels(const QVector<double> &levels, double first, double step)
{
    Points points;
    for (int i = 0; i < levels.size(); ++i)
        points.append(QPointF(first + step * i, levels[i]));
    return points;
}

} // namespace

class TestPatternSupplement : public QObject
{
    Q_OBJECT

private slots:
    void measuresRoundPatterns()
    {
        Points shuffled = pattern(175, -180, 179);
        std::shuffle(shuffled.begin(), shuffled.end(), QRandomGenerator(11));
        Points descending = pattern(12, 0, 360);
        std::reverse(descending.begin(), descending.end());
        Points twice = pattern(-20, 0, 360) + pattern(-20, -180, 0);
        Points incomplete = pattern(100, -180, 179);
        incomplete.remove(40);
        // The peak on the seam and beside it with one end left out, a side lobe over it, other
        // angles.
        for (const Points &points :
             {shuffled, pattern(180, -180, 180), pattern(177, -180, 179), pattern(-110, -180, 180),
              pattern(0, 0, 359), pattern(-179, -180, 179.5, 0.5), descending, twice, incomplete}) {
            const PatternSupplement figures = supplementaryFigures(points);
            QCOMPARE(rounded(figures.halfPowerBeamWidth), 20.0F);
            QCOMPARE(rounded(figures.firstNullBeamWidth), 80.0F);
            QCOMPARE(rounded(figures.sideLobeLevel), -12.0F);
            QCOMPARE(rounded(figures.frontToBackRatio), 20.0F);
        }
    }

    void measuresOpenAndOddPatterns()
    {
        QVERIFY(!supplementaryFigures({}).halfPowerBeamWidth);
        QVERIFY(!supplementaryFigures(pattern(0, -90, 90)).frontToBackRatio);
        QVERIFY(!supplementaryFigures(pattern(0, -30, 90)).firstNullBeamWidth);
        const PatternSupplement cut = supplementaryFigures(pattern(0, -5, 90));
        QVERIFY(!cut.halfPowerBeamWidth);
        QCOMPARE(rounded(cut.sideLobeLevel), -12.0F); // that of the other side

        const auto between = supplementaryFigures({{-179, -31}, {-177, -29}, {0, -9}, {2, 0}});
        QCOMPARE(rounded(between.frontToBackRatio), 30.0F);
        const auto flat = supplementaryFigures(withLevels(QVector<double>(36, 2.0), -180, 10));
        QCOMPARE(rounded(flat.frontToBackRatio), 0.0F);
        const auto shoulder = withLevels({-9, -20, -6, -6, 0, -6, -6, -20, -9}, -80, 20);
        QCOMPARE(rounded(supplementaryFigures(shoulder).firstNullBeamWidth), 120.0F);
        const auto oneNull = withLevels({-40, -12, -6, -1, 0, -1, -6, -12}, -180, 45);
        QCOMPARE(rounded(supplementaryFigures(oneNull).firstNullBeamWidth), 360.0F);
        const auto twoLobes = withLevels({0, -10, -40, -10, 0, -10, -40, -10}, -180, 45);
        QCOMPARE(rounded(supplementaryFigures(twoLobes).sideLobeLevel), 0.0F);
        Points rough; // its side lobes stand on the foot of the main one
        for (int angle = -180; angle < 180; ++angle) {
            const double off = std::abs(angle);
            const double level = std::max(-off / 2.0, -5.0 - std::abs(off - 26.0) / 2.0);
            rough.append({double(angle), std::max(level, -30.0) + (angle % 2 == 0 ? 0.1 : -0.1)});
        }
        QCOMPARE(std::round(supplementaryFigures(rough).sideLobeLevel.value()), -5.0);
    }

    void nullsHaveToBeDeep()
    {
        // A ripple of 0.6 dB on the flank ends no lobe, a dip of 2 dB does unless more is asked
        // for.
        const auto rippled = withLevels({-9, -20, -8, -8.6, -8, 0, -4, -6, -4, -20, -9}, -50, 10);
        QCOMPARE(rounded(supplementaryFigures(rippled).firstNullBeamWidth), 60.0F);
        QCOMPARE(rounded(supplementaryFigures(rippled, 0.5).firstNullBeamWidth), 40.0F);
        QCOMPARE(rounded(supplementaryFigures(rippled, 3.0).firstNullBeamWidth), 80.0F);
        QVERIFY(!supplementaryFigures(rippled, 30.0).firstNullBeamWidth);
        // Lobes of a few samples each are no noise.
        const auto coarse = withLevels({-30, -18, -10.4, -60, -8.6, -9, -17.3, -1.4, 3.3, 11.9, 3.3,
                                        -1.4, -17.3, -9, -8.6, -60, -10.4, -18, -30},
                                       -45, 5);
        QCOMPARE(rounded(supplementaryFigures(coarse).firstNullBeamWidth), 30.0F);
        // Measured across the seam, but not round the circle: nothing is known of the direction
        // behind.
        QVERIFY(!supplementaryFigures(pattern(180, 100, 260)).frontToBackRatio);
        QCOMPARE(rounded(supplementaryFigures(pattern(180, 100, 260)).halfPowerBeamWidth), 20.0F);
    }

    void beamsAndMarkers()
    {
        // Two lobes of 20 degrees per 3 dB, the stronger across the seam.
        QVector<QPointF> points;
        for (int angle = -180; angle < 180; ++angle) {
            const double back = std::remainder(angle - 180.0, 360.0) / 10.0;
            const double front = (angle - 20.0) / 10.0;
            points.append({double(angle),
                           std::max({-30.0, -3.0 * std::abs(back), -6.0 - 3.0 * std::abs(front)})});
        }
        const PatternSupplement figures = supplementaryFigures(points);
        QCOMPARE(rounded(figures.peakAngle), 180.0F);
        QCOMPARE(rounded(figures.squint), 180.0F);
        const QVector<BeamWidth> beams =
            beamWidths(points, readDrops(QStringLiteral("-6, 3")).value());
        QCOMPARE(rounded(beams.at(0).width()), 20.0F);
        QCOMPARE(rounded(beams.at(1).width()), 40.0F);
        QCOMPARE(readDrops(QStringLiteral("-3, 3")), std::optional(QVector<double>{3.0}));
        QVERIFY(!readDrops(QStringLiteral("-3, x")) && readDrops(QString())->isEmpty());

        // Four points are a circle already.
        const Points four{{-180, 0}, {-90, -10}, {0, -20}, {90, -10}};
        QCOMPARE(rounded(supplementaryFigures(four).halfPowerBeamWidth), 54.0F);
        QCOMPARE(angleName(PolarLabels::HalfCircles, -180.0), QStringLiteral("180"));
        QCOMPARE(lobeTops(points).size(), 2);
        const auto target = [&points](MarkJump jump, double from) {
            return std::remainder(jumpTarget(points, jump, from).value_or(999.0), 360.0);
        };
        QCOMPARE(std::abs(target(MarkJump::Peak, 20.0)), 180.0);
        for (const double turned : {-180.0, 180.0})
            QCOMPARE(target(MarkJump::NextPeak, turned), 20.0);
        QCOMPARE(std::abs(target(MarkJump::NextPeak, 20.0)), 180.0);
        QCOMPARE(target(MarkJump::HalfPower, 0.0), -170.0);
        QCOMPARE(target(MarkJump::HalfPower, -170.0), 170.0);
    }
};

MZ_GUILESS_TEST(TestPatternSupplement)
#include "tst_patternsupplement.moc"
