#include "widgets/dial.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QTime>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int angleUnits = 16; // QPainter measures arcs in sixteenths of a degree

/// Saves the painter's state for a scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter &painter)
        : m_painter(painter)
    {
        m_painter.save();
    }
    ~PainterSaver() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(PainterSaver)

private:
    QPainter &m_painter;
};

QColor toColor(const DialGeometry::Rgb &rgb)
{
    return {rgb.red, rgb.green, rgb.blue};
}

QSize textSize(const QFont &font, const QString &text)
{
    const QFontMetrics metrics(font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

} // namespace

Dial::Dial(QWidget *parent)
    : QFrame(parent)
    , m_timer(new QTimer(this))
{
    connect(m_timer, &QTimer::timeout, this, &Dial::timerout);
}

void Dial::setScaleRange(int min, int max)
{
    m_scale.min = min;
    m_scale.max = max;
    update();
}

void Dial::setValueRange(int min, int max)
{
    m_rangeMin = min;
    m_rangeMax = max;
    // Not std::clamp: the ends may come in the wrong order, and then the upper one decides.
    m_value = std::min(std::max(m_value, m_rangeMin), m_rangeMax);
    update();
}

void Dial::setValue(double value, const QString &text)
{
    m_value = value;
    m_text = text;
    update();
}

int Dial::timerout()
{
    qsrand(static_cast<uint>(QTime(0, 0, 0, 0).secsTo(QTime::currentTime())));
    return qrand();
}

void Dial::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    prepare(painter);
    drawColorArcs(painter);
    drawTicks(painter);
    drawNumbers(painter);
    drawHub(painter);
    drawNeedle(painter);
    drawValueText(painter);
}

void Dial::prepare(QPainter &painter) const
{
    const double side = std::min(width(), height());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(width() / 2, height() / 2); // NOLINT(bugprone-integer-division): whole pixels
    painter.scale(side / 200.0, side / 200.0);
}

void Dial::drawColorArcs(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.setPen(QPen(m_arcColor, 2.0));
    painter.setBrush(Qt::NoBrush);
    drawColorBand(painter, QRect(-98, -98, 196, 196));
    drawColorBand(painter, QRect(-90, -90, 180, 180));

    QFont captionFont = painter.font();
    captionFont.setPixelSize(10);
    painter.setFont(captionFont);
    painter.setPen(QColor(0, 0, 0));
    painter.drawText(QRect(-90, -75, 180, 30), Qt::AlignCenter, QStringLiteral("dBm"));
}

void Dial::drawColorBand(QPainter &painter, const QRect &circle) const
{
    const int span = m_scale.startAngle - m_scale.endAngle;
    QPen pen = painter.pen();
    for (int angle = m_scale.startAngle - 1; angle >= m_scale.endAngle; --angle) {
        pen.setColor(toColor(DialGeometry::rampColor(m_scale.startAngle - angle, span)));
        painter.setPen(pen);
        painter.drawArc(circle, angle * angleUnits, angleUnits);
    }
}

void Dial::drawTicks(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.rotate(-m_scale.startAngle);
    const int count = m_scale.tickCount();
    const double step = double(m_scale.sweep()) / count;
    QPen pen(m_tickColor);
    pen.setCapStyle(Qt::RoundCap);
    for (int i = 0; i <= count; ++i) {
        const bool major = i % m_scale.minorDivisions == 0;
        pen.setColor(toColor(DialGeometry::rampColor(i, count)));
        pen.setWidthF(major ? 1.5 : 1.0);
        painter.setPen(pen);
        painter.drawLine(major ? 85 : 92, 0, 97, 0);
        painter.rotate(step);
    }
}

void Dial::drawNumbers(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.setPen(m_labelColor);
    for (int i = 0; i <= m_scale.majorDivisions; ++i) {
        const QString text = DialGeometry::numberText(m_scale, i);
        painter.drawText(
            DialGeometry::numberPosition(m_scale, i, text.size(), textSize(font(), text)), text);
    }
}

void Dial::drawHub(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_needleColor);
    painter.setOpacity(0.5);
    painter.drawEllipse(QRect(QPoint(-12, -12), QPoint(11, 11)));
    painter.setOpacity(1.0);
    painter.drawEllipse(QRect(QPoint(-8, -8), QPoint(7, 7)));
}

void Dial::drawNeedle(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.setOpacity(0.8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_needleColor);
    painter.rotate(-m_scale.startAngle);
    painter.rotate(DialGeometry::needleTurn(m_scale, m_value));
    painter.drawConvexPolygon(QPolygon({QPoint(0, 5), QPoint(0, -5), QPoint(75, 0)}));
}

void Dial::drawValueText(QPainter &painter) const
{
    const PainterSaver saver(painter);
    QFont textFont = painter.font();
    textFont.setPixelSize(18);
    textFont.setWeight(QFont::Bold);
    painter.setFont(textFont);
    painter.setPen(m_textColor);
    // Five units right of the centre.
    painter.drawText(QRect(-93, 56, 196, 32), Qt::AlignCenter, m_text);
}

void Dial::drawRangeArc(QPainter &painter)
{
    const PainterSaver saver(painter);
    painter.setPen(QPen(m_rangeColor, 2.0));
    painter.setBrush(Qt::NoBrush);

    const auto start = DialGeometry::rangeEnd(m_scale, std::max(m_scale.min, m_rangeMin));
    m_rangeStartAngle = start.angle;
    drawRangeLabel(painter, start.text, start.number);

    const auto end = DialGeometry::rangeEnd(m_scale, std::min(m_scale.max, m_rangeMax));
    m_rangeEndAngle = end.angle;
    drawRangeLabel(painter, end.text, end.number);

    painter.drawArc(QRect(-60, -60, 120, 120),
                    DialGeometry::truncated(m_rangeStartAngle * angleUnits),
                    DialGeometry::truncated((m_rangeEndAngle - m_rangeStartAngle) * angleUnits));
}

void Dial::drawRangeLabel(QPainter &painter, const QString &text, int number) const
{
    const PainterSaver saver(painter);
    QFont labelFont(QStringLiteral("Microsoft YaHei"), 8);
    labelFont.setLetterSpacing(QFont::PercentageSpacing, 0);
    painter.setFont(labelFont);
    painter.setPen(QPen(m_rangeColor, 2.0));
    painter.drawText(
        DialGeometry::rangeLabelPosition(m_scale, number, text.size(), textSize(labelFont, text)),
        text);
}

void Dial::drawRangeTicks(QPainter &painter) const
{
    const PainterSaver saver(painter);
    painter.rotate(-m_rangeStartAngle);
    const int count = m_scale.tickCount();
    const double step = qAbs(m_rangeEndAngle - m_rangeStartAngle) / count;
    QPen pen(m_rangeColor);
    pen.setCapStyle(Qt::RoundCap);
    for (int i = 0; i <= count; ++i) {
        const bool major = i % m_scale.minorDivisions == 0;
        pen.setWidthF(major ? 1.5 : 1.0);
        painter.setPen(pen);
        // The lesser ticks have no length: their round caps leave dots.
        painter.drawLine(major ? 53 : 60, 0, 60, 0);
        painter.rotate(step);
    }
}
