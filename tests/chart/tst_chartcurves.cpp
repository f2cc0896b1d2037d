#include "2d/scene/callout.h"
#include "2d/scene/chartlegend.h"
#include "2d/scene/generatecolors.h"
#include "2d/scene/marktable.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPointer>

#include <cmath>

using namespace QtCharts;
using namespace ChartProbe;

namespace {

/// Levels that jump from point to point, too dense to be told apart.
Points noise(int count)
{
    Points points;
    for (int i = 0; i < count; ++i)
        points.append({360.0 * i / (count - 1), i % 2 ? -10.0 : -30.0});
    return points;
}

} // namespace

/// Curves: numbering, drawing, symmetry, visibility, and what becomes of them.
class TestChartCurves : public QObject
{
    Q_OBJECT

private slots:
    void numbersCurves()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("A"), text("B"), text("C")});
        view.clearChart(2);
        QCOMPARE(view.paths().keys(), (QList<int>{1, 3}));
        QCOMPARE(view.createPath(text("D"))->pathId(), 2);
        QCOMPARE(view.createPath(text("E"))->pathId(), 4);
        view.clearChart(99);
        QCOMPARE(view.chart()->series().size(), 4);
    }

    void keepsDataWhole()
    {
        ChartBench bench({{0, 1}, {1, qQNaN()}, {qInf(), 2}, {2, 3}, {3, -qInf()}, {4, 5}});
        const Points finite{{0, 1}, {2, 3}, {4, 5}};
        QCOMPARE(bench.path->points(), finite);
        // Neither a change of ranges nor of titles nor of the size may cost the series a point.
        bench.view.setXRange(0, 7);
        bench.view.setChartTitle(text("T"));
        bench.view.setChartTitle(text("U"), QFont());
        bench.view.setAxisXTitle(text("X"));
        bench.view.setAxisYTitle(text("Y"));
        bench.view.setScaleLevel(4, 5, 0);
        bench.view.resize(640, 480);
        QCoreApplication::processEvents();
        QCOMPARE(bench.path->points(), finite);
        QVERIFY(bench.path->series()->isVisible());
        QCOMPARE(bench.path->pathItem()->valuePoints(), finite.toList());
    }

    void keepsOutlineWithoutPoints()
    {
        ChartBench bench(flat());
        const QPainterPath outline = bench.path->pathItem()->path();
        QCOMPARE(outline.elementCount(), 2);
        bench.path->setPoints({});
        bench.view.rebuildPath(1);
        QCOMPARE(bench.path->pathItem()->path(), outline);
        QVERIFY(bench.path->pathItem()->valuePoints().isEmpty());
        // Kept, but not shown: there is nothing there any more.
        QVERIFY(!showsCurve(bench.view, picture(bench.view), 1, {50, -20}));
    }

    void mirrorsTheDrawingOnly()
    {
        const Points points{{10, -20}, {0, 5}};
        ChartBench bench(points);
        bench.view.setYRange(-30, 30, 6);
        bench.view.setXRange(-30, 30);
        const QList<QPointF> plain = bench.drawn();
        const QList<QPointF> mirrored{bench.view.toScene({20, -10}), bench.view.toScene({-5, 0})};

        QTest::ignoreMessage(QtWarningMsg, "2k b .. 1 -30 QPointF(10,-20)");
        QTest::ignoreMessage(QtWarningMsg, "mPoint .. QPointF(15,-15)");
        QTest::ignoreMessage(QtWarningMsg, "aPoint .. QPointF(20,-10)");
        QTest::ignoreMessage(QtWarningMsg, "list size is .. 2");
        bench.view.SymmetrySlot();
        QCOMPARE(bench.drawn(), mirrored);
        QCOMPARE(bench.path->points(), points);
        QCOMPARE(bench.path->pathItem()->valuePoints(), points.toList());

        bench.view.SymmetryResetSlot();
        QCOMPARE(bench.drawn(), plain);
        bench.view.SymmetrySlot();
        bench.view.setXRange(-30, 30);
        QCOMPARE(bench.drawn(), plain);
    }

    void followsAnYRangeWhenItIsSeen()
    {
        ChartBench bench({{-20, -20}, {20, 5}});
        bench.view.setXRange(-30, 30);
        const QList<QPointF> before = bench.drawn();
        bench.view.setYRange(-30, 10, 4);
        QCOMPARE(bench.drawn(), before);
        QTRY_COMPARE(bench.drawn().at(1), bench.view.toScene({20, 5}));
        QVERIFY(showsCurve(bench.view, picture(bench.view), 1, {-20, -20}));
        // A mirrored drawing stays mirrored.
        bench.view.SymmetrySlot();
        bench.view.setYRange(-40, 40, 4);
        QTRY_COMPARE(bench.drawn().at(0), bench.view.toScene({20, 20}));
    }

    void showsOneCurveAlone()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("A"), text("B"), text("C")});
        view.updatePathSelection(1);
        view.setPathInfoHide(2);
        for (const PathInfo *path : view.paths()) {
            const bool shown = path->pathId() == 2;
            QCOMPARE(path->isHidden(), !shown);
            QCOMPARE(path->series()->isVisible(), shown);
            QCOMPARE(path->pathItem()->isVisible(), shown);
        }
        QVERIFY(!view.selectedPath());
        view.setPathInfoHide(0);
        QVERIFY(view.paths()[2]->isHidden());
    }

    void countsNamesWithoutAPlace()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("A"), text("B"), text("C"), text("D"), text("E"), text("F")});
        ChartLegend legend(*view.chart(), {});
        legend.arrange({150, 80});
        QCOMPARE(legend.texts(), (QStringList{text("A"), text("+5")}));
    }

    void dimsHiddenCurvesInTheLegend()
    {
        ChartBench bench(flat());
        bench.view.chart()->legend()->show();
        const PathInfo *other = bench.view.addCurve(text("B"), flat());
        QLegendMarker *marker = bench.view.chart()->legend()->markers(bench.path->series()).first();
        QCOMPARE(marker->brush().color(), bench.path->color());
        bench.view.showLegend(bench.view.font());
        const int row = bench.view.areaAboveLegend().bottom() + 10;
        for (int x = 0; x < bench.view.width() && !bench.path->isHidden(); x += 5)
            click(bench.view, {double(x), double(row)});
        QVERIFY(bench.path->isHidden() && !other->isHidden());
        QVERIFY(marker->isVisible());
        QVERIFY(marker->brush().color().alpha() < 128);
        emit marker->clicked();
        QVERIFY(!bench.path->isHidden());
        QCOMPARE(marker->brush().color().alpha(), 255);
    }

    void stacksPanels()
    {
        GraphicsBase view(1, nullptr);
        view.finishUpdateChart(); // without curves this says nothing
        view.resetChart({text("A"), text("B")});
        show(view);
        PathInfo *second = view.paths()[2];
        MyCustomProxy *panel = second->paraTablePanel();
        second->updateParaInfo(ParaInfo());
        QVERIFY(panel->isVisible() && second->getParaTableDataStatus());
        view.finishUpdateChart();
        QCOMPARE(panel->pos(), QPointF(view.sceneRect().right() - panel->size().width(), 50));
        QCOMPARE(view.paths()[1]->paraTablePanel()->pos().y(), 0.0);
        view.resize(1000, 600);
        QCOMPARE(panel->pos().x() + panel->size().width(), 1000.0);
        // Where the user has put it, it stays, as long as the view has room for it.
        panel->setPos(20, 30);
        view.resize(900, 600);
        QCOMPARE(panel->pos(), QPointF(20, 30));
        second->clearParaInfo();
        QVERIFY(!panel->isVisible() && !second->getParaTableDataStatus());
    }

    void analysesOnlyWhatIsShown()
    {
        ChartBench bench(pattern(361), 1);
        bench.view.addCurve(text("B"), pattern(181));
        bench.view.clearChart(1); // now ids and places in the legend differ
        PathInfo *path = bench.view.paths()[2];
        QCOMPARE(bench.view.figures(2).gain.second, -5.0);
        bench.view.setParameterLinesVisible(true);
        const QGraphicsItem *peakLine = path->furtherItems().constFirst();
        QVERIFY(peakLine->isVisible());
        path->setHidden(true);
        QCOMPARE(bench.view.figures(2).gain.second, 0.0);
        QVERIFY(!peakLine->isVisible());
        path->setHidden(false);
        QVERIFY(peakLine->isVisible());
        path->setLineItemVisible(false);
        QVERIFY(!peakLine->isVisible());
        path->setLineItemVisible(true);
        QVERIFY(peakLine->isVisible());
        QCOMPARE(bench.view.figures(99).gain.second, 0.0);
        bench.view.createPath(text("empty"));
        QCOMPARE(bench.view.figures(1).axialRatio.second, 0.0);
    }

    void drawsABeamAtBothEndsOfTheSeam()
    {
        ChartBench bench({{-180, 0}, {-170, -10}, {0, -30}, {170, -10}, {180, 0}});
        bench.view.setXRange(-180, 180);
        bench.view.setBeamLevels(1, {3.0});
        const QRectF beam = bench.path->furtherItems().at(6)->boundingRect();
        QVERIFY(beam.width() > 0.95 * bench.view.chart()->plotArea().width());
    }

    void leavesNothingBehind()
    {
        ChartBench bench(pattern(361), 1);
        bench.view.addCurve(text("B"), pattern(361));
        const QVector<QPointer<QObject>> parts{
            bench.path, bench.path->series(), bench.path->pathItem(), bench.path->markTablePanel()};
        bench.view.clearChart(1);
        QCOMPARE(bench.view.chart()->series().size(), 1);
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
    }

    void keepsColorsApart()
    {
        QVERIFY(GenerateColors::colors.isEmpty());
        GraphicsBase view(0, nullptr);
        view.setColorList({Qt::white});
        view.resetChart({text("A")});
        QCOMPARE(view.paths()[1]->color(), curveColor(1));
        for (int id = 1; id <= 21; ++id) {
            QVERIFY(qGray(curveColor(id).rgb()) < 200); // visible on white
            for (int other = 1; other < id; ++other)
                QVERIFY(curveColor(id) != curveColor(other));
        }
    }

    void staysInsideThePlot()
    {
        struct Case
        {
            int kind;
            Points points;
            ViewRange shown;
        };
        const QVector<Case> cases{
            {0, pattern(50000), {-200, 60, -40, 0}}, // leaves on one side only
            {0, noise(50000), {-60, 200, -18, -12}},
            {1, pattern(50000), {-180, 180, -18, -12}}};
        for (const auto &[kind, points, shown] : cases) {
            ChartBench bench(points, kind);
            bench.view.setYRange(shown.yMin, shown.yMax, 3);
            if (kind == 0)
                bench.view.setXRange(shown.xMin, shown.xMax);
            bench.view.panResetSlot();
            QPainterPath inside;
            const QRectF area = bench.view.chart()->plotArea();
            if (kind == 0)
                inside.addRect(area.adjusted(-1, -1, 1, 1));
            else
                inside.addEllipse(area.center(), area.width() / 2 + 2, area.height() / 2 + 2);
            const QImage image = picture(bench.view);
            const QVector<QPoint> found = pixelsOf(image, image.rect(), bench.path->color(), 0);
            QVERIFY(found.size() > 100);
            for (const QPoint &pixel : found)
                QVERIFY(inside.contains(pixel));
        }
    }

    void survivesAnyZoom()
    {
        for (const auto &[kind, factor] : {std::pair(0, 1e3), std::pair(1, 1e-3)}) {
            ChartBench bench(pattern(5000), kind);
            bench.view.updatePathSelection(1);
            for (int step = 0; step < 12; ++step) {
                bench.view.setLimitXY({10.01, -10.01}, factor);
                bench.view.panResetSlot();
                QVERIFY(!picture(bench.view).isNull());
            }
            run(bench.view, "resetSlot");
            QVERIFY(showsCurve(bench.view, picture(bench.view), 1, {0, -5}, 3));
        }
    }

    void showsSelection()
    {
        ChartBench bench(flat());
        const Callout *callout = bench.path->displayItem();
        const auto width = [&bench] {
            const QPoint place = bench.view.toScene({50, -20}).toPoint() + QPoint(7, -20);
            return 41 -
                   pixelsOf(picture(bench.view), QRect(place, QSize(1, 41)), Qt::white, 0).size();
        };
        const int plain = width();
        QVERIFY(!callout->isVisible());
        bench.view.updatePathSelection(1);
        // Wider by far, and called by its name: told without looking at the colour.
        QVERIFY(width() >= plain + 6);
        QVERIFY(callout->isVisible());
        QCOMPARE(callout->text(), text("A"));
        const auto *other = bench.view.addCurve(text("B"), {})->pathItem();
        QVERIFY(bench.path->pathItem()->zValue() > other->zValue());
        run(bench.view, "clearSelectionSlot");
        QCOMPARE(width(), plain);
        QVERIFY(!bench.view.selectedPath());
    }

    void hitsTheCurve_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<QPointF>("value");
        QTest::addColumn<QPointF>("offset");
        QTest::addColumn<bool>("hit");

        const Points leaving{{0, -20}, {300, -20}};
        const Points slope{{0, -40}, {100, 0}};
        const QPointF on(50, -20);
        const QPointF end(100, -20);
        QTest::newRow("on it") << flat() << on << QPointF() << true;
        QTest::newRow("beside it") << flat() << on << QPointF(0, 4) << true;
        QTest::newRow("in the box of a slope") << slope << QPointF(20, -10) << QPointF() << false;
        QTest::newRow("on a slope") << slope << QPointF(25, -30) << QPointF() << true;
        QTest::newRow("too far") << flat() << on << QPointF(0, 12) << false;
        QTest::newRow("on its end") << flat() << end << QPointF() << true;
        QTest::newRow("out of the plot") << leaving << end << QPointF(30, 0) << false;
        QTest::newRow("solid curve") << noise(50000) << on << QPointF() << true;
        QTest::newRow("beside a solid curve")
            << noise(50000) << QPointF(50, -35) << QPointF() << false;
        QTest::newRow("lonely point") << Points{on} << on << QPointF(2, 2) << true;
        QTest::newRow("no point") << Points() << on << QPointF() << false;
    }

    void hitsTheCurve()
    {
        QFETCH(Points, points);
        QFETCH(QPointF, value);
        QFETCH(QPointF, offset);
        QFETCH(bool, hit);
        ChartBench bench(points);
        bench.view.panResetSlot();
        const QPointF place = bench.view.toScene(value) + offset;
        const MyPathItem *item = bench.path->pathItem();
        QCOMPARE(item->hits(place), hit);
        QVERIFY(item->shape().contains(place) || !hit);
        click(bench.view, place);
        QCOMPARE(bench.view.selectedPath() != nullptr, hit);
    }
};

MZ_TEST(TestChartCurves)

#include "tst_chartcurves.moc"
