#include "recordview/recordaxes.h"

#include "recorddata/clockticks.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

const QColor gridColor(0xe2, 0xe6, 0xea);
const QColor axisColor(Qt::black);
const QColor titleColor(0x40, 0x40, 0x44);
const QColor dayColor(0x46, 0x53, 0x5f);

// All lengths are pixels.
constexpr double timeRoom = 96.0; // for the label of a division
constexpr double levelRoom = 40.0;
constexpr double tickLength = 4.0;
constexpr double besideLabel = 6.0;
constexpr double aboveLabel = 14.0;
constexpr double rightMargin = 12.0;
constexpr double belowLabels = 8.0;
constexpr double clockGap = 4.0;
constexpr double least = 1.0; // of the plot area, however small the window

// The title stands upright at the left edge.
constexpr double titleRoom = 40.0;
constexpr double titleBaseline = 25.0;

/// Draws lines along whole pixels of the screen. To fill them takes a twentieth of what stroking
/// takes.
class Ruler
{
public:
    explicit Ruler(QPainter &painter)
        : m_painter(painter)
        , m_ratio(painter.device()->devicePixelRatioF())
    {}

    /// As fine as can be.
    void drawFine(const QPointF &from, const QPointF &to) { fill(from, to, 1, gridColor); }
    void drawFirm(const QPointF &from, const QPointF &to)
    {
        fill(from, to, std::max(1, qFloor(m_ratio)), axisColor);
    }

private:
    void fill(const QPointF &from, const QPointF &to, int width, const QColor &color)
    {
        const QPoint first(qFloor(from.x() * m_ratio), qFloor(from.y() * m_ratio));
        const QPoint last(qFloor(to.x() * m_ratio) + width, qFloor(to.y() * m_ratio) + width);
        m_painter.fillRect(QRectF(QPointF(first) / m_ratio, QPointF(last) / m_ratio), color);
    }

    QPainter &m_painter;
    double m_ratio;
};

/// So many divisions of a side of \a length as find room, but \a fewest.
int divisions(double length, double room, int fewest)
{
    return std::max(fewest, static_cast<int>(length / room));
}

/// The values between \a low and \a high that \a ticks divide them at.
QVector<double> dividedAt(const AxisTicks &ticks, double low, double high)
{
    const double nothing = 1e-9 * ticks.interval;
    const double skipped = std::ceil((low - ticks.first - nothing) / ticks.interval);
    const double first = ticks.first + skipped * ticks.interval;
    QVector<double> values;
    for (int i = 0; first + i * ticks.interval <= high + nothing; ++i) {
        const double value = first + i * ticks.interval;
        values.append(std::abs(value) < nothing ? 0.0 : value);
    }
    return values;
}

} // namespace

void RecordAxes::show(const ViewRange &range, const QSizeF &size, const QFont &font)
{
    m_font = font;
    m_mapping.axes = range;
    const QFontMetricsF metrics(font);
    const double top = aboveLabel + 0.5 * metrics.height();
    const double bottom =
        std::max(top + least, size.height() - belowLabels - clockGap - 2.0 * metrics.height());

    const AxisTicks ticks =
        ClockTicks::ofLevel(range.yMin, range.yMax, divisions(bottom - top, levelRoom, 2));
    const int decimals =
        static_cast<int>(std::clamp(std::ceil(-std::log10(ticks.interval)), 0.0, 4.0));
    m_levels.clear();
    double widest = 0.0;
    for (const double level : dividedAt(ticks, range.yMin, range.yMax)) {
        m_levels.append({level, QString::number(level, 'f', decimals)});
        widest = std::max(widest, metrics.horizontalAdvance(m_levels.constLast().label));
    }
    const double left = std::min(titleRoom + widest, 0.5 * size.width());
    // A clock time that stands at the right edge reaches beyond it.
    const double right =
        std::max(left + least, size.width() - rightMargin -
                                   0.5 * metrics.horizontalAdvance(QStringLiteral("00:00:00")));
    m_mapping.plotArea = QRectF(QPointF(left, top), QPointF(right, bottom));
    for (Division &level : m_levels)
        level.place = m_mapping.toScene({range.xMin, level.place}).y();

    const AxisTicks clock =
        ClockTicks::ofTime(range.xMin, range.xMax, divisions(right - left, timeRoom, 1));
    m_times.clear();
    for (const double time : dividedAt(clock, range.xMin, range.xMax))
        m_times.append(
            {m_mapping.toScene({time, range.yMin}).x(), ClockTicks::label(time, clock.interval)});
}

void RecordAxes::paint(QPainter &painter) const
{
    const QRectF &area = m_mapping.plotArea;
    Ruler ruler(painter);
    for (const Division &time : m_times)
        ruler.drawFine({time.place, area.top()}, {time.place, area.bottom()});
    for (const Division &level : m_levels)
        ruler.drawFine({area.left(), level.place}, {area.right(), level.place});

    ruler.drawFirm(area.bottomLeft(), area.bottomRight());
    for (const Division &time : m_times)
        ruler.drawFirm({time.place, area.bottom()}, {time.place, area.bottom() + tickLength});
    ruler.drawFirm(area.topLeft(), area.bottomLeft());
    for (const Division &level : m_levels)
        ruler.drawFirm({area.left() - tickLength, level.place}, {area.left(), level.place});

    painter.setPen(axisColor);
    painter.setFont(m_font);
    const QFontMetricsF metrics(m_font);
    for (const Division &level : m_levels)
        painter.drawText(QPointF(area.left() - besideLabel - metrics.horizontalAdvance(level.label),
                                 level.place - 0.5 * metrics.height() + metrics.ascent()),
                         level.label);
    paintTitle(painter);
}

void RecordAxes::paintTitle(QPainter &painter) const
{
    const QRectF &area = m_mapping.plotArea;
    QFont font = m_font;
    font.setBold(true);
    const QFontMetricsF metrics(font);
    const QString title = metrics.elidedText(m_title, Qt::ElideRight, area.height());
    painter.save();
    painter.setFont(font);
    painter.setPen(titleColor);
    painter.translate(titleBaseline, area.center().y() + 0.5 * metrics.horizontalAdvance(title));
    painter.rotate(-90.0);
    painter.drawText(QPointF(), title);
    painter.restore();
}

void RecordAxes::paintClock(QPainter &painter) const
{
    const QRectF &area = m_mapping.plotArea;
    const QFontMetricsF metrics(m_font);
    painter.setFont(m_font);
    painter.setPen(axisColor);
    const double line = area.bottom() + clockGap + metrics.ascent();
    for (const Division &time : m_times)
        painter.drawText(QPointF(time.place - 0.5 * metrics.horizontalAdvance(time.label), line),
                         time.label);

    constexpr int untilSeconds = 19;
    const QString from = ClockTicks::text(m_mapping.axes.xMin).left(untilSeconds);
    const QString to = ClockTicks::text(m_mapping.axes.xMax).left(untilSeconds);
    const double dayLine = line + metrics.height();
    const double end = area.right() - metrics.horizontalAdvance(to);
    painter.setPen(dayColor);
    painter.drawText(QPointF(area.left(), dayLine), from);
    if (end > area.left() + metrics.horizontalAdvance(from) + besideLabel)
        painter.drawText(QPointF(end, dayLine), to);
}
