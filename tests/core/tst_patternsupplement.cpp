#include "2d/patternsupplement.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

using Points = QVector<QPointF>;
using Figure = std::optional<double> PatternSupplement::*;

Q_DECLARE_METATYPE(Figure)

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

Points shuffled(Points points)
{
    std::shuffle(points.begin(), points.end(), QRandomGenerator(11));
    return points;
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
    void measuresRoundPatterns_data();
    void measuresRoundPatterns();
    void measuresOpenAndOddPatterns_data();
    void measuresOpenAndOddPatterns();
};

void TestPatternSupplement::measuresRoundPatterns_data()
{
    QTest::addColumn<Points>("points");
    QTest::newRow("peak on the seam") << pattern(180, -180, 180);
    QTest::newRow("peak beside the seam, one end left out") << pattern(177, -180, 179);
    QTest::newRow("side lobe over the seam") << pattern(-110, -180, 180);
    QTest::newRow("0 to 359 degrees") << pattern(0, 0, 359);
    QTest::newRow("half degrees") << pattern(-179, -180, 179.5, 0.5);
    QTest::newRow("any order") << shuffled(pattern(175, -180, 179));
}

void TestPatternSupplement::measuresRoundPatterns()
{
    QFETCH(const Points, points);
    const PatternSupplement figures = supplementaryFigures(points);
    QVERIFY(figures.halfPowerBeamWidth && figures.firstNullBeamWidth && figures.sideLobeLevel &&
            figures.frontToBackRatio);
    QCOMPARE(float(*figures.halfPowerBeamWidth), 20.0F);
    QCOMPARE(float(*figures.firstNullBeamWidth), 80.0F);
    QCOMPARE(float(*figures.sideLobeLevel), -12.0F);
    QCOMPARE(float(*figures.frontToBackRatio), 20.0F);
}

void TestPatternSupplement::measuresOpenAndOddPatterns_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<Figure>("figure");
    QTest::addColumn<bool>("found");
    QTest::addColumn<double>("value");
    const auto row = [](const char *name, const Points &points, Figure figure,
                        std::optional<double> value) {
        QTest::newRow(name) << points << figure << value.has_value() << value.value_or(0.0);
    };
    constexpr auto none = std::nullopt;
    constexpr Figure width = &PatternSupplement::halfPowerBeamWidth;
    constexpr Figure nulls = &PatternSupplement::firstNullBeamWidth;
    constexpr Figure lobe = &PatternSupplement::sideLobeLevel;
    constexpr Figure back = &PatternSupplement::frontToBackRatio;

    row("half circle: no back", pattern(0, -90, 90), back, none);
    row("cut inside the beam: no width", pattern(0, -5, 90), width, none);
    row("cut inside the beam: side lobe of the other side", pattern(0, -5, 90), lobe, -12.0);
    row("cut before the null: no null width", pattern(0, -30, 90), nulls, none);
    row("back between two samples", {{-179, -31}, {-177, -29}, {0, -9}, {2, 0}}, back, 30.0);
    row("empty", {}, width, none);
    row("same level all round: back", withLevels(QVector<double>(36, 2.0), -180, 10), back, 0.0);
    row("shoulder is no null", withLevels({-9, -20, -6, -6, 0, -6, -6, -20, -9}, -80, 20), nulls,
        120.0);
    row("one lobe and one null behind: null all round",
        withLevels({-40, -12, -6, -1, 0, -1, -6, -12}, -180, 45), nulls, 360.0);
    row("two equal lobes", withLevels({0, -10, -40, -10, 0, -10, -40, -10}, -180, 45), lobe, 0.0);
}

void TestPatternSupplement::measuresOpenAndOddPatterns()
{
    QFETCH(const Points, points);
    QFETCH(const Figure, figure);
    QFETCH(const bool, found);
    QFETCH(const double, value);
    const std::optional<double> actual = supplementaryFigures(points).*figure;
    QCOMPARE(actual.has_value(), found);
    QVERIFY(!found || std::abs(*actual - value) < 1e-9);
}

MZ_TEST_GUILESS_MAIN(TestPatternSupplement)
#include "tst_patternsupplement.moc"
