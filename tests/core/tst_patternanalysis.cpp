#include "2d/patternanalysis.h"
#include "2d/viewrange.h"
#include "sortedpattern.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <cmath>
#include <cstring>

using Points = QVector<QPointF>;
using Pair = QPair<double, double>;

enum class Order { Ascending, Descending, Shuffled, Repeated };

Q_DECLARE_METATYPE(Order)
Q_DECLARE_METATYPE(PatternLine)
Q_DECLARE_METATYPE(ViewRange)

namespace {

struct Figure
{
    const char *name;
    Pair ParaInfo::*pair;
};

constexpr std::array<Figure, 10> allFigures{{
    {"gain", &ParaInfo::gain},
    {"half power left", &ParaInfo::halfPowerLeft},
    {"half power right", &ParaInfo::halfPowerRight},
    {"first null left", &ParaInfo::firstNullLeft},
    {"first null right", &ParaInfo::firstNullRight},
    {"first side lobe left", &ParaInfo::firstSideLobeLeft},
    {"first side lobe right", &ParaInfo::firstSideLobeRight},
    {"back lobe", &ParaInfo::backLobe},
    {"axial ratio", &ParaInfo::axialRatio},
    {"cross-polar ratio", &ParaInfo::crossPolarRatio},
}};

quint64 bits(double value)
{
    quint64 pattern = 0;
    std::memcpy(&pattern, &value, sizeof pattern);
    return pattern;
}

/// Names the first figure that differs by a single bit; empty when none does.
QByteArray difference(const ParaInfo &a, const ParaInfo &b)
{
    for (const Figure &figure : allFigures) {
        const Pair &p = a.*figure.pair;
        const Pair &q = b.*figure.pair;
        if (bits(p.first) != bits(q.first) || bits(p.second) != bits(q.second)) {
            return QStringLiteral("%1: (%2, %3) against (%4, %5)")
                .arg(QString::fromLatin1(figure.name))
                .arg(p.first, 0, 'g', 17)
                .arg(p.second, 0, 'g', 17)
                .arg(q.first, 0, 'g', 17)
                .arg(q.second, 0, 'g', 17)
                .toLatin1();
        }
    }
    return {};
}

/// Levels on the angles 0, 10, 20, ... degrees.
Points every10Degrees(const QVector<double> &levels, double first = 0.0)
{
    Points points;
    for (int i = 0; i < levels.size(); ++i)
        points.append(QPointF(first + 10.0 * i, levels[i]));
    return points;
}

Points randomCurve(QRandomGenerator &random, int size, int distinctLevels, Order order)
{
    Points points;
    for (int i = 0; i < size; ++i) {
        const double angle = order == Order::Repeated ? random.bounded(10) * 30.0 - 180.0
                                                      : -180.0 + 360.0 * i / size;
        // Steps of a tenth are ties and plateaus, and are not exact in binary.
        const double level = distinctLevels > 0 ? random.bounded(distinctLevels) * 0.1 - 1.0
                                                : random.generateDouble() * 60.0 - 50.0;
        points.append(QPointF(angle, level));
    }
    if (order == Order::Descending)
        std::reverse(points.begin(), points.end());
    else if (order == Order::Shuffled)
        std::shuffle(points.begin(), points.end(), random);
    return points;
}

} // namespace

class TestPatternAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithSortedCopies_data();
    void agreesWithSortedCopies();
    void findsFigures_data();
    void findsFigures();
    void hasNothingToSayOfAnEmptyCurve();
    void placesLines_data();
    void placesLines();
    void drawsNoLineForWhatIsMissing();
};

void TestPatternAnalysis::agreesWithSortedCopies_data()
{
    QTest::addColumn<int>("distinctLevels");
    QTest::addColumn<Order>("order");
    QTest::newRow("any levels, by angle") << 0 << Order::Ascending;
    QTest::newRow("any levels, by falling angle") << 0 << Order::Descending;
    QTest::newRow("any levels, shuffled") << 0 << Order::Shuffled;
    QTest::newRow("any levels, angles repeat") << 0 << Order::Repeated;
    QTest::newRow("many ties, by angle") << 12 << Order::Ascending;
    QTest::newRow("many ties, shuffled") << 12 << Order::Shuffled;
    QTest::newRow("many ties, angles repeat") << 12 << Order::Repeated;
    QTest::newRow("within 3 dB, by angle") << 25 << Order::Ascending;
    QTest::newRow("plateaus, by angle") << 2 << Order::Ascending;
    QTest::newRow("deep steps, by angle") << 60 << Order::Ascending;
    QTest::newRow("flat") << 1 << Order::Ascending;
}

void TestPatternAnalysis::agreesWithSortedCopies()
{
    QFETCH(const int, distinctLevels);
    QFETCH(const Order, order);
    QRandomGenerator random(6218);
    for (int round = 0; round < 1500; ++round) {
        Points curve = randomCurve(random, 1 + random.bounded(40), distinctLevels, order);
        if (round % 5 == 1)
            curve.first().setY(20.0);
        if (round % 5 == 2)
            curve.last().setY(20.0);
        if (round % 5 == 3)
            curve[random.bounded(curve.size())].setY(20.0);
        const auto analysis = analysePattern(curve);
        QVERIFY(analysis.has_value());
        const QByteArray found = difference(analysis->figures, figuresFromSortedCopies(curve));
        QVERIFY2(found.isEmpty(), found.constData());
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
    enum {
        Gain,
        HalfLeft,
        HalfRight,
        NullLeft,
        NullRight,
        LobeLeft,
        LobeRight,
        Back,
        Axial,
        Cross
    };

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
    row("cross-polar ratio stays open", lobes, Cross, {0, 0});

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
    const Pair actual = analysis->figures.*allFigures[static_cast<std::size_t>(figure)].pair;
    QTEST(actual, "expected");
}

void TestPatternAnalysis::hasNothingToSayOfAnEmptyCurve()
{
    QVERIFY(!analysePattern({}).has_value());
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
    row("half power left", all, PatternLine::HalfPowerLeft, {-5, -40, -5, -3});
    row("half power right", all, PatternLine::HalfPowerRight, {5, -40, 5, -3});
    row("half-power level", all, PatternLine::HalfPowerLevel, {-5, -3, 5, -3});
    row("side lobe left", all, PatternLine::SideLobeLeft, {-30, -40, -30, -4});
    row("side lobe right", all, PatternLine::SideLobeRight, {30, -40, 30, -5});
    row("on the limits counts as inside", {0, 30, -5, 0}, PatternLine::SideLobeRight,
        {30, -5, 30, -5});
    row("peak above the axis", {-180, 180, -40, -1}, PatternLine::Peak, {});
    row("peak beside the axis", {1, 180, -40, 10}, PatternLine::Peak, {});
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
    const auto analysis = analysePattern(every10Degrees({0, -4, -9}, -100));
    const ViewRange axes{-20000, 20000, -20000, 20000};
    QVERIFY(!patternLine(PatternLine::HalfPowerLeft, analysis->lines, axes));
    QVERIFY(!patternLine(PatternLine::HalfPowerLevel, analysis->lines, axes));
    QCOMPARE(patternLine(PatternLine::HalfPowerRight, analysis->lines, axes),
             std::optional<QLineF>(QLineF(-90, -20000, -90, -3)));
}

MZ_TEST_GUILESS_MAIN(TestPatternAnalysis)
#include "tst_patternanalysis.moc"
