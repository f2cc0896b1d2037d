#include "widgets/dial.h"

#include "testmain.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

/// A picture of a gauge, read in the gauge's own coordinates: 200 units from end to end, the centre
/// at the origin, y down; angles in degrees counter-clockwise from 3 o'clock.
class Picture
{
public:
    Picture(Dial &dial, const QSize &size)
        : m_image(size, QImage::Format_RGB32)
    {
        dial.resize(size);
        m_image.fill(Qt::white);
        dial.render(&m_image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    }

    QImage &image() { return m_image; }

    /// The colour at a point.
    QColor pixel(double x, double y) const
    {
        const QPoint middle(m_image.width() / 2, m_image.height() / 2);
        const double scale = std::min(m_image.width(), m_image.height()) / 200.0;
        return m_image.pixelColor(int(std::floor(middle.x() + x * scale)),
                                  int(std::floor(middle.y() + y * scale)));
    }

    /// The colour in a direction.
    QColor at(double angle, double radius) const
    {
        const double t = qDegreesToRadians(angle);
        return pixel(std::cos(t) * radius, -std::sin(t) * radius);
    }

    /// The middle of what is darker than half in \a area, in gauge units; null when there is
    /// nothing.
    QPointF middleOfDark(const QRect &area) const
    {
        QRectF dark;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (pixel(x, y).lightness() < 128)
                    dark |= QRectF(x, y, 1, 1);
            }
        }
        return dark.center();
    }

    int greenPixels(const QRect &area) const
    {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                count += isGreen(pixel(x, y)) ? 1 : 0;
        }
        return count;
    }

    static bool isGreen(const QColor &color)
    {
        return color.green() > color.red() + 60 && color.green() > color.blue() + 60;
    }

private:
    QImage m_image;
};

/// A form's gauge that marks the permitted range.
class RangeDial : public Dial
{
public:
    using Dial::Dial;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Dial::paintEvent(event);
        QPainter painter(this);
        prepare(painter);
        drawRangeArc(painter);
        drawRangeTicks(painter);
    }
};

bool isNear(const QColor &color, int red, int green, int blue)
{
    constexpr int tolerance = 24; // of antialiasing
    return std::abs(color.red() - red) < tolerance && std::abs(color.green() - green) < tolerance &&
           std::abs(color.blue() - blue) < tolerance;
}

bool isDark(const QColor &color)
{
    return color.lightness() < 100;
}

bool isWhite(const QColor &color)
{
    return color.lightness() > 240;
}

const QSize large(600, 600);

} // namespace

#define VERIFY_COLOR(color, condition) QVERIFY2(condition, qPrintable((color).name()))

class TestDial : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void bands_data();
    void bands();
    void ticksAndNumbers();
    void needle_data();
    void needle();
    void hubAndNeedleLayers();
    void captionAndValueText();
    void shapes_data();
    void shapes();
    void rangeOverlay();
    void scaleWithoutExtent();
    void timeroutDrawsANumberAndNothingElse();

private:
    std::unique_ptr<Dial> m_dial;
};

void TestDial::init()
{
    m_dial = std::make_unique<Dial>(nullptr);
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    m_dial->setPalette(white);
}

void TestDial::bands_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<QColor>("color"); // invalid where no band may be
    QTest::newRow("blue at the start") << 229.0 << QColor(1, 0, 254);
    QTest::newRow("half and half on top") << 90.5 << QColor(127, 0, 127);
    QTest::newRow("red at the end") << -49.0 << QColor(254, 0, 1);
    QTest::newRow("nothing after the end") << -54.0 << QColor();
}

void TestDial::bands()
{
    QFETCH(double, angle);
    QFETCH(QColor, color);
    const Picture picture(*m_dial, large);
    for (const int radius : {98, 90}) {
        const QColor painted = picture.at(angle, radius);
        if (color.isValid())
            VERIFY_COLOR(painted, isNear(painted, color.red(), color.green(), color.blue()));
        else
            VERIFY_COLOR(painted, isWhite(painted));
    }
}

void TestDial::ticksAndNumbers()
{
    m_dial->setScaleRange(0, 10); // short numbers, which keep clear of the ticks
    const Picture picture(*m_dial, large);
    for (const int tick : {0, 1, 15, 49, 50}) {
        const bool major = tick % 5 == 0;
        const double angle = 230 - 5.6 * tick;
        const int red = tick * 255 / 50;
        const QColor outer = picture.at(angle, 95);
        VERIFY_COLOR(outer, isNear(outer, red, 0, 255 - red));
        const QColor inner = picture.at(angle, 87);
        VERIFY_COLOR(inner, major ? isNear(inner, red, 0, 255 - red) : isWhite(inner));
        const double t = qDegreesToRadians(angle);
        const QPoint number = QPointF(std::cos(t) * 75, -std::sin(t) * 75).toPoint();
        if (major)
            QVERIFY(!picture.middleOfDark(QRect(number - QPoint(4, 4), QSize(8, 8))).isNull());
    }
}

void TestDial::needle_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("min"); // of the permitted range
    QTest::addColumn<int>("max");
    QTest::addColumn<double>("angle");
    QTest::newRow("start of the scale") << -60.0 << -60 << 20 << 230.0;
    QTest::newRow("a fraction of a unit") << -39.5 << -60 << 20 << 158.25;
    QTest::newRow("far below it stops 40 degrees before") << -1000.0 << -2000 << 20 << 270.0;
    QTest::newRow("far above it stops 40 degrees after") << 1000.0 << -60 << 2000 << -90.0;
    QTest::newRow("permitted range pulls it down") << 0.0 << -60 << -20 << 90.0;
    QTest::newRow("permitted range pushes it up") << -60.0 << -20 << 20 << 90.0;
    QTest::newRow("ends swapped: the upper one is applied last") << 0.0 << 10 << -20 << 90.0;
}

void TestDial::needle()
{
    QFETCH(double, value);
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(double, angle);
    m_dial->setScaleRange(-60, 20);
    m_dial->setValue(value, QString());
    m_dial->setValueRange(min, max);
    const Picture picture(*m_dial, large);
    constexpr int radius = 45; // beyond the hub, short of the numbers
    VERIFY_COLOR(picture.at(angle, radius), isDark(picture.at(angle, radius)));
    for (int away = 10; away <= 350; away += 10)
        QVERIFY2(isWhite(picture.at(angle + away, radius)), qPrintable(QString::number(away)));
}

void TestDial::hubAndNeedleLayers()
{
    m_dial->setScaleRange(0, 100);
    m_dial->setValue(50, QString()); // straight up
    const Picture picture(*m_dial, large);
    const auto grey = [&picture](double y) { return picture.pixel(0.0, y).lightness(); };
    QVERIFY2(qAbs(grey(5) - 0) < 10, "inner disc");
    QVERIFY2(qAbs(grey(10) - 128) < 10, "outer disc, half through");
    QVERIFY2(qAbs(grey(-10) - 25) < 10, "needle over the outer disc");
    QVERIFY2(qAbs(grey(-30) - 51) < 10, "needle");
    QVERIFY2(grey(14) > 240, "nothing beyond the discs");
}

void TestDial::captionAndValueText()
{
    m_dial->setScaleRange(0, 100);
    m_dial->setValue(20, QStringLiteral("080"));
    const Picture picture(*m_dial, large);
    const QPointF caption = picture.middleOfDark(QRect(-18, -67, 36, 14));
    QVERIFY2(qAbs(caption.x()) < 2 && qAbs(caption.y() + 60) < 3, "caption above the centre");
    // Below the numbers at either end; five units off the centre.
    const QPointF value = picture.middleOfDark(QRect(-50, 65, 100, 20));
    QVERIFY2(qAbs(value.x() - 5) < 2, qPrintable(QString::number(value.x())));
    m_dial->setValue(20, QString());
    QVERIFY(Picture(*m_dial, large).middleOfDark(QRect(-50, 65, 100, 20)).isNull());
}

void TestDial::shapes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(601, 300);
    QTest::newRow("tall") << QSize(300, 601);
}

void TestDial::shapes()
{
    QFETCH(QSize, size);
    m_dial->setScaleRange(0, 100);
    m_dial->setValue(50, QString());
    const Picture picture(*m_dial, size);
    // The band's outermost pixels to the left, on top and to the right, and the needle between
    // them.
    for (const double angle : {180.5, 90.5, 0.5}) {
        const QColor color = picture.at(angle, 98);
        VERIFY_COLOR(color, color.green() < 60);
    }
    VERIFY_COLOR(picture.at(90.0, 45), isDark(picture.at(90.0, 45)));
}

void TestDial::rangeOverlay()
{
    RangeDial dial(nullptr);
    dial.setPalette(m_dial->palette());
    dial.setValueRange(90, 180); // of 0 to 360; the needle goes to 90, at 160 degrees
    dial.setValue(360, QString());
    const Picture picture(dial, large);
    // The arc spreads the scale over 300 degrees from 240 ...
    for (const double angle : {164.0, 140.0, 120.0, 91.0})
        VERIFY_COLOR(picture.at(angle, 60), Picture::isGreen(picture.at(angle, 60)));
    for (const double angle : {172.0, 83.0, 0.0})
        VERIFY_COLOR(picture.at(angle, 60), !Picture::isGreen(picture.at(angle, 60)));
    // ... major ticks point inwards from it, minor ones do not ...
    VERIFY_COLOR(picture.at(165.0, 55), Picture::isGreen(picture.at(165.0, 55)));
    VERIFY_COLOR(picture.at(163.5, 56), isWhite(picture.at(163.5, 56)));
    // ... and the labels stand where the scale has the values: 160 and 90 degrees.
    QVERIFY(picture.greenPixels(QRect(-46, -22, 16, 14)) > 5);
    QVERIFY(picture.greenPixels(QRect(-10, -48, 20, 14)) > 5);

    // Only the part on the scale is marked.
    dial.setScaleRange(-60, 20);
    dial.setValueRange(-1000, 1000);
    const Picture whole(dial, large);
    for (const double angle : {238.0, -58.0})
        VERIFY_COLOR(whole.at(angle, 60), Picture::isGreen(whole.at(angle, 60)));
    QVERIFY(isWhite(whole.at(275.0, 60)));
}

void TestDial::scaleWithoutExtent()
{
    RangeDial dial(nullptr);
    dial.setPalette(m_dial->palette());
    dial.setScaleRange(5, 5);
    for (const double value : {4.0, 5.0, 6.0}) {
        dial.setValue(value, QString());
        const QColor color = Picture(dial, large).at(160.0, 98);
        VERIFY_COLOR(color, isNear(color, 64, 0, 191));
    }
}

void TestDial::timeroutDrawsANumberAndNothingElse()
{
    const auto numberOfNow = [] {
        qsrand(uint(QTime(0, 0, 0, 0).secsTo(QTime::currentTime())));
        return qrand();
    };
    const QImage before = Picture(*m_dial, large).image();
    int number = -1;
    const int earliest = numberOfNow();
    QVERIFY(QMetaObject::invokeMethod(m_dial.get(), "timerout", Q_RETURN_ARG(int, number)));
    QVERIFY(number == earliest || number == numberOfNow());
    QCOMPARE(Picture(*m_dial, large).image(), before);
}

MZ_TEST_MAIN(TestDial)
#include "tst_dial.moc"
