#include "2d/graphicsbase.h"
#include "2d/guidelines.h"
#include "2d/marktable.h"
#include "2d/mymarkitem.h"
#include "2d/pathinfo.h"
#include "chartprobe.h"
#include "modalscript.h"
#include "testmain.h"

#include <QGraphicsScene>
#include <QHeaderView>
#include <QLabel>

#include <cmath>

using ChartProbe::Points;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

const Points flat{{0, -20}, {100, -20}};

const GuideLine *guideLine(const GraphicsBase &view, const char *name)
{
    const QList<QGraphicsItem *> items = view.scene()->items();
    for (const QGraphicsItem *item : items) {
        const auto *line = dynamic_cast<const GuideLine *>(item);
        if (line && line->objectName() == text(name))
            return line;
    }
    return nullptr;
}

} // namespace

/// Markers: placed, numbered, dragged, snapped, listed.
class TestChartMarkers : public QObject
{
    Q_OBJECT

private slots:
    void placesMarkers_data();
    void placesMarkers();
    void wantsACurveForAMarker();
    void numbersMarkers();
    void keepsTheTipOnTheCurve();
    void dragsMarkersAlongTheCurve_data();
    void dragsMarkersAlongTheCurve();
    void snapsMarkersToNewData();
    void hidesMarkersOutOfView();
    void listsMarkersInTheTable();
};

void TestChartMarkers::placesMarkers_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("placed");
    QTest::addColumn<double>("y");
    QTest::newRow("between two points") << Points{{0, -30}, {100, -10}} << 25.0 << true << -25.0;
    QTest::newRow("descending x") << Points{{100, -10}, {0, -30}} << 25.0 << true << -25.0;
    QTest::newRow("beyond the last point") << Points{{0, -30}, {40, -10}} << 60.0 << false << 0.0;
    QTest::newRow("above what is shown") << Points{{0, 20}, {100, 20}} << 50.0 << false << 0.0;
}

void TestChartMarkers::placesMarkers()
{
    QFETCH(Points, points);
    QFETCH(double, x);
    QFETCH(bool, placed);
    QFETCH(double, y);
    ChartBench bench(points);
    QVERIFY(bench.ready);
    bench.addMark(x);
    QCOMPARE(bench.view.marks().size(), placed ? 1 : 0);
    if (!placed)
        return;
    const MyMarkItem *mark = bench.mark(1);
    QVERIFY(std::abs(mark->valuePoint().x() - x) < 0.2); // the menu opens on whole pixels
    QVERIFY(std::abs(mark->valuePoint().y() - y) < 0.05);
    QCOMPARE(mark->pos(), bench.view.toScene(mark->valuePoint()) - QPointF(3, 12));
    QCOMPARE(mark->color(), bench.path->color());
    QVERIFY(bench.path->containsMarkid(1));
    QVERIFY(bench.path->getMarkTableDataStatus());
}

void TestChartMarkers::wantsACurveForAMarker()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    const ModalScript script({[](QWidget *box) {
        QCOMPARE(box->findChild<QLabel *>(text("reminderLabel"))->text(),
                 text("Please select the target graph"));
        box->close();
    }});
    bench.openMenu({50, -20}, [](ChartMenu &menu) { menu.close(); });
    ChartProbe::run(bench.view, "addMarkSlot");
    QVERIFY(script.isDone());
    QVERIFY(bench.view.marks().isEmpty());
}

void TestChartMarkers::numbersMarkers()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    bench.addMark(20);
    bench.addMark(40);
    QCOMPARE(bench.view.marks().keys(), (QList<int>{1, 2}));
    ChartProbe::run(bench.view, "deleteMarkSlot"); // none is selected
    QCOMPARE(bench.view.marks().size(), 2);

    ChartProbe::click(bench.view, bench.mark(1)->pos());
    QCOMPARE(bench.view.selectedMark(), bench.mark(1));
    ChartProbe::click(bench.view, bench.mark(2)->pos());
    QCOMPARE(bench.view.selectedMark(), bench.mark(2));
    ChartProbe::click(bench.view, bench.mark(1)->pos());
    QTest::mousePress(bench.view.viewport(), Qt::RightButton, Qt::NoModifier,
                      bench.mark(2)->pos().toPoint());
    QCOMPARE(bench.view.selectedMark(), bench.mark(2));
    QVERIFY(!bench.view.scene()->mouseGrabberItem()); // no release will come
    ChartProbe::click(bench.view, bench.mark(1)->pos());
    ChartProbe::run(bench.view, "deleteMarkSlot");
    QCOMPARE(bench.view.marks().keys(), (QList<int>{2}));
    QCOMPARE(bench.path->markIds(), (QList<int>{2}));
    bench.addMark(60);
    QCOMPARE(bench.view.marks().keys(), (QList<int>{1, 2}));
    QVERIFY(bench.mark(1)->valuePoint().x() > 59);
    bench.view.clearChart(1);
    QVERIFY(bench.view.marks().isEmpty());
}

void TestChartMarkers::keepsTheTipOnTheCurve()
{
    ChartBench bench(ChartProbe::sine(200, 0, 100, -20));
    QVERIFY(bench.ready);
    bench.addMark(30);
    const auto onTip = [&] {
        const MyMarkItem *mark = bench.mark(1);
        return mark->pos() == bench.view.toScene(mark->valuePoint()) - QPointF(3, 12);
    };
    bench.view.setXRange(0, 60);
    QVERIFY(onTip());
    bench.view.setScaleLevel(4, 20, -20);
    QVERIFY(onTip());
    bench.view.resize(600, 400);
    QVERIFY(onTip());
    ChartProbe::run(bench.view, "zoomSlot");
    ChartProbe::turnWheel(bench.view, {300, 200}, 120);
    QVERIFY(onTip());
    ChartProbe::run(bench.view, "resetSlot");
    QVERIFY(onTip());
    // A larger glyph for a selected marker has its tip in the same place.
    const QRectF plain = bench.mark(1)->boundingRect();
    ChartProbe::click(bench.view, bench.mark(1)->pos());
    QVERIFY(bench.mark(1)->isMarkSelected());
    QVERIFY(bench.mark(1)->boundingRect().height() > plain.height() + 2);
    QCOMPARE(bench.mark(1)->boundingRect().bottom(), plain.bottom());
    // Two lines lead from a selected marker to the axes.
    const QPointF tip = bench.mark(1)->tip();
    for (const auto &[name, vertical] :
         {std::pair("guideLine1", true), std::pair("guideLine2", false)}) {
        const auto *line = guideLine(bench.view, name);
        QVERIFY(line && line->isVisible());
        const QRectF area = line->path().boundingRect();
        QCOMPARE(vertical ? area.center().x() : area.center().y(), vertical ? tip.x() : tip.y());
    }
    ChartProbe::run(bench.view, "deleteMarkSlot");
    QVERIFY(!guideLine(bench.view, "guideLine1")->isVisible());
}

void TestChartMarkers::dragsMarkersAlongTheCurve_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<bool>("atEnd");
    QTest::newRow("to the right") << 0 << QPointF(120, 0) << false;
    QTest::newRow("off the curve") << 0 << QPointF(80, -150) << false;
    QTest::newRow("beyond the last point") << 0 << QPointF(2000, 30) << true;
    QTest::newRow("before the first point") << 0 << QPointF(-2000, 30) << true;
    QTest::newRow("round a polar chart") << 1 << QPointF(40, 60) << false;
}

void TestChartMarkers::dragsMarkersAlongTheCurve()
{
    QFETCH(int, kind);
    QFETCH(QPointF, way);
    QFETCH(bool, atEnd);
    ChartBench bench(ChartProbe::sine(300, 10, 90, -20), kind);
    QVERIFY(bench.ready);
    bench.addMark(40);
    QCOMPARE(bench.view.marks().size(), 1);
    MyMarkItem *mark = bench.mark(1);
    const double before = mark->valuePoint().x();
    const QPoint from = mark->pos().toPoint();
    QWidget *viewport = bench.view.viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 10; ++step) {
        const QPointF place = from + way * (step / 10.0);
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        const QPointF value = mark->valuePoint();
        QVERIFY(value.x() >= 10.0 && value.x() <= 90.0);
        QVERIFY(std::abs(value.y() - (-20 + 10 * std::sin(value.x() * 12.0 / 80.0))) < 0.05);
        QCOMPARE(mark->pos(), bench.view.toScene(value) - QPointF(3, 12));
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, (from + way).toPoint());
    QVERIFY(std::abs(mark->valuePoint().x() - before) > 1.0);
    if (atEnd)
        QCOMPARE(mark->valuePoint().x(), way.x() > 0 ? 90.0 : 10.0);
    const QPointF dropped = mark->valuePoint();
    QTest::mouseMove(viewport, from);
    QCOMPARE(mark->valuePoint(), dropped);
    QCOMPARE(bench.path->markTablePanel()->table()->item(0, 1)->text(),
             QString::number(dropped.x(), 'f', 2));
}

void TestChartMarkers::snapsMarkersToNewData()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    bench.addMark(50);
    const double x = bench.mark(1)->valuePoint().x();
    bench.path->setPoints({{0, -30}, {x, -30}, {x, -5}, {100, -5}});
    ChartProbe::run(bench.view, "zoomSlot");
    ChartProbe::turnWheel(bench.view, {300, 200}, 120);
    QCOMPARE(bench.mark(1)->valuePoint(), QPointF(x, -30));
    bench.path->setPoints({{x, -30}, {x, -5}, {100, -5}});
    bench.view.SymmetryResetSlot();
    QCOMPARE(bench.mark(1)->valuePoint(), QPointF(x, -5)); // a vertical segment's second point
    bench.path->setPoints({{0, -30}, {1, -30}});
    bench.view.SymmetryResetSlot();
    QCOMPARE(bench.mark(1)->valuePoint(), QPointF(x, -5)); // no curve there any more
}

void TestChartMarkers::hidesMarkersOutOfView()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    bench.addMark(50);
    QVERIFY(bench.mark(1)->isVisible());
    bench.view.setXRange(60, 100);
    QVERIFY(!bench.mark(1)->isVisible());
    bench.view.setXRange(0, 100);
    QVERIFY(bench.mark(1)->isVisible());
    bench.path->setHidden(true);
    QVERIFY(!bench.mark(1)->isVisible());
    bench.path->setHidden(false);
    QVERIFY(bench.mark(1)->isVisible());
    bench.path->setColor(Qt::magenta);
    QCOMPARE(bench.mark(1)->color(), QColor(Qt::magenta));
}

void TestChartMarkers::listsMarkersInTheTable()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    PathInfo *other = bench.view.addCurve(text("B"), {{0, -10}, {100, -10}});
    bench.addMark(20);
    bench.addMark(70);
    const MarkTable *table = bench.path->markTablePanel()->table();
    QVERIFY(bench.path->markTablePanel()->isVisible());
    QVERIFY(!other->markTablePanel()->isVisible());
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(1, 0)->text(), text("M2"));
    QCOMPARE(table->item(1, 2)->text(), text("-20.00"));
    // Every row can be seen.
    QVERIFY(table->height() >= table->horizontalHeader()->height() + 2 * table->rowHeight(0));
    ChartProbe::run(bench.view, "showOrHideMarkTableSlot");
    QVERIFY(!bench.path->markTablePanel()->isVisible());
}

MZ_TEST_MAIN(TestChartMarkers)

#include "tst_chartmarkers.moc"
