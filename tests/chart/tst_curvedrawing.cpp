#include "2d/callout.h"
#include "2d/graphicsbase.h"
#include "2d/mypathitem.h"
#include "2d/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QtMath>

#include <cmath>

using namespace QtCharts;
using ChartProbe::Points;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A pattern with ripples of \a count points round the circle.
Points pattern(int count)
{
    Points points;
    for (int i = 0; i < count; ++i) {
        const double angle = -180.0 + 360.0 * i / (count - 1);
        points.append({angle, -15.0 + 10.0 * std::cos(qDegreesToRadians(angle * 3.0))});
    }
    return points;
}

/// Levels that jump from point to point, too dense to be told apart.
Points noise(int count)
{
    Points points;
    for (int i = 0; i < count; ++i)
        points.append({360.0 * i / (count - 1), i % 2 ? -10.0 : -30.0});
    return points;
}

} // namespace

/// What is seen of a curve, and where it can be hit.
class TestCurveDrawing : public QObject
{
    Q_OBJECT

private slots:
    void drawsWhereTheCurveIs_data();
    void drawsWhereTheCurveIs();
    void fillsDenseCurves();
    void staysInsideThePlot_data();
    void staysInsideThePlot();
    void survivesAnyZoom_data();
    void survivesAnyZoom();
    void showsSelection();
    void hitsTheCurve_data();
    void hitsTheCurve();
};

void TestCurveDrawing::drawsWhereTheCurveIs_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("count");
    QTest::newRow("sparse") << 0 << 25;
    QTest::newRow("one point a pixel") << 0 << 700;
    QTest::newRow("dense") << 0 << 100000;
    QTest::newRow("polar, sparse") << 1 << 73;
    QTest::newRow("polar, dense") << 1 << 100000;
}

void TestCurveDrawing::drawsWhereTheCurveIs()
{
    QFETCH(int, kind);
    QFETCH(int, count);
    GraphicsBase view(kind, nullptr);
    QVERIFY(ChartProbe::show(view));
    if (kind == 0)
        view.setXRange(-180, 180);
    view.setYRange(-40, 0, 4);
    const Points points = pattern(count);
    PathInfo *path = view.addCurve(text("A"), points);
    QImage picture = ChartProbe::picture(view);
    const int step = qMax(1, count / 60);
    for (int i = 0; i < count; i += step)
        QVERIFY2(ChartProbe::showsCurve(view, picture, 1, points[i]),
                 qPrintable(QString::number(i)));
    QVERIFY(!ChartProbe::showsCurve(view, picture, 1, {45, -39}));

    path->setHidden(true);
    picture = ChartProbe::picture(view);
    for (int i = 0; i < count; i += step)
        QVERIFY(!ChartProbe::showsCurve(view, picture, 1, points[i]));
    path->setHidden(false);

    path->setColor(Qt::magenta);
    view.resize(600, 600);
    picture = ChartProbe::picture(view);
    for (int i = 0; i < count; i += step)
        QVERIFY(ChartProbe::showsCurve(view, picture, 1, points[i]));
}

void TestCurveDrawing::fillsDenseCurves()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(0, 360);
    view.setYRange(-40, 0, 4);
    view.addCurve(text("N"), noise(50000));
    const QImage picture = ChartProbe::picture(view);
    for (int x = 5; x < 360; x += 5) {
        QVERIFY(ChartProbe::showsCurve(view, picture, 1, {double(x), -20}, 0));
        QVERIFY(ChartProbe::showsCurve(view, picture, 1, {double(x), -10.2}, 0));
        QVERIFY(ChartProbe::showsCurve(view, picture, 1, {double(x), -29.8}, 0));
        QVERIFY(!ChartProbe::showsCurve(view, picture, 1, {double(x), -9}, 1));
        QVERIFY(!ChartProbe::showsCurve(view, picture, 1, {double(x), -31}, 1));
    }
}

void TestCurveDrawing::staysInsideThePlot_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Points>("points");
    QTest::newRow("cartesian, dense") << 0 << pattern(50000);
    QTest::newRow("cartesian, solid") << 0 << noise(50000);
    QTest::newRow("polar, dense") << 1 << pattern(50000);
}

void TestCurveDrawing::staysInsideThePlot()
{
    QFETCH(int, kind);
    QFETCH(Points, points);
    GraphicsBase view(kind, nullptr);
    QVERIFY(ChartProbe::show(view, 700, 600));
    if (kind == 0)
        view.setXRange(-60, 200);
    view.setYRange(-18, -12, 3);
    view.addCurve(text("A"), points);
    view.panResetSlot();
    const QColor color = view.paths()[1]->color();
    const QImage picture = ChartProbe::picture(view);
    const QRectF area = view.chart()->plotArea();
    int inside = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != color)
                continue;
            const QPointF offset = QPointF(x, y) - area.center();
            const bool in = kind == 0 ? area.adjusted(-1, -1, 1, 1).contains(x, y)
                                      : std::hypot(offset.x(), offset.y()) < area.width() / 2 + 2;
            QVERIFY2(in, qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            ++inside;
        }
    }
    QVERIFY(inside > 100);
}

void TestCurveDrawing::survivesAnyZoom_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("factor");
    QTest::newRow("cartesian, out") << 0 << 1e3;
    QTest::newRow("polar, in") << 1 << 1e-3;
}

void TestCurveDrawing::survivesAnyZoom()
{
    QFETCH(int, kind);
    QFETCH(double, factor);
    GraphicsBase view(kind, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setYRange(-40, 0, 4);
    if (kind == 0)
        view.setXRange(-180, 180);
    view.addCurve(text("A"), pattern(5000));
    view.updatePathSelection(1);
    for (int step = 0; step < 12; ++step) {
        view.setLimitXY({10.01, -10.01}, factor);
        view.panResetSlot();
        QVERIFY(!ChartProbe::picture(view).isNull());
    }
    ChartProbe::run(view, "resetSlot");
    QVERIFY(ChartProbe::showsCurve(view, ChartProbe::picture(view), 1, {0, -5}, 3));
}

void TestCurveDrawing::showsSelection()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(0, 100);
    view.setYRange(-40, 0, 4);
    view.addCurve(text("Flat"), {{0, -20}, {100, -20}});
    const auto width = [&view] {
        const QImage picture = ChartProbe::picture(view);
        const QPoint place = view.toScene({50, -20}).toPoint();
        int drawn = 0;
        for (int y = place.y() - 20; y <= place.y() + 20; ++y)
            drawn += picture.pixelColor(place.x() + 7, y) != QColor(Qt::white) ? 1 : 0;
        return drawn;
    };
    const int plain = width();
    QVERIFY(!view.paths()[1]->displayItem()->isVisible());
    view.updatePathSelection(1);
    // Wider by far, and called by its name: told without looking at the colour.
    QVERIFY(width() >= plain + 6);
    QVERIFY(view.paths()[1]->displayItem()->isVisible());
    QCOMPARE(view.paths()[1]->displayItem()->text(), text("Flat"));
    ChartProbe::run(view, "clearSelectionSlot");
    QCOMPARE(width(), plain);
    QVERIFY(!view.selectedPath());
}

void TestCurveDrawing::hitsTheCurve_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<QPointF>("value");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<bool>("hit");

    const Points line{{0, -20}, {100, -20}};
    QTest::newRow("on it") << line << QPointF(50, -20) << QPointF() << true;
    QTest::newRow("beside it") << line << QPointF(50, -20) << QPointF(0, 4) << true;
    QTest::newRow("too far") << line << QPointF(50, -20) << QPointF(0, 12) << false;
    QTest::newRow("on its end") << line << QPointF(100, -20) << QPointF() << true;
    QTest::newRow("out of the plot")
        << Points{{0, -20}, {300, -20}} << QPointF(100, -20) << QPointF(30, 0) << false;
    QTest::newRow("solid curve") << noise(50000) << QPointF(50, -20) << QPointF() << true;
    QTest::newRow("beside a solid curve") << noise(50000) << QPointF(50, -35) << QPointF() << false;
    QTest::newRow("lonely point") << Points{{50, -20}} << QPointF(50, -20) << QPointF(2, 2) << true;
    QTest::newRow("no point") << Points() << QPointF(50, -20) << QPointF() << false;
}

void TestCurveDrawing::hitsTheCurve()
{
    QFETCH(Points, points);
    QFETCH(QPointF, value);
    QFETCH(QPointF, offset);
    QFETCH(bool, hit);
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(0, 100);
    view.setYRange(-40, 0, 4);
    view.addCurve(text("A"), points);
    view.panResetSlot();
    const QPointF place = view.toScene(value) + offset;
    QCOMPARE(view.paths()[1]->pathItem()->hits(place), hit);
    QCOMPARE(view.paths()[1]->pathItem()->shape().contains(place) && hit, hit && points.size() > 1);
    ChartProbe::click(view, place);
    QCOMPARE(view.selectedPath() != nullptr, hit);
}

MZ_TEST_MAIN(TestCurveDrawing)

#include "tst_curvedrawing.moc"
