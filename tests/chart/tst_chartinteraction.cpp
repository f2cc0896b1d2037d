#include "2d/graphicsbase.h"
#include "2d/mymarkitem.h"
#include "2d/mypathitem.h"
#include "2d/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QClipboard>
#include <QGraphicsScene>
#include <QSignalSpy>
#include <QValueAxis>

#include <cmath>

using namespace QtCharts;
using ChartProbe::Points;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QVector<double> shown(const GraphicsBase &view)
{
    const ViewRange range = view.shownRange();
    return {range.xMin, range.xMax, range.yMin, range.yMax};
}

const Points flat{{0, -20}, {100, -20}};

} // namespace

/// What the operator does to a chart with mouse, keyboard and menu.
class TestChartInteraction : public QObject
{
    Q_OBJECT

private slots:
    void zoomsAboutThePointer_data();
    void zoomsAboutThePointer();
    void returnsHome();
    void takesHoldButMovesNothing();
    void selectsTheLastCurveHit();
    void signalsCurvesThatTheMouseMayTake();
    void enablesTheMenu();
    void endsModesWithTheMenu();
    void toggledTables();
    void obeysKeys_data();
    void obeysKeys();
};

void TestChartInteraction::zoomsAboutThePointer_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("factor");
    QTest::newRow("forward shows more") << 0 << 120 << 1.05;
    QTest::newRow("the slightest turn forward") << 0 << 1 << 1.05;
    QTest::newRow("backward shows less") << 0 << -120 << 1 / 1.05;
    QTest::newRow("polar: the levels alone") << 1 << -120 << 1 / 1.05;
}

void TestChartInteraction::zoomsAboutThePointer()
{
    QFETCH(int, kind);
    QFETCH(int, delta);
    QFETCH(double, factor);
    ChartBench bench(flat, kind);
    QVERIFY(bench.ready);
    const ViewRange before = bench.view.shownRange();
    const QPointF pointer(300, 200);
    ChartProbe::turnWheel(bench.view, pointer, delta); // without the zoom mode: nothing
    ChartProbe::run(bench.view, "zoomSlot");
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::CrossCursor);
    const QPointF centre = bench.view.toValue(pointer);
    for (int turn = 0; turn < 2; ++turn)
        ChartProbe::turnWheel(bench.view, pointer, delta);
    const ViewRange after = bench.view.shownRange();
    QCOMPARE(after.yMax - after.yMin, (before.yMax - before.yMin) * factor * factor);
    if (kind == 0) {
        QCOMPARE(after.xMax - after.xMin, (before.xMax - before.xMin) * factor * factor);
        // What is under the pointer stays there.
        QVERIFY((bench.view.toScene(centre) - pointer).manhattanLength() < 3.0);
    } else {
        QCOMPARE(after.xMin, before.xMin);
        QCOMPARE(after.xMax, before.xMax);
    }
    const QList<QPointF> drawn = bench.path->pathItem()->drawnPoints();
    QCOMPARE(drawn.at(0), bench.view.toScene(flat.at(0)));
}

void TestChartInteraction::returnsHome()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    const QVector<double> home = shown(bench.view);
    ChartProbe::run(bench.view, "zoomSlot");
    for (int turn = 0; turn < 7; ++turn)
        ChartProbe::turnWheel(bench.view, {300, 200}, turn % 3 ? -120 : 120);
    QVERIFY(shown(bench.view) != home);
    ChartProbe::run(bench.view, "resetSlot");
    QCOMPARE(shown(bench.view), home);
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(bench.path->pathItem()->drawnPoints().at(1), bench.view.toScene(flat.at(1)));
    ChartProbe::turnWheel(bench.view, {300, 200}, 120); // the zoom mode has ended
    QCOMPARE(shown(bench.view), home);
}

void TestChartInteraction::takesHoldButMovesNothing()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    const QVector<double> before = shown(bench.view);
    ChartProbe::run(bench.view, "panSlot");
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::OpenHandCursor);
    const QPoint place = bench.view.toScene({50, -20}).toPoint();
    QTest::mousePress(bench.view.viewport(), Qt::RightButton, Qt::NoModifier, place);
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(bench.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseMove(bench.view.viewport(), place + QPoint(50, 50));
    QTest::mouseRelease(bench.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(shown(bench.view), before);
    QVERIFY(!bench.view.selectedPath()); // nor does the press reach the curve under it
    bench.view.panResetSlot();
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
    ChartProbe::click(bench.view, place);
    QVERIFY(bench.view.selectedPath());
}

void TestChartInteraction::selectsTheLastCurveHit()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    bench.view.addCurve(text("B"), {{0, 0}, {100, -40}});
    bench.view.addCurve(text("C"), {{0, -35}, {100, -35}});
    ChartProbe::click(bench.view, bench.view.toScene({20, -20}));
    QCOMPARE(bench.view.selectedPath()->pathId(), 1);
    ChartProbe::click(bench.view, bench.view.toScene({50, -20})); // where two of them cross
    QCOMPARE(bench.view.selectedPath()->pathId(), 2);
    ChartProbe::click(bench.view, bench.view.toScene({20, -35}));
    QCOMPARE(bench.view.selectedPath()->pathId(), 3);
    for (const PathInfo *path : bench.view.paths())
        QCOMPARE(path->isSelected(), path->pathId() == 3);
}

void TestChartInteraction::signalsCurvesThatTheMouseMayTake()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    QSignalSpy selected(bench.path, &PathInfo::selectPathId);
    bench.path->pathItem()->setSelectionMode(MyPathItem::NotSelectable);
    ChartProbe::click(bench.view, bench.view.toScene({50, -20}));
    QCOMPARE(selected.size(), 0);
    bench.path->pathItem()->setSelectionMode(MyPathItem::Selectable);
    bench.path->setHidden(true);
    ChartProbe::click(bench.view, bench.view.toScene({50, -20}));
    QCOMPARE(selected.size(), 0);
    bench.path->setHidden(false);
    ChartProbe::click(bench.view, bench.view.toScene({50, -20}));
    QVERIFY(!selected.isEmpty());
    QCOMPARE(selected.last().first().toInt(), 1);
}

void TestChartInteraction::enablesTheMenu()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    QApplication::clipboard()->clear();
    using Entry = ChartMenu::Entry;
    bench.openMenu({50, -30}, [](ChartMenu &menu) {
        for (const Entry entry : {Entry::Copy, Entry::Paste, Entry::DeleteMark, Entry::Symmetry})
            QVERIFY(!menu.entry(entry)->isEnabled());
        for (const auto &[entry, name] :
             {std::pair(Entry::ExportData, "Export Graphics As CSV"),
              std::pair(Entry::ExportImage, "Export Graphics As Image"),
              std::pair(Entry::Manager, "Manager Graphics"), std::pair(Entry::Pan, "Pan"),
              std::pair(Entry::Reset, "Reset")})
            QCOMPARE(menu.entry(entry)->text(), text(name));
    });
    bench.addMark(50);
    bench.chooseEntry({50, -30}, Entry::Copy);
    bench.view.finishUpdateChart();
    bench.openMenu({50, -30}, [](ChartMenu &menu) {
        for (const Entry entry : {Entry::Copy, Entry::Paste, Entry::DeleteMark, Entry::Symmetry})
            QVERIFY(menu.entry(entry)->isEnabled());
    });
    bench.chooseEntry({50, -30}, Entry::ClearSelection);
    QVERIFY(!bench.view.selectedPath());
}

void TestChartInteraction::endsModesWithTheMenu()
{
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    ChartProbe::run(bench.view, "zoomSlot");
    ChartProbe::run(bench.view, "panSlot");
    bench.openMenu({50, -30}, [](ChartMenu &) {});
    QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::ArrowCursor);
    const QVector<double> before = shown(bench.view);
    ChartProbe::turnWheel(bench.view, {300, 200}, 120);
    QCOMPARE(shown(bench.view), before);
}

void TestChartInteraction::toggledTables()
{
    ChartBench bench(ChartProbe::sine(100, 0, 100, -20));
    QVERIFY(bench.ready);
    bench.view.finishUpdateChart();
    QSignalSpy filled(&bench.view, &GraphicsBase::updateParaInfoToTable);
    QSignalSpy emptied(&bench.view, &GraphicsBase::clearParaInfoToTable);
    ChartProbe::run(bench.view, "showOrHideParameterTableSlot");
    QCOMPARE(filled.size(), 0); // no curve is selected
    bench.view.updatePathSelection(1);
    ChartProbe::run(bench.view, "showOrHideParameterTableSlot");
    QCOMPARE(filled.size(), 1);
    QVERIFY(std::abs(filled.last().first().value<ParaInfo>().gain.second + 10.0) < 0.1);
    bool checked = false;
    bench.openMenu({50, -30}, [&](ChartMenu &menu) {
        checked = menu.entry(ChartMenu::Entry::ParameterTable)->isChecked();
    });
    QVERIFY(checked);
    bench.view.addCurve(text("B"), ChartProbe::sine(100, 0, 100, -25));
    bench.view.updatePathSelection(2); // the table follows the selection
    QCOMPARE(filled.size(), 2);
    QCOMPARE(emptied.size(), 0);
    ChartProbe::run(bench.view, "clearSelectionSlot");
    QCOMPARE(emptied.size(), 1);
    bench.view.updatePathSelection(1);
    ChartProbe::run(bench.view, "showOrHideParameterTableSlot");
    ChartProbe::run(bench.view, "showOrHideParameterTableSlot");
    QCOMPARE(filled.size(), 3);
    QCOMPARE(emptied.size(), 2);
}

void TestChartInteraction::obeysKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QVector<double>>("range");
    using Range = QVector<double>;
    const double out = 1.05;
    const double in = 1 / 1.05;
    QTest::newRow("left") << int(Qt::Key_Left) << Range{-10, 90, -40, 0};
    QTest::newRow("right") << int(Qt::Key_Right) << Range{10, 110, -40, 0};
    QTest::newRow("up") << int(Qt::Key_Up) << Range{0, 100, -36, 4};
    QTest::newRow("down") << int(Qt::Key_Down) << Range{0, 100, -44, -4};
    QTest::newRow("minus") << int(Qt::Key_Minus)
                           << Range{50 - 50 * out, 50 + 50 * out, -20 - 20 * out, -20 + 20 * out};
    QTest::newRow("plus") << int(Qt::Key_Plus)
                          << Range{50 - 50 * in, 50 + 50 * in, -20 - 20 * in, -20 + 20 * in};
}

void TestChartInteraction::obeysKeys()
{
    QFETCH(int, key);
    QFETCH(QVector<double>, range);
    ChartBench bench(flat);
    QVERIFY(bench.ready);
    QTest::keyClick(&bench.view, static_cast<Qt::Key>(key));
    QCOMPARE(shown(bench.view), range);
    const auto *axis = qobject_cast<QValueAxis *>(bench.view.chart()->axes(Qt::Horizontal).first());
    QCOMPARE(axis->min(), range[0]);
    QTest::keyClick(&bench.view, Qt::Key_Home);
    QCOMPARE(shown(bench.view), (QVector<double>{0, 100, -40, 0}));

    bench.addMark(50);
    ChartProbe::click(bench.view, bench.mark(1)->pos());
    QTest::keyClick(&bench.view, Qt::Key_Delete);
    QVERIFY(bench.view.marks().isEmpty());
    QApplication::clipboard()->clear();
    QTest::keyClick(&bench.view, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QApplication::clipboard()->text().startsWith(text("A\nAngle,Power\n")));
}

MZ_TEST_MAIN(TestChartInteraction)

#include "tst_chartinteraction.moc"
