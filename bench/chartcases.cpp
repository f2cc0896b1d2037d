#include "cases.h"

#include "charthost.h"
#include "measure.h"
#include "ownchart.h"
#include "picturecheck.h"
#include "qcpchart.h"
#include "qwtchart.h"
#include "testcurve.h"

#include <QLocale>
#include <QTextStream>

#include <cmath>
#include <memory>

namespace {

/// What one chart took for each kind of work, in ms.
struct CurveTimes
{
    double load = 0.0;
    double zoom = 0.0;
    double resize = 0.0;
    double hitTest = 0.0;
    double press = 0.0;
};

/// Times \a step, after each of which the chart has to have been painted.
double paintedStepMs(ChartHost &chart, const Measure::Step &step,
                     const Measure::Step &preparation = {})
{
    int steps = 0;
    const int before = chart.paintings();
    const double time = Measure::medianMs(
        [&] {
            step();
            chart.settle();
            ++steps;
        },
        preparation);
    if (chart.paintings() - before < steps)
        QTextStream(stderr)
            << "A chart was not painted at each step: its time counts for nothing.\n";
    return time;
}

double zoomMs(CurveChart &chart)
{
    bool widen = true;
    return paintedStepMs(chart, [&] {
        chart.zoom(widen);
        widen = !widen;
    });
}

CurveTimes timesOf(CurveChart &chart, const QVector<QPointF> &points)
{
    CurveTimes times;
    chart.prepare(points);
    bool loaded = false;
    times.load = paintedStepMs(
        chart,
        [&] {
            chart.load();
            loaded = true;
        },
        [&] {
            if (loaded)
                chart.clear();
            chart.settle();
        });

    times.zoom = zoomMs(chart);

    bool narrow = true;
    times.resize = paintedStepMs(chart, [&] {
        chart.resize(narrow ? QSize(990, 594) : QSize(1000, 600));
        narrow = !narrow;
    });

    // One press on the curve, one 15 dB above it, and so on.
    constexpr double degrees = 12.0;
    const double level = testLevel(CurveShape::Pattern, degrees);
    const QPointF places[] = {chart.position({degrees, level}),
                              chart.position({degrees, level + 15})};
    int count = 0;
    times.hitTest = Measure::medianMs([&] { chart.hitTest(places[++count % 2]); });
    times.press = Measure::medianMs([&] { chart.press(places[++count % 2]); });
    return times;
}

QString points(int count)
{
    return QLocale(QLocale::English).toString(count) + QStringLiteral(" points");
}

using MakeChart = std::unique_ptr<CurveChart> (*)();

/// One maker for each column of the table; null where there is no such chart.
struct Makers
{
    MakeChart own;
    MakeChart qcp;
    MakeChart qcpFast;
    MakeChart qwt;
};

/// Says what is missing from our pictures, so that nobody takes holes for speed.
void tellPicture(const QString &work, int kind, const QVector<QPointF> &curve)
{
    QTextStream(stderr) << work << ": " << comparedWithStroke(kind, curve) << '\n';
}

void curveRows(const QString &kind, const Makers &makers, const ChartSink &sink)
{
    for (const int count : {361, 3601, 36001, 100000, 1000000}) {
        const QVector<QPointF> curve = testCurve(CurveShape::Pattern, count);
        tellPicture(kind + QStringLiteral(", ") + points(count),
                    kind == QLatin1String("polar") ? 1 : 0, curve);
        const auto run = [&](MakeChart make) -> std::optional<CurveTimes> {
            if (!make)
                return std::nullopt;
            return timesOf(*make(), curve);
        };
        const auto own = run(makers.own);
        const auto qcp = run(makers.qcp);
        const auto qcpFast = run(makers.qcpFast);
        const auto qwt = run(makers.qwt);
        const auto add = [&](const QString &work, double CurveTimes::*time) {
            const auto pick = [time](const std::optional<CurveTimes> &times) {
                return times ? std::optional<double>(*times.*time) : std::nullopt;
            };
            sink({QStringLiteral("%1 %2, %3").arg(kind, work, points(count)), pick(own), pick(qcp),
                  pick(qcpFast), pick(qwt)});
        };
        add(QStringLiteral("load"), &CurveTimes::load);
        add(QStringLiteral("zoom step"), &CurveTimes::zoom);
        add(QStringLiteral("resize"), &CurveTimes::resize);
        add(QStringLiteral("hit test"), &CurveTimes::hitTest);
        add(QStringLiteral("press"), &CurveTimes::press);
    }
}

Makers cartesianMakers()
{
    Makers makers{};
    makers.own = []() -> std::unique_ptr<CurveChart> { return std::make_unique<OwnCurveChart>(0); };
    makers.qcp = []() -> std::unique_ptr<CurveChart> {
        return std::make_unique<QcpCurveChart>(false);
    };
    makers.qcpFast = []() -> std::unique_ptr<CurveChart> {
        return std::make_unique<QcpCurveChart>(true);
    };
    makers.qwt = []() -> std::unique_ptr<CurveChart> { return std::make_unique<QwtCurveChart>(); };
    return makers;
}

/// How the shape of a curve counts.
void shapeRows(const Makers &makers, const ChartSink &sink)
{
    for (const int count : {361, 3601, 100000}) {
        for (const CurveShape shape : {CurveShape::Smooth, CurveShape::Noise}) {
            const QVector<QPointF> curve = testCurve(shape, count);
            const auto run = [&curve](MakeChart make) {
                const std::unique_ptr<CurveChart> chart = make();
                chart->prepare(curve);
                chart->load();
                chart->settle();
                return zoomMs(*chart);
            };
            const QString name = shape == CurveShape::Smooth ? QStringLiteral("smooth curve")
                                                             : QStringLiteral("noise");
            tellPicture(name + QStringLiteral(", ") + points(count), 0, curve);
            sink({QStringLiteral("%1 zoom step, %2").arg(name, points(count)), run(makers.own),
                  run(makers.qcp), run(makers.qcpFast), run(makers.qwt)});
        }
    }
}

double tickMs(TimeChart &&chart)
{
    int second = 0;
    const auto tick = [&] {
        // A reading about -10 dBm that swings and jitters.
        chart.tick(second / 60.0,
                   -10 + 8 * std::sin(second / 40.0) + (second * 7919 % 100) / 100.0);
        ++second;
    };
    while (second <= 601)
        tick();
    chart.settle();
    return paintedStepMs(chart, tick);
}

} // namespace

namespace Cases {

void timeChart(const ChartSink &add)
{
    ReportRow row;
    row.work = QStringLiteral("time chart, tick at 601 points");
    row.own = tickMs(OwnTimeChart());
    row.qcp = tickMs(QcpTimeChart(false));
    row.qcpFast = tickMs(QcpTimeChart(true));
    row.qwt = tickMs(QwtTimeChart());
    add(row);
}

void cartesianCurves(const ChartSink &add)
{
    curveRows(QStringLiteral("cartesian"), cartesianMakers(), add);
}

void curveShapes(const ChartSink &add)
{
    shapeRows(cartesianMakers(), add);
}

void polarCurves(const ChartSink &add)
{
    Makers makers{};
    makers.own = []() -> std::unique_ptr<CurveChart> { return std::make_unique<OwnCurveChart>(1); };
    makers.qcp = []() -> std::unique_ptr<CurveChart> {
        return std::make_unique<QcpPolarChart>(false);
    };
    makers.qcpFast = []() -> std::unique_ptr<CurveChart> {
        return std::make_unique<QcpPolarChart>(true);
    };
    curveRows(QStringLiteral("polar"), makers, add);
}

} // namespace Cases
