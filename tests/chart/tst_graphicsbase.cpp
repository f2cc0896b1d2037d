#include "2d/data/chartmapping.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QSignalSpy>
#include <QValueAxis>

#include <cmath>
#include <functional>
#include <random>

using namespace QtCharts;
using namespace ChartProbe;

namespace {

using Ends = QVector<double>;

QValueAxis *axis(const GraphicsBase &view, Qt::Orientation orientation)
{
    return qobject_cast<QValueAxis *>(view.chart()->axes(orientation).value(0));
}

} // namespace

/// Axes, ranges, titles and the feed of the time chart.
class TestGraphicsBase : public QObject
{
    Q_OBJECT

private slots:
    void startsAsTimeChart()
    {
        GraphicsBase view(0, nullptr);
        const QValueAxis *x = axis(view, Qt::Horizontal);
        const QValueAxis *y = axis(view, Qt::Vertical);
        QCOMPARE(shown(view), (Ends{0, 10, -80, 20}));
        QCOMPARE(y->tickCount(), 6);
        QCOMPARE(x->tickCount(), 11);
        QCOMPARE(y->titleText(), text("Power[dBm]"));
        QVERIFY(!view.chart()->legend()->isVisible());
        view.setXPeriod(5);
        view.retitle();
        QCOMPARE(x->titleText(), text("Last 5 minutes"));
        view.setScaleLevel(10, 5, 0);
        QCOMPARE(y->tickCount(), 11);
        QCOMPARE(y->max(), 25.0);
        // This is the range that "reset" comes back to.
        view.setLimitXY({5, 0}, 3.0);
        run(view, "resetSlot");
        QCOMPARE(shown(view), (Ends{0, 5, -25, 25}));
    }

    /// Whatever is asked of it, such a view just shows nothing.
    void buildsNothingForAnotherKind()
    {
        GraphicsBase view(2, nullptr);
        QVERIFY(!view.chart());
        view.resetChart({text("A")});
        view.setAxisYTitle(text("Y"));
        view.setYRange(0, 1, 5);
        view.SymmetrySlot();
        show(view);
        view.clearChart();
        QVERIFY(view.paths().isEmpty());
    }

    void scrollsWithTime()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        view.updateChart(1, {10.0, -20});
        QCOMPARE(shown(view).mid(0, 2), (Ends{0, 10}));
        view.updateChart(1, {10.5, -20});
        QCOMPARE(shown(view).mid(0, 2), (Ends{0.5, 10.5}));
        QCOMPARE(axis(view, Qt::Horizontal)->max(), 10.5);
        // Offsets are added to points that come later.
        view.setOffset(-1, 5);
        view.updateChart(1, {12.0, -20});
        QCOMPARE(view.paths()[1]->points().last(), QPointF(11, -15));
        view.setOffset(0, 0);
        // Time that starts again leaves the window where it is until the data are cleared.
        view.updateChart(1, {0.0, -20});
        const Ends before = shown(view);
        QCOMPARE(before.mid(0, 2), (Ends{1, 11}));
        view.retitle(); // for another language, in which the same minutes are shown
        QCOMPARE(shown(view).mid(0, 2), (Ends{1, 11}));
        view.setYRange(before[2], before[3], 5);
        view.clearChartData(1);
        QCOMPARE(view.paths()[1]->series()->count(), 0);
        QCOMPARE(shown(view), (Ends{0, 10, before[2], before[3]}));
    }

    void followsTimeWhenZoomed()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        view.updateChart(1, {7.0, -20});
        view.setLimitXY({4, -20}, 0.5);
        view.panResetSlot();
        QCOMPARE(shown(view).mid(0, 2), (Ends{2, 7}));
        view.updateChart(1, {8.0, -20});
        QCOMPARE(shown(view).mid(0, 2), (Ends{0, 8})); // not before the beginning
        view.updateChart(1, {12.0, -20});
        QCOMPARE(shown(view).mid(0, 2), (Ends{2, 12}));
        QCOMPARE(axis(view, Qt::Horizontal)->max(), 12.0);
    }

    void writesNumbersAndTextsOut()
    {
        GraphicsBase view(0, nullptr);
        const QValueAxis *x = axis(view, Qt::Horizontal);
        QCOMPARE(x->labelFormat(), text("%.1f"));
        view.setXRange(0, 0.5);
        QCOMPARE(x->labelFormat(), text("%.2f"));
        view.setLabelFormat(text("%g"));
        view.setXRange(-180, 170);
        QCOMPARE(x->labelFormat(), text("%g"));
        view.setXRange(-171.31, 171.9);
        QCOMPARE(x->labelFormat(), text("%.0f"));
        view.setXRange(-171.31, 170.9); // with a tick that would read "-0"
        QCOMPARE(x->labelFormat(), text("%.1f"));
        // Charts take their texts for rich ones.
        view.setChartTitle(text("a<b> & c"));
        QCOMPARE(view.chart()->title(), text("a&lt;b&gt; &amp; c"));
    }

    void keepsOnePeriodOfPoints()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        const QLineSeries *series = view.paths()[1]->series();
        for (int n = 0; n <= 602; ++n) {
            view.updateChart(1, {n / 60.0, -20});
            QCOMPARE(series->count(), qMin(n + 1, 601));
            QCOMPARE(series->at(0).x(), qMax(n - 600, 0) / 60.0);
        }
        QCOMPARE(series->at(600).x(), 602 / 60.0);
    }

    void startsUpsideDown()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        view.updateChart(1, {0, -20.4});
        QCOMPARE(shown(view).mid(2), (Ends{989, -989}));
        // An axis cannot stand upside down: it takes what was set last.
        QCOMPARE(axis(view, Qt::Vertical)->max(), -989.0);
        view.updateChart(1, {0.1, -3});
        QCOMPARE(shown(view).mid(2), (Ends{-31, -10}));
        view.updateChart(1, {0.2, -3});
        QCOMPARE(shown(view).mid(2), (Ends{-31, 7}));
    }

    void drawsTheFeedAtOnce()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        show(view, 900, 500);
        const PathInfo *path = view.paths()[1];
        for (int n = 0; n < 400; ++n) {
            view.updateChart(1, {n / 60.0, -20 + 5 * std::sin(n * 0.05)});
            QCOMPARE(path->pathItem()->drawnPoints().size(), n + 1);
        }
        QCOMPARE(view.size(), QSize(900, 500));
        const QPointF middle = path->points().at(200);
        QVERIFY(showsCurve(view, picture(view), 1, middle));
        view.clearChartData(1);
        QVERIFY(!showsCurve(view, picture(view), 1, middle));
    }

    void resetsTwiceAlike()
    {
        GraphicsBase view(0, nullptr);
        for (int round = 0; round < 2; ++round) {
            view.resetChart({text("A"), text("B"), text("C")});
            QCOMPARE(names(view), text("A|B|C"));
            QCOMPARE(view.chart()->series().size(), 3);
        }
        // A click that was connected twice would hide the curve and show it again.
        for (QLegendMarker *marker : view.chart()->legend()->markers())
            emit marker->clicked();
        for (const PathInfo *path : view.paths())
            QVERIFY(path->isHidden());
    }

    void leavesAngularAxisAlone()
    {
        GraphicsBase view(1, nullptr);
        QCOMPARE(view.chart()->chartType(), QChart::ChartTypePolar);
        QCOMPARE(axis(view, Qt::Horizontal)->tickCount(), 21);
        view.resetChart({text("A")});
        for (int i = 0; i < 4; ++i) {
            QTest::ignoreMessage(
                QtWarningMsg, QRegularExpression(text("needs a chart whose X range can change")));
        }
        view.setXRange(0, 5);
        view.setXPeriod(3);
        view.updateChart(1, {0, 0});
        view.clearChartData(1);
        QCOMPARE(axis(view, Qt::Horizontal)->max(), 180.0);
        view.setYRange(-40, 0, 4);
        view.setLimitXY({0, -20}, 0.5);
        view.panResetSlot();
        QCOMPARE(shown(view), (Ends{-180, 180, -30, -10}));
        QCOMPARE(axis(view, Qt::Vertical)->min(), -30.0);
    }

    void mapsLikeTheChart_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("cartesian") << 0;
        QTest::newRow("polar") << 1;
    }

    /// The positions are computed in closed form; every one has to be the chart's own, to the last
    /// bit.
    void mapsLikeTheChart()
    {
        QFETCH(int, kind);
        const auto form = kind == 1 ? ChartMapping::Kind::Polar : ChartMapping::Kind::Cartesian;
        std::mt19937 random(11);
        const auto between = [&random](double low, double high) {
            return std::uniform_real_distribution<double>(low, high)(random);
        };
        const auto same = [](const QPointF &a, const QPointF &b) {
            return std::equal_to<double>()(a.x(), b.x()) && std::equal_to<double>()(a.y(), b.y());
        };
        for (int round = 0; round < 12; ++round) {
            GraphicsBase view(kind, nullptr);
            show(view, static_cast<int>(between(200, 1200)), static_cast<int>(between(200, 900)));
            if (kind == 0)
                view.setXRange(between(-300, 0), between(1, 300));
            view.setYRange(between(-100, 0), between(1, 50), 5);
            Points points;
            for (int i = 0; i < 500; ++i)
                points.append({between(-400, 400), between(-150, 80)});
            const QList<QPointF> drawn =
                view.addCurve(text("R"), points)->pathItem()->drawnPoints();
            const ChartMapping mapping{form, view.chart()->plotArea(), view.shownRange()};
            for (int i = 0; i < points.size(); ++i) {
                const QPointF expected = view.chart()->mapToPosition(points[i]);
                QVERIFY(same(mapping.toScene(points[i]), expected));
                QVERIFY(same(drawn[i], expected));
            }
        }
    }

    void coversItsGroundAtAnyScale()
    {
        constexpr double scale = 1.25;
        GraphicsBase view(0, nullptr);
        show(view, 403, 303);
        QImage picture(504, 379, QImage::Format_RGB32); // the last pixels are the view's in part
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::black);
        view.viewport()->render(&picture, {}, {}, QWidget::RenderFlags());
        QCOMPARE(picture.pixelColor(503, 100), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(100, 378), QColor(Qt::white));
    }

    /// The view keeps the chart's own line item in the dark about its points. Whoever changes a
    /// series past the view must not bring the two apart.
    void followsOutsideData()
    {
        GraphicsBase view(0, nullptr);
        view.resetChart({text("P")});
        show(view);
        QLineSeries *series = view.paths()[1]->series();
        QSignalSpy replaced(series, &QXYSeries::pointsReplaced);
        series->replace(Points{{0, 0}, {1, 1}, {2, 2}});
        QCOMPARE(replaced.size(), 1);
        view.updateChart(1, {3, 3});
        series->append(4, 4);
        view.setXRange(0, 5);
        series->insert(5, {5, 5});
        series->remove(0);
        view.updateChart(1, {6, 6});
        series->append(7, 7);
        QCOMPARE(view.paths()[1]->points(),
                 (Points{{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}}));
        view.rebuildPath(1);
        QCOMPARE(view.paths()[1]->pathItem()->drawnPoints().size(), 7);
    }
};

MZ_TEST(TestGraphicsBase)

#include "tst_graphicsbase.moc"
