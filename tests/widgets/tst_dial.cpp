#include "widgets/dial.h"

#include "testmain.h"

#include <QImage>
#include <QPainter>
#include <QtMath>

#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

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

bool isGreen(const QColor &color)
{
    return color.green() > color.red() + 60 && color.green() > color.blue() + 60;
}

/// A picture of a gauge, read in the gauge's own coordinates: 200 units from end to end, the centre
/// at the origin, y down; angles in degrees counter-clockwise from 3 o'clock.
class Picture
{
public:
    explicit Picture(Dial &dial, const QSize &size = QSize(600, 600))
        : m_image(size, QImage::Format_RGB32)
    {
        dial.resize(size);
        m_image.fill(Qt::white);
        dial.render(&m_image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    }

    const QImage &image() const { return m_image; }

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

    /// The middle of what \a matches in \a area, in gauge units; null when there is nothing.
    template<typename Matches>
    QPointF middleOf(const QRect &area, Matches matches) const
    {
        QRectF found;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (matches(pixel(x, y)))
                    found |= QRectF(x, y, 1, 1);
            }
        }
        return found.center();
    }

private:
    QImage m_image;
};

} // namespace

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

/// The gauge as it is seen.
class TestDial : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QPalette white;
        white.setColor(QPalette::Window, Qt::white);
        m_dial = std::make_unique<Dial>(nullptr);
        m_dial->setPalette(white);
        m_overlaid = std::make_unique<RangeDial>(nullptr);
        m_overlaid->setPalette(white);
    }

    void ticksAndNumbers()
    {
        m_dial->setScaleRange(0, 10); // short numbers, which keep clear of the ticks
        const Picture picture(*m_dial);
        for (const int tick : {0, 1, 15, 49, 50}) {
            const bool major = tick % 5 == 0;
            const double angle = 230 - 5.6 * tick;
            const int red = tick * 255 / 50;
            QVERIFY(isNear(picture.at(angle, 95), red, 0, 255 - red));
            const QColor inner = picture.at(angle, 87);
            QVERIFY(major ? isNear(inner, red, 0, 255 - red) : isWhite(inner));
            const double t = qDegreesToRadians(angle);
            const QPoint number = QPointF(std::cos(t) * 75, -std::sin(t) * 75).toPoint();
            const QRect around(number - QPoint(4, 4), QSize(8, 8));
            QVERIFY(!major || !picture.middleOf(around, isDark).isNull());
        }
    }

    void needle()
    {
        m_dial->setScaleRange(-60, 20);
        // Whether the needle points into that direction only.
        const auto pointsTo = [this](double angle) {
            constexpr int radius = 45; // beyond the hub, short of the numbers
            const Picture picture(*m_dial);
            bool alone = isDark(picture.at(angle, radius));
            for (int away = 10; away <= 350; away += 10)
                alone = alone && isWhite(picture.at(angle + away, radius));
            return alone;
        };
        m_dial->setValue(-60.0, QString());
        QVERIFY(pointsTo(230.0));
        m_dial->setValue(-39.5, QString());
        QVERIFY(pointsTo(158.25));
        m_dial->setValue(1000.0, QString()); // stops 40 degrees behind the scale
        QVERIFY(pointsTo(-90.0));
        m_dial->setValueRange(-60, -20);
        QVERIFY(pointsTo(90.0));
        m_dial->setValue(-60.0, QString());
        m_dial->setValueRange(-20, 20);
        QVERIFY(pointsTo(90.0));
        m_dial->setValueRange(10, -20); // ends swapped: the upper one is applied last
        QVERIFY(pointsTo(90.0));
    }

    void captionAndValueText()
    {
        m_dial->setScaleRange(0, 100);
        m_dial->setValue(20, QStringLiteral("080"));
        const Picture picture(*m_dial);
        const QPointF caption = picture.middleOf(QRect(-18, -67, 36, 14), isDark);
        QVERIFY2(qAbs(caption.x()) < 2 && qAbs(caption.y() + 60) < 3, "caption above the centre");
        // Below the numbers at either end; five units off the centre.
        const QRect below(-50, 65, 100, 20);
        QVERIFY(qAbs(picture.middleOf(below, isDark).x() - 5) < 2);
        m_dial->setValue(20, QString());
        QVERIFY(Picture(*m_dial).middleOf(below, isDark).isNull());
    }

    void shapes()
    {
        m_dial->setScaleRange(0, 100);
        m_dial->setValue(50, QString());
        for (const QSize &size : {QSize(601, 300), QSize(300, 601)}) {
            const Picture picture(*m_dial, size);
            // The band's outermost pixels to the left, on top and to the right, and the needle
            // between.
            for (const double angle : {180.5, 90.5, 0.5})
                QVERIFY(picture.at(angle, 98).green() < 60);
            QVERIFY(isDark(picture.at(90.0, 45)));
        }
    }

    void rangeOverlay()
    {
        m_overlaid->setValueRange(90, 180); // of 0 to 360; the needle goes to 90, at 160 degrees
        m_overlaid->setValue(360, QString());
        const Picture picture(*m_overlaid);
        // The arc spreads the scale over 300 degrees from 240 ...
        for (const double angle : {164.0, 140.0, 120.0, 91.0})
            QVERIFY(isGreen(picture.at(angle, 60)));
        for (const double angle : {172.0, 83.0, 0.0})
            QVERIFY(!isGreen(picture.at(angle, 60)));
        // ... major ticks point inwards from it, minor ones do not ...
        QVERIFY(isGreen(picture.at(165.0, 55)));
        QVERIFY(isWhite(picture.at(163.5, 56)));
        // ... and the labels stand where the scale has the values: 160 and 90 degrees.
        QVERIFY(!picture.middleOf(QRect(-46, -22, 16, 14), isGreen).isNull());
        QVERIFY(!picture.middleOf(QRect(-10, -48, 20, 14), isGreen).isNull());

        // Only the part on the scale is marked.
        m_overlaid->setScaleRange(-60, 20);
        m_overlaid->setValueRange(-1000, 1000);
        const Picture whole(*m_overlaid);
        QVERIFY(isGreen(whole.at(238.0, 60)));
        QVERIFY(isGreen(whole.at(-58.0, 60)));
        QVERIFY(isWhite(whole.at(275.0, 60)));
    }

private:
    std::unique_ptr<RangeDial> m_overlaid;
    std::unique_ptr<Dial> m_dial;
};

MZ_TEST(TestDial)

#include "tst_dial.moc"
