#include "2d/data/curvealgebra.h"
#include "testmain.h"

#include <algorithm>
#include <cmath>

using namespace CurveAlgebra;

namespace {

QString told(const Points &points)
{
    QStringList texts;
    for (const QPointF &point : points)
        texts.append(QStringLiteral("%1=%2").arg(point.x()).arg(point.y(), 0, 'g', 4));
    return texts.join(QLatin1Char(' '));
}

/// A lobe of 40 degrees at \a peak on whole degrees from \a first to \a last.
Points lobe(double peak, int first, int last)
{
    Points points;
    for (int angle = first; angle <= last; ++angle) {
        const double off = std::remainder(angle - peak, 360.0) / 20.0;
        points.append({double(angle), std::max(-40.0, -3.0 * off * off)});
    }
    return points;
}

double peakAngle(const Points &points)
{
    return std::max_element(points.begin(), points.end(),
                            [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); })
        ->x();
}

} // namespace

class TestCurveAlgebra : public QObject
{
    Q_OBJECT

private slots:
    void results_data()
    {
        QTest::addColumn<Points>("made");
        QTest::addColumn<QString>("expected");
        const Points open{{-90, -6}, {0, 0}, {30, -3}};
        const Points round{{-180, 1}, {-90, 2}, {0, 3}, {90, 4}, {180, 1}};
        const Points upper{{0, 1}, {90, 2}, {180, 3}, {270, 4}};
        const auto row = [](const char *name, const Points &made, const char *expected) {
            QTest::newRow(name) << made << QString::fromLatin1(expected);
        };
        row("raised", raised(open, 2.5), "-90=-3.5 0=2.5 30=-0.5");
        row("mirrored", mirrored(open), "-30=-3 0=0 90=-6");
        row("mirrored circle", mirrored(round), "-180=1 -90=4 0=3 90=2 180=1");
        row("mirrored circle from 0", mirrored(upper), "0=1 90=4 180=3 270=2");
        row("rotated", rotated(open, 100), "10=-6 100=0 130=-3");
        row("rotated over the end", rotated(open, 200), "110=-6 200=0 230=-3");
        row("rotated circle", rotated(round, 45), "-180=2.5 -135=1 -45=2 45=3 135=4 180=2.5");
        row("rotated circle from 0", rotated(upper, -90), "0=2 90=3 180=4 270=1");
        row("mean of powers", averaged({{{0, 0}, {10, 0}}, {{0, -300}, {10, 0}}}), "0=-3.01 10=0");
        row("mean where all are", averaged({open, {{-30, 0}, {60, 0}, {140, 0}}}),
            "-30=-0.8859 0=0 30=-1.246");
        row("greatest", greatest({open, {{0, -1}, {60, 1}}}), "-90=-6 0=0 30=0 60=1");
        row("least", least({open, {{0, -1}, {60, 1}}}), "-90=-6 0=-1 30=-3 60=1");
        row("difference", difference(open, {{-10, 1}, {350, 1}, {50, 7}}), "0=-2 30=-8");
        row("difference across the seam", difference({{-175, 5}, {185, 5}}, round),
            "-175=3.944 185=3.944");
        row("mask drawn", drawnMask({{0, 0}, {2, 4}, {2, 6}}), "0=0 1=2 2=4 2=6");
        row("of nothing", greatest({mirrored({}), rotated({}, 1), smoothed({}, 1)}), "");
    }
    void results()
    {
        QFETCH(const Points, made);
        QTEST(told(made), "expected");
    }

    void smoothing()
    {
        // 3 of 5 points of no power at all leave two fifths: -3.98 dB.
        const Points comb{{0, 0}, {1, -300}, {2, -300}, {3, -300}, {4, 0}};
        QCOMPARE(told(smoothed(comb, 10)),
                 QStringLiteral("0=-3.979 1=-3.979 2=-3.979 3=-3.979 4=-3.979"));
        QCOMPARE(told(smoothed(comb, 0)), told(comb));
        // A lobe behind stays where it is, and as high from both sides of the seam.
        const Points behind = smoothed(lobe(180, -180, 180), 5);
        QCOMPARE(behind.first().y(), behind.last().y());
        QVERIFY(behind.first().y() < 0.0 && behind.first().y() > -0.5);
        QCOMPARE(peakAngle(smoothed(lobe(40, -180, 179), 9)), 40.0);
    }

    void figuresOfADifference()
    {
        // Half a dB more on one side of the lobe, and a wild back that does not count.
        Points first = lobe(0, -180, 179);
        for (QPointF &point : first)
            point.ry() += point.x() > 0.0 ? 0.5 : 0.0;
        Points second = lobe(0, -180, 179);
        second.first().setY(30.0);
        const auto figures = differenceFigures(first, second, 20.0);
        QVERIFY(figures.has_value());
        QCOMPARE(figures->greatest, 0.5);
        QCOMPARE(differenceFigures(raised(first, -1.0), first, 20.0)->greatest, -1.0);
        QVERIFY(std::abs(figures->mean - 0.25) < 0.01);
        QVERIFY(std::abs(figures->rms - std::sqrt(0.125)) < 0.01);
        QVERIFY(!differenceFigures(first, {{170, 0}, {175, 0}}, 20.0));
    }

    void masks_data()
    {
        QTest::addColumn<Points>("curve");
        QTest::addColumn<QString>("verdict"); // margin at angle
        const Points inside = lobe(0, -180, 180);
        QTest::newRow("inside") << inside << QStringLiteral("1 at 0");
        QTest::newRow("raised") << raised(inside, 1.5) << QStringLiteral("-0.5 at 0");
        QTest::newRow("beside") << lobe(60, -180, 180) << QStringLiteral("-20 at 60");
        QTest::newRow("behind, counted otherwise")
            << lobe(180, 0, 360) << QStringLiteral("-20 at 180");
        QTest::newRow("between points")
            << Points{{-60, -20}, {60, -16}} << QStringLiteral("-4 at 60");
        QTest::newRow("at a corner between points")
            << Points{{50, 0}, {70, -25}} << QStringLiteral("-7.5 at 60");
        QTest::newRow("elsewhere") << Points{{190, 0}, {205, 0}} << QString();
    }
    void masks()
    {
        QFETCH(const Points, curve);
        const Points mask{{-150, -20}, {-60, -20}, {-60, 1}, {60, 1}, {60, -20}, {180, -20}};
        const std::optional<MaskVerdict> verdict = maskVerdict(curve, mask);
        const QString text =
            verdict ? QStringLiteral("%1 at %2").arg(verdict->margin).arg(verdict->angle)
                    : QString();
        QTEST(text, "verdict");
        QVERIFY(!verdict || verdict->passes() == (verdict->margin >= 0.0));
    }
};

MZ_GUILESS_TEST(TestCurveAlgebra)
#include "tst_curvealgebra.moc"
