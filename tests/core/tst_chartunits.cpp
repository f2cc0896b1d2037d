#include "2d/chartmenustate.h"
#include "2d/curvemaths.h"
#include "2d/polylinedecimation.h"
#include "testmain.h"

#include <cmath>
#include <random>

using Points = QVector<QPointF>;
Q_DECLARE_METATYPE(ChartSituation)

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

Points noisyLine(int count, double width)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> level(0.0, 400.0);
    Points points;
    for (int i = 0; i < count; ++i)
        points.append({width * i / count, level(random)});
    return points;
}

/// A spiral of several turns around (200, 200): runs to and fro in x.
Points spiral(int count)
{
    Points points;
    for (int i = 0; i < count; ++i) {
        const double angle = 0.001 * i;
        const double radius = 20.0 + 150.0 * i / count + 10.0 * std::sin(i * 1.3);
        points.append({200.0 + radius * std::cos(angle), 200.0 + radius * std::sin(angle)});
    }
    return points;
}

} // namespace

class TestChartUnits : public QObject
{
    Q_OBJECT

private slots:
    void interpolates_data();
    void interpolates();
    void keepsExtremesOfEveryColumn();
    void thinsWithoutMovingPoints_data();
    void thinsWithoutMovingPoints();
    void fillsOnlyColumnsThatTouch();
    void cutsSegments_data();
    void cutsSegments();
    void piecesJoin();
    void enablesMenuEntries_data();
    void enablesMenuEntries();
};

void TestChartUnits::interpolates_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("found");
    QTest::addColumn<double>("y");

    const Points up{{0, 0}, {10, 20}, {20, 0}};
    QTest::newRow("inside a segment") << up << 5.0 << true << 10.0;
    QTest::newRow("on a point") << up << 10.0 << true << 20.0;
    QTest::newRow("last end") << up << 20.0 << true << 0.0;
    QTest::newRow("behind the curve") << up << 20.1 << false << 0.0;
    QTest::newRow("descending x") << Points{{10, 1}, {0, 3}} << 2.5 << true << 2.5;
    QTest::newRow("vertical segment: its second point")
        << Points{{5, 1}, {5, 9}} << 5.0 << true << 9.0;
    QTest::newRow("to and fro: the first segment")
        << Points{{0, 0}, {10, 10}, {0, 50}} << 4.0 << true << 4.0;
    QTest::newRow("one point") << Points{{5, 1}} << 5.0 << false << 0.0;
}

void TestChartUnits::interpolates()
{
    QFETCH(Points, points);
    QFETCH(double, x);
    QFETCH(bool, found);
    QFETCH(double, y);
    const std::optional<double> result = interpolateAt(points, x);
    QCOMPARE(result.has_value(), found);
    if (found)
        QCOMPARE(*result, y);
}

void TestChartUnits::keepsExtremesOfEveryColumn()
{
    const Points points = noisyLine(50000, 300);
    const ThinnedLine line = thinnedLine(points, {false, QRectF(0, 0, 300, 400), 1.0});
    QVERIFY(line.points.size() <= 4 * 301);
    QCOMPARE(line.points.first(), points.first());
    QCOMPARE(line.points.last(), points.last());
    for (int column = 0; column < 300; ++column) {
        double low = 1e9;
        double high = -1e9;
        double keptLow = 1e9;
        double keptHigh = -1e9;
        for (const QPointF &point : points) {
            if (std::floor(point.x()) == column) {
                low = std::min(low, point.y());
                high = std::max(high, point.y());
            }
        }
        for (const QPointF &point : line.points) {
            if (std::floor(point.x()) == column) {
                keptLow = std::min(keptLow, point.y());
                keptHigh = std::max(keptHigh, point.y());
            }
        }
        QCOMPARE(keptLow, low);
        QCOMPARE(keptHigh, high);
    }
}

void TestChartUnits::thinsWithoutMovingPoints_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<bool>("polar");
    QTest::addColumn<double>("pixelsPerUnit");
    QTest::addColumn<bool>("thins");

    const Points few{{0, 1}, {50, 7}, {100, 3}, {399, 2}};
    QTest::newRow("few points stay as they are") << few << false << 1.0 << false;
    QTest::newRow("few points on a polar chart") << few << true << 1.0 << false;
    QTest::newRow("noise") << noisyLine(20000, 400) << false << 1.0 << true;
    QTest::newRow("noise on a fine screen") << noisyLine(20000, 400) << false << 2.0 << true;
    QTest::newRow("spiral") << spiral(60000) << true << 1.0 << true;
    QTest::newRow("one point") << Points{{5, 5}} << false << 1.0 << false;
    QTest::newRow("point in the centre of a polar chart")
        << Points{{200, 200}, {200, 200}, {210, 200}} << true << 1.0 << false;
    QTest::newRow("beside the area")
        << Points{{-50, 1}, {-40, 9}, {-30, -4}, {-20, 3}, {-10, 2}, {10, 5}} << false << 1.0
        << true;
}

void TestChartUnits::thinsWithoutMovingPoints()
{
    QFETCH(Points, points);
    QFETCH(bool, polar);
    QFETCH(double, pixelsPerUnit);
    QFETCH(bool, thins);
    const QRectF area(0, 0, 400, 400);
    const ThinnedLine line = thinnedLine(points, {polar, area, pixelsPerUnit});
    if (!thins)
        QVERIFY(line.points.size() >= points.size() - 1);
    else
        QVERIFY(line.points.size() < points.size());
    // What is kept are points of the curve, in the curve's order.
    int from = 0;
    for (const QPointF &kept : line.points) {
        from = points.indexOf(kept, from);
        QVERIFY(from >= 0);
        ++from;
    }
    // No point that was left out is farther than a pixel from the kept line's columns.
    for (const ThinnedLine::Column &column : line.columns) {
        QVERIFY(column.first <= column.low && column.low <= column.last);
        QVERIFY(column.first <= column.high && column.high <= column.last);
    }
}

void TestChartUnits::fillsOnlyColumnsThatTouch()
{
    const QRectF area(0, 0, 400, 400);
    const ThinnedLine noise = thinnedLine(noisyLine(40000, 400), {false, area, 1.0});
    const QVector<ColumnStretch> all = solidStretches(noise, 1.0);
    QCOMPARE(all.size(), 1);
    QVERIFY(all.first().to - all.first().from >= 398);

    Points smooth;
    for (int i = 0; i < 40000; ++i)
        smooth.append({i * 0.01, 200 + 150 * std::sin(i * 0.001)});
    QVERIFY(solidStretches(thinnedLine(smooth, {false, area, 1.0}), 1.0).isEmpty());

    // Two noisy parts on opposite sides: what lies between them belongs to neither.
    Points apart;
    for (const QPointF &point : noisyLine(4000, 40))
        apart.append(point);
    for (const QPointF &point : noisyLine(4000, 40))
        apart.append(point + QPointF(300, 0));
    const QVector<ColumnStretch> two = solidStretches(thinnedLine(apart, {false, area, 1.0}), 1.0);
    QCOMPARE(two.size(), 2);
}

void TestChartUnits::cutsSegments_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<QPointF>("cutFrom");
    QTest::addColumn<QPointF>("cutTo");

    const QPointF none;
    QTest::newRow("inside") << QPointF(1, 1) << QPointF(9, 9) << true << QPointF(1, 1)
                            << QPointF(9, 9);
    QTest::newRow("through") << QPointF(-10, 5) << QPointF(20, 5) << true << QPointF(0, 5)
                             << QPointF(10, 5);
    QTest::newRow("past a corner") << QPointF(-5, 4) << QPointF(4, -5) << false << none << none;
    QTest::newRow("far away above")
        << QPointF(5, 5) << QPointF(5, -1e300) << true << QPointF(5, 5) << QPointF(5, 0);
    QTest::newRow("along the rim, outside")
        << QPointF(-1, 0) << QPointF(-1, 10) << false << none << none;
    QTest::newRow("no number") << QPointF(5, 5) << QPointF(std::nan(""), 5) << false << none
                               << none;
}

void TestChartUnits::cutsSegments()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, visible);
    const QRectF window(0, 0, 10, 10);
    const bool seen = !segmentMisses(from, to, window) && clipSegment(from, to, window);
    QCOMPARE(seen, visible);
    if (!visible)
        return;
    QTEST(from, "cutFrom");
    QTEST(to, "cutTo");
}

void TestChartUnits::piecesJoin()
{
    // A line that leaves the window and comes back is drawn without the way outside, and without a
    // gap inside.
    Points points;
    for (int i = 0; i < 100; ++i)
        points.append({double(i), i >= 40 && i < 60 ? -50.0 : 5.0});
    double length = 0.0;
    QPointF end(0, 5);
    int gaps = 0;
    forEachPiece(points.constData(), points.size(), QRectF(0, 0, 100, 10),
                 [&](const QPointF *piece, int count) {
                     QVERIFY(count >= 2 && count <= 17);
                     if (piece[0] != end)
                         ++gaps;
                     for (int i = 1; i < count; ++i)
                         length += std::abs(piece[i].x() - piece[i - 1].x());
                     end = piece[count - 1];
                 });
    QCOMPARE(gaps, 1);
    QCOMPARE(end, points.last());
    QVERIFY(length > 78.0 && length < 79.0);
}

void TestChartUnits::enablesMenuEntries_data()
{
    QTest::addColumn<ChartSituation>("situation");
    QTest::addColumn<QString>("enabled");

    const QString curve = text("F1\nAngle,Power\n0,1\n");
    const auto in = [](bool selected, bool finished, int marks, const QString &clipboard) {
        ChartSituation now;
        now.curveSelected = selected;
        now.updateFinished = finished;
        now.markCount = marks;
        now.clipboardText = clipboard;
        return now;
    };
    QTest::newRow("selected") << in(true, false, 0, QString()) << text("copy data image");
    QTest::newRow("curve on the clipboard") << in(false, false, 0, curve) << text("paste");
    QTest::newRow("header in lower case") << in(false, false, 0, text("angle,power")) << QString();
    QTest::newRow("marker") << in(false, false, 1, QString()) << text("delete");
    QTest::newRow("finished") << in(false, true, 0, QString()) << text("symmetry");
    QTest::newRow("finished and selected")
        << in(true, true, 2, curve) << text("copy paste data image delete marks figures symmetry");
}

void TestChartUnits::enablesMenuEntries()
{
    QFETCH(ChartSituation, situation);
    const ChartMenuState state = chartMenuState(situation);
    QStringList enabled;
    const auto note = [&enabled](bool on, const char *name) {
        if (on)
            enabled.append(text(name));
    };
    note(state.copy, "copy");
    note(state.paste, "paste");
    note(state.exportData, "data");
    note(state.exportImage, "image");
    note(state.deleteMark, "delete");
    note(state.markTable, "marks");
    note(state.parameterTable, "figures");
    note(state.symmetry, "symmetry");
    QTEST(enabled.join(QLatin1Char(' ')), "enabled");
}

MZ_TEST_GUILESS_MAIN(TestChartUnits)

#include "tst_chartunits.moc"
