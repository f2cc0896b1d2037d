#include "2d/scene/guidelines.h"
#include "2d/scene/marktable.h"
#include "2d/scene/mymarkitem.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QClipboard>
#include <QGraphicsScene>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include <cmath>

using namespace ChartProbe;

namespace {

using Ends = QVector<double>;
using Entry = ChartMenu::Entry;

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

/// Where a marker has to be drawn for its tip to point at its value.
QPointF place(const ChartBench &bench, const MyMarkItem *mark)
{
    return bench.view.toScene(mark->valuePoint()) - QPointF(3, 12);
}

} // namespace

/// What the user does to a chart with mouse, keyboard and menu, and to its markers.
class TestChartInteraction : public QObject
{
    Q_OBJECT

private slots:
    void zoomsAboutThePointer_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("delta");
        QTest::addColumn<double>("factor");
        QTest::newRow("forward shows more") << 0 << 120 << 1.05;
        QTest::newRow("the slightest turn forward") << 0 << 1 << 1.05;
        QTest::newRow("backward shows less") << 0 << -120 << 1 / 1.05;
        QTest::newRow("polar: the levels alone") << 1 << -120 << 1 / 1.05;
    }

    void zoomsAboutThePointer()
    {
        QFETCH(int, kind);
        QFETCH(int, delta);
        QFETCH(double, factor);
        ChartBench bench(flat(), kind);
        const Ends home = shown(bench.view);
        const QPointF pointer(300, 200);
        turnWheel(bench.view, pointer, delta); // without the zoom mode: nothing
        run(bench.view, "zoomSlot");
        QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::CrossCursor);
        const QPointF centre = bench.view.toValue(pointer);
        for (int turn = 0; turn < 2; ++turn)
            turnWheel(bench.view, pointer, delta);
        const Ends after = shown(bench.view);
        QCOMPARE(after[3] - after[2], 40.0 * factor * factor);
        if (kind == 0) {
            QCOMPARE(after[1] - after[0], 100.0 * factor * factor);
            // What is under the pointer stays there.
            QVERIFY((bench.view.toScene(centre) - pointer).manhattanLength() < 3.0);
        } else {
            QCOMPARE(after.mid(0, 2), (Ends{-180, 180}));
        }
        QCOMPARE(bench.drawn().at(0), bench.view.toScene(flat().at(0)));
        run(bench.view, "resetSlot");
        QCOMPARE(bench.view.viewport()->cursor().shape(), Qt::ArrowCursor);
        turnWheel(bench.view, pointer, delta); // the zoom mode has ended
        QCOMPARE(shown(bench.view), home);
        QCOMPARE(bench.drawn().at(1), bench.view.toScene(flat().at(1)));
    }

    void zoomsAndPansInAnyMode()
    {
        ChartBench bench(flat());
        const QPointF pointer(300, 200);
        const QPointF held = bench.view.toValue(pointer);
        const auto off = [&](const QPointF &place) {
            return (bench.view.toScene(held) - place).manhattanLength();
        };
        turnWheel(bench.view, pointer, -120, Qt::ControlModifier);
        QVERIFY(shown(bench.view)[1] - shown(bench.view)[0] < 96.0);
        QVERIFY(off(pointer) < 3.0);
        QTest::mousePress(bench.view.viewport(), Qt::MiddleButton, Qt::NoModifier,
                          pointer.toPoint());
        for (const QPointF &place : {QPointF(340, 180), QPointF(380, 150)}) {
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::MiddleButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(bench.view.viewport(), &move);
            QVERIFY(off(place) < 3.0);
        }
        QTest::mouseRelease(bench.view.viewport(), Qt::MiddleButton, Qt::NoModifier,
                            QPoint(380, 150));
        const Ends after = shown(bench.view);
        QTest::mouseMove(bench.view.viewport(), QPoint(100, 100));
        QCOMPARE(shown(bench.view), after);
    }

    void letsTheTabulatorLeave()
    {
        QWidget window;
        QLineEdit field(&window);
        auto *view = new GraphicsBase(0, &window);
        view->setFocusPolicy(Qt::StrongFocus);
        view->addCurve(text("A"), flat());
        window.show();
        QApplication::setActiveWindow(&window);
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            view->setFocus();
            QTest::keyClick(view, key);
            QVERIFY(field.hasFocus());
        }
    }

    void doesAllWithoutAMouse()
    {
        ChartBench bench(sine(200, 0, 100, -20));
        bench.view.addCurve(text("B"), flat());
        QTest::keyClick(&bench.view, Qt::Key_PageDown);
        QCOMPARE(bench.view.selectedPath(), bench.path);
        QTest::keyClick(&bench.view, Qt::Key_Insert);
        QCOMPARE(bench.view.selectedMark(), bench.mark(1));
        QVERIFY(std::abs(bench.mark(1)->valuePoint().y() + 10.0) < 0.1);
        const double x = bench.mark(1)->valuePoint().x();
        QTest::keyClick(&bench.view, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY(std::abs(bench.mark(1)->valuePoint().x() - x - 0.5) < 1e-6);
        QTest::keyClick(&bench.view, Qt::Key_PageUp);
        QCOMPARE(bench.view.selectedPath()->pathId(), 2);
        QTest::keyClick(&bench.view, Qt::Key_Insert);
        QTest::keyClick(&bench.view, Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(bench.view.selectedMark(), bench.mark(1));
        bench.path->setHidden(true); // which the keys pass over
        QTest::keyClick(&bench.view, Qt::Key_PageDown);
        QCOMPARE(bench.view.selectedPath()->pathId(), 2);
        QTest::keyClick(&bench.view, Qt::Key_PageDown);
        QCOMPARE(bench.view.selectedPath()->pathId(), 2);
    }

    void takesHoldButMovesNothing()
    {
        ChartBench bench(flat());
        QWidget *viewport = bench.view.viewport();
        run(bench.view, "panSlot");
        QCOMPARE(viewport->cursor().shape(), Qt::OpenHandCursor);
        const QPoint curve = bench.view.toScene({50, -20}).toPoint();
        QTest::mousePress(viewport, Qt::RightButton, Qt::NoModifier, curve);
        QCOMPARE(viewport->cursor().shape(), Qt::OpenHandCursor);
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, curve);
        QCOMPARE(viewport->cursor().shape(), Qt::ClosedHandCursor);
        QTest::mouseMove(viewport, curve + QPoint(50, 50));
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, curve);
        QCOMPARE(shown(bench.view), (Ends{0, 100, -40, 0}));
        QVERIFY(!bench.view.selectedPath()); // nor does the press reach the curve under it
        bench.view.panResetSlot();
        QCOMPARE(viewport->cursor().shape(), Qt::ClosedHandCursor);
    }

    void selectsTheLastCurveHit()
    {
        ChartBench bench(flat());
        bench.view.addCurve(text("B"), {{0, 0}, {100, -40}});
        bench.view.addCurve(text("C"), {{0, -35}, {100, -35}});
        const auto selectedAt = [&bench](const QPointF &value) {
            click(bench.view, bench.view.toScene(value));
            return bench.view.selectedPath()->pathId();
        };
        QCOMPARE(selectedAt({20, -20}), 1);
        QCOMPARE(selectedAt({50, -20}), 2); // where two of them cross
        // There the one that lies on top would be dragged, were it not for the selection.
        bench.view.updatePathSelection(1);
        QWidget *viewport = bench.view.viewport();
        const QPoint cross = bench.view.toScene({50, -20}).toPoint();
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, cross);
        QCOMPARE(bench.view.scene()->mouseGrabberItem(),
                 static_cast<QGraphicsItem *>(bench.view.paths().value(2)->pathItem()));
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, cross);
        QVERIFY(!bench.view.scene()->mouseGrabberItem());
        QCOMPARE(selectedAt({20, -35}), 3);
        for (const PathInfo *path : bench.view.paths())
            QCOMPARE(path->isSelected(), path->pathId() == 3);
        // The mouse takes neither a curve that may not be selected nor one that is hidden.
        bench.path->pathItem()->setSelectionMode(MyPathItem::NotSelectable);
        QCOMPARE(selectedAt({20, -20}), 3);
        bench.path->pathItem()->setSelectionMode(MyPathItem::Selectable);
        bench.path->setHidden(true);
        QCOMPARE(selectedAt({20, -20}), 3);
    }

    void toggledTables()
    {
        ChartBench bench(sine(100, 0, 100, -20));
        bench.view.finishUpdateChart();
        QSignalSpy filled(&bench.view, &GraphicsBase::updateParaInfoToTable);
        QSignalSpy emptied(&bench.view, &GraphicsBase::clearParaInfoToTable);
        run(bench.view, "showOrHideParameterTableSlot");
        QCOMPARE(filled.size(), 0); // no curve is selected
        bench.view.updatePathSelection(1);
        run(bench.view, "showOrHideParameterTableSlot");
        QCOMPARE(filled.size(), 1);
        QVERIFY(std::abs(filled.last().first().value<ParaInfo>().gain.second + 10.0) < 0.1);
        bool checked = false;
        bench.openMenu({50, -30}, [&checked](ChartMenu &menu) {
            checked = menu.entry(Entry::ParameterTable)->isChecked();
        });
        QVERIFY(checked);
        bench.view.addCurve(text("B"), sine(100, 0, 100, -25));
        bench.view.updatePathSelection(2); // the table follows the selection
        QCOMPARE(filled.size(), 2);
        click(bench.view, bench.view.toScene({65.4, -10})); // on the table, which is above curve 1
        QCOMPARE(bench.view.selectedPath()->pathId(), 2);
        QCOMPARE(emptied.size(), 0);
        run(bench.view, "clearSelectionSlot");
        QCOMPARE(emptied.size(), 1);
        // A hidden curve has no figures to show.
        bench.view.updatePathSelection(2);
        run(bench.view, "showOrHideParameterTableSlot");
        bench.view.paths()[1]->setHidden(true);
        filled.clear();
        emptied.clear();
        bench.view.updatePathSelection(1);
        QCOMPARE(filled.size(), 0);
        QCOMPARE(emptied.size(), 1);
    }

    void obeysKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Ends>("range");
        const auto scaled = [](double factor) {
            return Ends{50 - 50 * factor, 50 + 50 * factor, -20 - 20 * factor, -20 + 20 * factor};
        };
        QTest::newRow("left") << int(Qt::Key_Left) << Ends{-10, 90, -40, 0};
        QTest::newRow("right") << int(Qt::Key_Right) << Ends{10, 110, -40, 0};
        QTest::newRow("up") << int(Qt::Key_Up) << Ends{0, 100, -36, 4};
        QTest::newRow("down") << int(Qt::Key_Down) << Ends{0, 100, -44, -4};
        QTest::newRow("minus") << int(Qt::Key_Minus) << scaled(1.05);
        QTest::newRow("plus") << int(Qt::Key_Plus) << scaled(1 / 1.05);
    }

    void obeysKeys()
    {
        QFETCH(int, key);
        QFETCH(Ends, range);
        ChartBench bench(flat());
        QTest::keyClick(&bench.view, static_cast<Qt::Key>(key));
        QCOMPARE(shown(bench.view), range);
        QTest::keyClick(&bench.view, Qt::Key_Home);
        QCOMPARE(shown(bench.view), (Ends{0, 100, -40, 0}));

        bench.addMark(50);
        click(bench.view, bench.mark(1)->pos());
        QTest::keyClick(&bench.view, Qt::Key_Delete);
        QVERIFY(bench.view.marks().isEmpty());
        QApplication::clipboard()->clear();
        QTest::keyClick(&bench.view, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().startsWith(text("A\nAngle,Power\n")));
    }

    void placesMarkers()
    {
        for (const Points &points : {Points{{0, -30}, {100, -10}}, Points{{100, -10}, {0, -30}}}) {
            ChartBench bench(points);
            bench.addMark(25);
            const MyMarkItem *mark = bench.mark(1);
            QVERIFY(std::abs(mark->valuePoint().x() - 25) < 0.2); // the menu opens on whole pixels
            QVERIFY(std::abs(mark->valuePoint().y() + 25.0) < 0.05);
            QCOMPARE(mark->pos(), place(bench, mark));
            QCOMPARE(mark->color(), bench.path->color());
            QVERIFY(bench.path->containsMarkid(1) && bench.path->getMarkTableDataStatus());
        }
        // Neither beyond the last point nor above what is shown.
        for (const Points &points : {Points{{0, -30}, {40, -10}}, Points{{0, 20}, {100, 20}}}) {
            ChartBench bench(points);
            bench.addMark(60);
            QVERIFY(bench.view.marks().isEmpty());
        }
    }

    void wantsACurveForAMarker()
    {
        ChartBench bench(flat());
        const ModalScript script({[](QWidget *box) {
            QCOMPARE(box->findChild<QLabel *>(text("reminderLabel"))->text(),
                     text("Please select the target graph"));
            box->close();
        }});
        bench.openMenu({50, -20}, [](ChartMenu &menu) { menu.close(); });
        run(bench.view, "addMarkSlot");
        QVERIFY(script.isDone());
        QVERIFY(bench.view.marks().isEmpty());
    }

    void numbersMarkers()
    {
        ChartBench bench(flat());
        bench.addMark(20);
        bench.addMark(40);
        QCOMPARE(bench.view.marks().keys(), (QList<int>{1, 2}));
        run(bench.view, "deleteMarkSlot"); // none is selected
        QCOMPARE(bench.view.marks().size(), 2);

        for (const int number : {1, 2, 1}) {
            click(bench.view, bench.mark(number)->pos());
            QCOMPARE(bench.view.selectedMark(), bench.mark(number));
        }
        QTest::mousePress(bench.view.viewport(), Qt::RightButton, Qt::NoModifier,
                          bench.mark(2)->pos().toPoint());
        QCOMPARE(bench.view.selectedMark(), bench.mark(2));
        QVERIFY(!bench.view.scene()->mouseGrabberItem()); // no release will come
        click(bench.view, bench.mark(1)->pos());
        run(bench.view, "deleteMarkSlot");
        QCOMPARE(bench.view.marks().keys(), (QList<int>{2}));
        QCOMPARE(bench.path->markIds(), (QList<int>{2}));
        bench.addMark(60);
        QCOMPARE(bench.view.marks().keys(), (QList<int>{1, 2}));
        QVERIFY(bench.mark(1)->valuePoint().x() > 59);
        bench.view.clearChart(1);
        QVERIFY(bench.view.marks().isEmpty());
    }

    void keepsTheTipOnTheCurve()
    {
        ChartBench bench(sine(200, 0, 100, -20));
        bench.addMark(30);
        const MyMarkItem *mark = bench.mark(1);
        bench.view.setXRange(0, 60);
        QCOMPARE(mark->pos(), place(bench, mark));
        bench.view.setScaleLevel(4, 20, -20);
        QCOMPARE(mark->pos(), place(bench, mark));
        bench.view.resize(600, 400);
        QCOMPARE(mark->pos(), place(bench, mark));
        run(bench.view, "zoomSlot");
        turnWheel(bench.view, {300, 200}, 120);
        QCOMPARE(mark->pos(), place(bench, mark));
        // A larger glyph for a selected marker has its tip in the same place.
        const QRectF plain = mark->boundingRect();
        click(bench.view, mark->pos());
        QVERIFY(mark->isMarkSelected());
        QVERIFY(mark->boundingRect().height() > plain.height() + 2);
        QCOMPARE(mark->boundingRect().bottom(), plain.bottom());
        // Two lines lead from a selected marker to the axes.
        const GuideLine *down = guideLine(bench.view, "guideLine1");
        const GuideLine *across = guideLine(bench.view, "guideLine2");
        QVERIFY(down->isVisible() && across->isVisible());
        QCOMPARE(down->path().boundingRect().center().x(), mark->tip().x());
        QCOMPARE(across->path().boundingRect().center().y(), mark->tip().y());
        run(bench.view, "deleteMarkSlot");
        QVERIFY(!down->isVisible());
    }

    void dragsMarkersAlongTheCurve_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QPointF>("way");
        QTest::newRow("to the right") << 0 << QPointF(120, 0);
        QTest::newRow("off the curve") << 0 << QPointF(80, -150);
        QTest::newRow("beyond the last point") << 0 << QPointF(2000, 30);
        QTest::newRow("before the first point") << 0 << QPointF(-2000, 30);
        QTest::newRow("round a polar chart") << 1 << QPointF(40, 60);
    }

    void dragsMarkersAlongTheCurve()
    {
        QFETCH(int, kind);
        QFETCH(QPointF, way);
        ChartBench bench(sine(300, 10, 90, -20), kind);
        bench.addMark(40);
        const MyMarkItem *mark = bench.mark(1);
        const double before = mark->valuePoint().x();
        const QPoint from = mark->pos().toPoint();
        QWidget *viewport = bench.view.viewport();
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
        for (int step = 1; step <= 10; ++step) {
            const QPointF spot = from + way * (step / 10.0);
            QMouseEvent move(QEvent::MouseMove, spot, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(viewport, &move);
            const QPointF value = mark->valuePoint();
            QVERIFY(value.x() >= 10.0 && value.x() <= 90.0);
            QVERIFY(std::abs(value.y() - (-20 + 10 * std::sin(value.x() * 12.0 / 80.0))) < 0.05);
            QCOMPARE(mark->pos(), place(bench, mark));
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, (from + way).toPoint());
        const QPointF dropped = mark->valuePoint();
        QVERIFY(std::abs(dropped.x() - before) > 1.0);
        if (std::abs(way.x()) > 1000.0)
            QCOMPARE(dropped.x(), way.x() > 0 ? 90.0 : 10.0);
        QTest::mouseMove(viewport, from);
        QCOMPARE(mark->valuePoint(), dropped);
        QCOMPARE(bench.path->markTablePanel()->table()->item(0, 1)->text(),
                 QString::number(dropped.x(), 'f', 2));
    }

    void hidesMarkersOutOfView()
    {
        ChartBench bench(flat());
        bench.addMark(50);
        const MyMarkItem *mark = bench.mark(1);
        QVERIFY(mark->isVisible());
        bench.view.setXRange(60, 100);
        QVERIFY(!mark->isVisible());
        bench.view.setXRange(0, 100);
        QVERIFY(mark->isVisible());
        bench.path->setHidden(true);
        QVERIFY(!mark->isVisible());
        bench.path->setColor(Qt::magenta);
        QCOMPARE(mark->color(), QColor(Qt::magenta));
    }

    void listsMarkersInTheTable()
    {
        ChartBench bench(flat());
        const PathInfo *other = bench.view.addCurve(text("B"), {{0, -10}, {100, -10}});
        bench.addMark(20);
        bench.addMark(70);
        const MarkTablePanel *panel = bench.path->markTablePanel();
        QVERIFY(panel->isVisible() && !other->markTablePanel()->isVisible());
        const MarkTable *table = panel->table();
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->item(1, 0)->text(), text("M2"));
        QCOMPARE(table->item(1, 2)->text(), text("-20.00"));
        bench.addMark(90);
        bench.view.setMarkDeltas(true);
        QCOMPARE(table->item(2, 0)->text(), text("M3 - M1"));
        QVERIFY(std::abs(table->item(2, 1)->text().toDouble() - 70.0) < 0.5);
        // Every row can be seen.
        QVERIFY(table->height() >= table->horizontalHeader()->height() + 2 * table->rowHeight(0));
        // A press on the table is none on the curve below it.
        const QPointF below = bench.view.toScene({50, -20});
        bench.path->markTablePanel()->setPos(below - QPointF(20, 20));
        run(bench.view, "clearSelectionSlot");
        click(bench.view, below);
        QVERIFY(!bench.view.selectedPath());
        bench.path->setHidden(true);
        QVERIFY(!panel->isVisible());
        bench.path->setHidden(false);
        QVERIFY(panel->isVisible());
        run(bench.view, "showOrHideMarkTableSlot");
        QVERIFY(!panel->isVisible());
    }
};

MZ_TEST(TestChartInteraction)

#include "tst_chartinteraction.moc"
