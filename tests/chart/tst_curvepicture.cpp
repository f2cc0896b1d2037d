#include "2d/scene/mypathitem.h"
#include "bench/strokecover.h"
#include "testmain.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QtMath>

#include <cmath>
#include <random>

using Points = QVector<QPointF>;

namespace {

const QRectF cartesianArea(20.3, 12.6, 330.5, 200.2);
const QRectF polarArea(31.7, 12.6, 200.0, 200.0);
constexpr QSize pictureSize(370, 225);

Points curve(const QString &shape, int count)
{
    std::mt19937 random(5);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    Points points;
    QPointF walk(0, -25);
    for (int i = 0; i < count; ++i) {
        const double part = double(i) / (count - 1);
        const double angle = -180 + 360 * part;
        const double smooth = -25 + 12 * std::cos(qDegreesToRadians(angle * 6));
        if (shape == QLatin1String("smooth"))
            points.append({angle, smooth});
        else if (shape == QLatin1String("faint noise"))
            points.append({angle, smooth + between(-0.05, 0.05)});
        else if (shape == QLatin1String("noise"))
            points.append({angle, smooth + between(-0.5, 0.5)});
        else if (shape == QLatin1String("all noise"))
            points.append({angle, between(-45, -5)});
        else if (shape == QLatin1String("spikes"))
            points.append({angle, between(0, 1) < 0.01 ? between(-40, -5) : -30});
        else if (shape == QLatin1String("plateaus"))
            points.append({angle, -45 + 5 * std::floor(std::fmod(part * 40, 8))});
        else if (shape == QLatin1String("steep columns"))
            points.append({angle, -45 + 40 * std::fmod(part * 24, 1) + between(-0.02, 0.02)});
        else if (shape == QLatin1String("backwards"))
            points.append({-angle, smooth + between(-0.5, 0.5)});
        else if (shape == QLatin1String("spiral"))
            points.append({angle * 7, -45 + 40 * part});
        else if (shape == QLatin1String("random walk"))
            points.append(walk = {walk.x() + between(-1, 1),
                                  qBound(-45.0, walk.y() + between(-0.3, 0.3), -5.0)});
    }
    return points;
}

} // namespace

/// What is painted of a curve, beside a plain stroke of all its points.
class TestCurvePicture : public QObject
{
    Q_OBJECT

private slots:
    void coversWhatAStrokeCovers_data()
    {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("scale");
        const auto add = [](const char *shape, int count, int kind, double scale) {
            QTest::addRow("%s, %d points, kind %d, scale %g", shape, count, kind, scale)
                << QString::fromLatin1(shape) << count << kind << scale;
        };
        for (const char *shape : {"smooth", "faint noise", "noise", "all noise", "spikes",
                                  "plateaus", "steep columns", "backwards", "random walk"}) {
            add(shape, 2001, 1, 1.0);
            add(shape, 12001, 0, 1.0);
        }
        for (const char *shape : {"smooth", "noise"}) {
            add(shape, 361, 0, 1.0);
            add(shape, 12001, 0, 2.0);
            add(shape, 36001, 1, 1.0);
        }
        add("spiral", 20001, 1, 1.0);
        add("faint noise", 100000, 0, 1.0);
    }

    void coversWhatAStrokeCovers()
    {
        QFETCH(const QString, shape);
        QFETCH(const int, count);
        QFETCH(const int, kind);
        QFETCH(const double, scale);
        const bool polar = kind == polarKind;
        const ChartMapping mapping{polar ? ChartMapping::Kind::Polar
                                         : ChartMapping::Kind::Cartesian,
                                   polar ? polarArea : cartesianArea,
                                   {-180, 180, -50, 0}};
        const Points points = curve(shape, count);
        MyPathItem item(1);
        item.setChartKind(kind);
        item.setPlotArea(mapping.plotArea);
        item.setColor(Qt::white);
        item.setLineWidth(2);
        item.setValuePoints(points);
        item.drawValues(points, mapping);
        QImage picture((QSizeF(pictureSize) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        item.paint(&painter, nullptr, nullptr);
        painter.end();

        const auto [missing, beside] =
            comparedWithStroke(picture, mapping.toScene(points), mapping.plotArea, polar, scale);
        QVERIFY2(missing <= 1.0, qPrintable(QString::number(missing)));
        QVERIFY2(beside <= 2.0, qPrintable(QString::number(beside)));
    }

    void staysInItsRoom()
    {
        // A chart too small for a plot, and a large circle that the curve leaves.
        for (const double side : {0.0, 1600.0}) {
            const QRectF area(0, 0, side, side);
            MyPathItem item(1);
            item.setChartKind(polarKind);
            item.setPlotArea(area);
            item.setColor(Qt::white);
            item.setValuePoints({{0, 0}});
            item.setDrawnPoints({{0, 0}, {1600, 1600}});
            QImage picture(1600, 1600, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::black);
            QPainter painter(&picture);
            item.paint(&painter, nullptr, nullptr);
            painter.end();
            QCOMPARE(qRed(picture.pixel(800, 800)), side > 0 ? 255 : 0);
            QCOMPARE(qRed(picture.pixel(100, 100)), 0);
        }
    }
};

MZ_TEST(TestCurvePicture)

#include "tst_curvepicture.moc"
