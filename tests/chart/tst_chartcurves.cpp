#include "2d/callout.h"
#include "2d/generatecolors.h"
#include "2d/graphicsbase.h"
#include "2d/marktable.h"
#include "2d/mycustomproxy.h"
#include "2d/mypathitem.h"
#include "2d/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPointer>
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

} // namespace

/// Curves: numbering, drawing, symmetry, visibility, and what becomes of them.
class TestChartCurves : public QObject
{
    Q_OBJECT

private slots:
    void numbersCurves();
    void keepsDataWhole();
    void keepsOutlineWithoutPoints();
    void skipsRebuildsThatChangeNothing();
    void mirrorsTheDrawingOnly();
    void followsAnYRangeWhenItIsSeen();
    void showsOneCurveAlone();
    void dimsHiddenCurvesInTheLegend();
    void stacksPanels();
    void analysesOnlyWhatIsShown();
    void leavesNothingBehind();
    void keepsColorsApart();
};

void TestChartCurves::numbersCurves()
{
    GraphicsBase view(0, nullptr);
    view.resetChart({text("A"), text("B"), text("C")});
    view.clearChart(2);
    QCOMPARE(view.paths().keys(), (QList<int>{1, 3}));
    QCOMPARE(view.createPath(text("D"))->pathId(), 2);
    QCOMPARE(view.createPath(text("E"))->pathId(), 4);
    view.clearChart(99);
    QCOMPARE(view.paths().size(), 4);
    QCOMPARE(view.chart()->series().size(), 4);
}

void TestChartCurves::keepsDataWhole()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    const PathInfo *path =
        view.addCurve(text("A"), {{0, 1}, {1, qQNaN()}, {qInf(), 2}, {2, 3}, {3, -qInf()}, {4, 5}});
    const Points finite{{0, 1}, {2, 3}, {4, 5}};
    QCOMPARE(path->points(), finite);
    // Neither a change of ranges nor of titles nor of the size may cost the series a point.
    view.setXRange(0, 7);
    view.setYRange(-3, 8, 4);
    view.setChartTitle(text("T"));
    view.setChartTitle(text("U"), QFont());
    view.setAxisXTitle(text("X"));
    view.setAxisYTitle(text("Y"));
    view.setScaleLevel(4, 5, 0);
    view.resize(640, 480);
    QCoreApplication::processEvents();
    QCOMPARE(path->points(), finite);
    QVERIFY(path->series()->isVisible());
    QCOMPARE(path->pathItem()->valuePoints(), finite.toList());
}

void TestChartCurves::keepsOutlineWithoutPoints()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(0, 100);
    PathInfo *path = view.addCurve(text("A"), {{0, -20}, {100, -20}});
    const QPainterPath outline = path->pathItem()->path();
    QCOMPARE(outline.elementCount(), 2);
    path->setPoints({});
    view.rebuildPath(1);
    QCOMPARE(path->pathItem()->path(), outline);
    QVERIFY(path->pathItem()->valuePoints().isEmpty());
    // Kept, but not shown: there is nothing there any more.
    QVERIFY(!ChartProbe::showsCurve(view, ChartProbe::picture(view), 1, {50, -20}));
}

void TestChartCurves::skipsRebuildsThatChangeNothing()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(0, 100);
    PathInfo *path = view.addCurve(text("A"), ChartProbe::sine(5000, 0, 100, -20));
    const QPointF *drawn = path->pathItem()->positions().constData();
    view.rebuildPath(1);
    view.panResetSlot();
    QCOMPARE(path->pathItem()->positions().constData(), drawn);
    path->setPoints(ChartProbe::sine(5000, 0, 100, -30));
    view.rebuildPath(1);
    QCOMPARE(path->pathItem()->drawnPoints().at(0), view.toScene({0, -30}));
}

void TestChartCurves::mirrorsTheDrawingOnly()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(-30, 30);
    view.setYRange(-30, 30, 6);
    const Points points{{10, -20}, {0, 5}};
    PathInfo *path = view.addCurve(text("A"), points);
    const auto drawn = [&] { return path->pathItem()->drawnPoints(); };
    const QList<QPointF> plain{view.toScene({10, -20}), view.toScene({0, 5})};
    const QList<QPointF> mirrored{view.toScene({20, -10}), view.toScene({-5, 0})};

    QTest::ignoreMessage(QtWarningMsg, "2k b .. 1 -30 QPointF(10,-20)");
    QTest::ignoreMessage(QtWarningMsg, "mPoint .. QPointF(15,-15)");
    QTest::ignoreMessage(QtWarningMsg, "aPoint .. QPointF(20,-10)");
    QTest::ignoreMessage(QtWarningMsg, "list size is .. 2");
    view.SymmetrySlot();
    QCOMPARE(drawn(), mirrored);
    QCOMPARE(path->points(), points);
    QCOMPARE(path->pathItem()->valuePoints(), points.toList());

    view.SymmetryResetSlot();
    QCOMPARE(drawn(), plain);
    view.SymmetrySlot();
    view.setXRange(-30, 30);
    QCOMPARE(drawn(), plain);
}

void TestChartCurves::followsAnYRangeWhenItIsSeen()
{
    GraphicsBase view(0, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.setXRange(-30, 30);
    PathInfo *path = view.addCurve(text("A"), {{-20, -20}, {20, 5}});
    const QList<QPointF> before = path->pathItem()->drawnPoints();
    view.setYRange(-30, 10, 4);
    QCOMPARE(path->pathItem()->drawnPoints(), before);
    QTRY_COMPARE(path->pathItem()->drawnPoints().at(1), view.toScene({20, 5}));
    QVERIFY(ChartProbe::showsCurve(view, ChartProbe::picture(view), 1, {-20, -20}));
    // A mirrored drawing stays mirrored.
    view.SymmetrySlot();
    view.setYRange(-40, 40, 4);
    QTRY_COMPARE(path->pathItem()->drawnPoints().at(0), view.toScene({20, 20}));
}

void TestChartCurves::showsOneCurveAlone()
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

void TestChartCurves::dimsHiddenCurvesInTheLegend()
{
    GraphicsBase view(0, nullptr);
    view.chart()->legend()->show();
    view.resetChart({text("A"), text("B")});
    QVERIFY(ChartProbe::show(view));
    QLegendMarker *marker = view.chart()->legend()->markers(view.paths()[1]->series()).first();
    QCOMPARE(marker->brush().color(), view.paths()[1]->color());
    emit marker->clicked();
    QVERIFY(view.paths()[1]->isHidden());
    QVERIFY(!view.paths()[2]->isHidden());
    QVERIFY(marker->isVisible());
    QVERIFY(marker->brush().color().alpha() < 128);
    emit marker->clicked();
    QVERIFY(!view.paths()[1]->isHidden());
    QCOMPARE(marker->brush().color().alpha(), 255);
}

void TestChartCurves::stacksPanels()
{
    GraphicsBase view(1, nullptr);
    view.finishUpdateChart(); // without curves this says nothing
    view.resetChart({text("A"), text("B")});
    QVERIFY(ChartProbe::show(view));
    PathInfo *second = view.paths()[2];
    second->updateParaInfo(ParaInfo());
    QVERIFY(second->getParaTableDataStatus());
    QVERIFY(second->paraTablePanel()->isVisible());
    view.finishUpdateChart();
    const double x = view.sceneRect().right() - second->paraTablePanel()->size().width();
    QCOMPARE(second->paraTablePanel()->pos(), QPointF(x, 50));
    QCOMPARE(view.paths()[1]->paraTablePanel()->pos().y(), 0.0);
    view.resize(1000, 600);
    QCOMPARE(second->paraTablePanel()->pos().x() + second->paraTablePanel()->size().width(),
             1000.0);
    // Where the operator has put it, it stays, as long as the view has room for it.
    second->paraTablePanel()->setPos(20, 30);
    view.resize(900, 600);
    QCOMPARE(second->paraTablePanel()->pos(), QPointF(20, 30));
    second->clearParaInfo();
    QVERIFY(!second->paraTablePanel()->isVisible());
}

void TestChartCurves::analysesOnlyWhatIsShown()
{
    GraphicsBase view(1, nullptr);
    QVERIFY(ChartProbe::show(view));
    view.addCurve(text("A"), pattern(361));
    view.addCurve(text("B"), pattern(181));
    view.clearChart(1); // now ids and places in the legend differ
    QCOMPARE(view.patternParameters(2).gain.second, -5.0);
    view.setParameterLinesVisible(true);
    const QGraphicsItem *peakLine = view.paths()[2]->furtherItems().constFirst();
    QVERIFY(peakLine->isVisible());
    view.paths()[2]->setHidden(true);
    QCOMPARE(view.patternParameters(2).gain.second, 0.0);
    QVERIFY(!peakLine->isVisible());
    view.paths()[2]->setHidden(false);
    QVERIFY(peakLine->isVisible());
    view.paths()[2]->setLineItemVisible(false);
    QVERIFY(!peakLine->isVisible());
    view.paths()[2]->setLineItemVisible(true);
    QVERIFY(peakLine->isVisible());
    view.paths()[2]->setHidden(true);
    QCOMPARE(view.patternParameters(99).gain.second, 0.0);
    view.createPath(text("empty"));
    QCOMPARE(view.patternParameters(1).axialRatio.second, 0.0);
}

void TestChartCurves::leavesNothingBehind()
{
    auto view = std::make_unique<GraphicsBase>(1, nullptr);
    QVERIFY(ChartProbe::show(*view));
    view->addCurve(text("A"), pattern(361));
    view->addCurve(text("B"), pattern(361));
    view->addMark(view->toScene({0, -10}), Qt::red);
    const auto partsOf = [&view](int id) {
        return QVector<QPointer<QObject>>{view->paths()[id], view->paths()[id]->series(),
                                          view->paths()[id]->pathItem(),
                                          view->paths()[id]->markTablePanel()};
    };
    const QVector<QPointer<QObject>> removed = partsOf(1);
    view->clearChart(1);
    QCOMPARE(view->chart()->series().size(), 1);
    for (const QPointer<QObject> &part : removed)
        QVERIFY(part.isNull());
    QVector<QPointer<QObject>> parts = partsOf(2);
    parts << view->scene() << view->chart();
    view.reset();
    for (const QPointer<QObject> &part : qAsConst(parts))
        QVERIFY(part.isNull());
}

void TestChartCurves::keepsColorsApart()
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

MZ_TEST_MAIN(TestChartCurves)

#include "tst_chartcurves.moc"
