#include "recordview/recordchart.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double zoomStep = 1.25;
constexpr double keyStep = 0.1; // of what is shown
constexpr double reach = 6.0;   // pixels about a cursor in which it is taken hold of

} // namespace

RecordChart::RecordChart(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("recordChart"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    constexpr int legible = 120;
    setMinimumSize(legible, legible);
    retranslate();
}

void RecordChart::retranslate()
{
    setAccessibleName(tr("Record"));
    setAccessibleDescription(tr("Level against the clock time, with cursors A and B"));
    const bool isRelative = hasData() && m_data->isRelative(0);
    m_axes.setTitle(isRelative ? tr("Power [dB]") : tr("Power [dBm]"));
    update();
}

void RecordChart::setData(const RecordData *record, bool keepRange)
{
    m_data = record;
    if (!keepRange) {
        m_cursors = {noPoint, noPoint};
        showAll();
    }
    for (int &cursor : m_cursors)
        cursor = std::min(cursor, record ? record->size() - 1 : noPoint);
    retranslate();
    refresh();
    emit cursorsMoved();
}

void RecordChart::refresh()
{
    showRange(m_shown);
}

/// Of the record shown, which must not be empty.
RecordSteering RecordChart::steering() const
{
    return {m_data->begin(), m_data->end()};
}

void RecordChart::showAll()
{
    if (!hasData())
        return;
    setFitsLevel(true);
    showRange(steering().all(m_shown));
}

void RecordChart::setFitsLevel(bool fits)
{
    if (fits == m_fitsLevel)
        return;
    m_fitsLevel = fits;
    emit fitsLevelChanged(fits);
    refresh();
}

void RecordChart::showRange(ViewRange range)
{
    if (hasData())
        range = steering().held(range);
    range = RecordSteering::largeEnough(range);
    const auto showColumns = [this, &range](int width) {
        m_curve.show(hasData() ? m_data : nullptr, range.xMin, range.xMax, width);
    };
    const auto width = [this] { return std::max(1, static_cast<int>(plotArea().width())); };
    const int widthBefore = width();
    showColumns(widthBefore);
    double low = 0.0;
    double high = 0.0;
    if (m_fitsLevel && m_curve.levels(low, high))
        range = RecordSteering::levelFitted(range, low, high);
    m_axes.show(range, size(), font());
    if (width() != widthBefore) // as the labels became wider or narrower
        showColumns(width());
    m_shown = range;
    update();
}

QPointF RecordChart::valueAt(const QPointF &position) const
{
    const QRectF area = plotArea();
    return {
        m_shown.xMin + (position.x() - area.left()) / area.width() * (m_shown.xMax - m_shown.xMin),
        m_shown.yMax - (position.y() - area.top()) / area.height() * (m_shown.yMax - m_shown.yMin)};
}

// --- Zoom and pan

void RecordChart::zoomTime(double centre, double factor)
{
    if (hasData())
        showRange(steering().timeZoomed(m_shown, centre, factor));
}

void RecordChart::zoomLevel(double centre, double factor)
{
    setFitsLevel(false);
    showRange(RecordSteering::levelZoomed(m_shown, centre, factor));
}

void RecordChart::zoomIn()
{
    zoomTime(0.5 * (m_shown.xMin + m_shown.xMax), 1.0 / zoomStep);
}

void RecordChart::zoomOut()
{
    zoomTime(0.5 * (m_shown.xMin + m_shown.xMax), zoomStep);
}

void RecordChart::pan(double widths, double heights)
{
    if (heights < 0.0 || heights > 0.0)
        setFitsLevel(false);
    showRange(m_shown.movedBy(widths, heights));
}

void RecordChart::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (event->angleDelta().isNull())
        return;
    // Turning the wheel forward shows more, as in every chart of the console.
    const double factor = event->angleDelta().y() > 0 ? zoomStep : 1.0 / zoomStep;
    const QPointF centre = valueAt(event->position());
    if (event->modifiers() & Qt::ControlModifier)
        zoomLevel(centre.y(), factor);
    else
        zoomTime(centre.x(), factor);
}

void RecordChart::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    refresh();
}

// --- Cursors

void RecordChart::setCursorPoint(Cursor cursor, int point)
{
    m_cursors[cursor] = hasData() ? std::clamp(point, 0, m_data->size() - 1) : noPoint;
    m_active = cursor;
    update();
    emit cursorsMoved();
}

void RecordChart::placeCursor(Cursor cursor, double time)
{
    if (hasData())
        setCursorPoint(cursor, m_data->nearest(time));
}

/// Moves the cursor chosen last, and the view with it where it leaves it.
void RecordChart::stepCursor(int points)
{
    if (!hasData() || m_cursors[m_active] == noPoint)
        return;
    setCursorPoint(m_active, m_cursors[m_active] + points);
    showRange(RecordSteering::reaching(m_shown, m_data->time(m_cursors[m_active])));
}

/// The cursor at \a position, -1 for none.
int RecordChart::cursorAt(const QPointF &position) const
{
    const QRectF area = plotArea();
    for (const Cursor cursor : {A, B}) {
        if (m_cursors[cursor] == noPoint)
            continue;
        const double share =
            (m_data->time(m_cursors[cursor]) - m_shown.xMin) / (m_shown.xMax - m_shown.xMin);
        if (std::abs(area.left() + share * area.width() - position.x()) <= reach)
            return cursor;
    }
    return noPoint;
}

void RecordChart::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !hasData())
        return;
    m_pressed = event->localPos();
    m_pressedRange = m_shown;
    const int cursor = cursorAt(m_pressed);
    m_drag = cursor == noPoint ? Drag::Undecided : Drag::Cursor;
    if (cursor != noPoint)
        m_active = static_cast<Cursor>(cursor);
}

void RecordChart::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF way = event->localPos() - m_pressed;
    if (m_drag == Drag::None) {
        const bool onCursor = hasData() && cursorAt(event->localPos()) != noPoint;
        setCursor(onCursor ? Qt::SplitHCursor : Qt::ArrowCursor);
    } else if (m_drag == Drag::Cursor) {
        placeCursor(m_active, valueAt(event->localPos()).x());
    } else if (m_drag == Drag::Pan || way.manhattanLength() > reach) {
        m_drag = Drag::Pan;
        setCursor(Qt::ClosedHandCursor);
        const QRectF area = plotArea();
        showRange(m_pressedRange.movedBy(-way.x() / area.width(),
                                         m_fitsLevel ? 0.0 : way.y() / area.height()));
    }
}

void RecordChart::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_drag == Drag::Undecided)
        placeCursor(event->modifiers() & Qt::ShiftModifier ? B : A, valueAt(m_pressed).x());
    m_drag = Drag::None;
    setCursor(Qt::ArrowCursor);
}

void RecordChart::contextMenuEvent(QContextMenuEvent *event)
{
    if (!hasData())
        return;
    const double time = valueAt(event->pos()).x();
    QMenu menu(this);
    menu.addAction(tr("Cursor A here"), this, [this, time] { placeCursor(A, time); });
    menu.addAction(tr("Cursor B here"), this, [this, time] { placeCursor(B, time); });
    menu.addSeparator();
    menu.addAction(tr("Show all"), this, &RecordChart::showAll);
    menu.exec(event->globalPos());
}

void RecordChart::keyPressEvent(QKeyEvent *event)
{
    const bool control = event->modifiers() & Qt::ControlModifier;
    const int step = event->modifiers() & Qt::ShiftModifier ? 100 : 1;
    const QPointF centre(0.5 * (m_shown.xMin + m_shown.xMax), 0.5 * (m_shown.yMin + m_shown.yMax));
    switch (event->key()) {
    case Qt::Key_Left:
        return control ? stepCursor(-step) : pan(-keyStep, 0.0);
    case Qt::Key_Right:
        return control ? stepCursor(step) : pan(keyStep, 0.0);
    case Qt::Key_PageUp:
        return pan(-1.0, 0.0);
    case Qt::Key_PageDown:
        return pan(1.0, 0.0);
    case Qt::Key_Up:
        return pan(0.0, keyStep);
    case Qt::Key_Down:
        return pan(0.0, -keyStep);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return control ? zoomLevel(centre.y(), 1.0 / zoomStep) : zoomIn();
    case Qt::Key_Minus:
        return control ? zoomLevel(centre.y(), zoomStep) : zoomOut();
    case Qt::Key_Home:
        return showAll();
    case Qt::Key_A:
        return placeCursor(A, centre.x());
    case Qt::Key_B:
        return placeCursor(B, centre.x());
    default:
        QWidget::keyPressEvent(event);
    }
}

// --- Drawing

void RecordChart::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    // A screen scaled by 1.25 ends the chart within a pixel.
    painter.fillRect(event->rect().adjusted(-1, -1, 1, 1), Qt::white);
    m_axes.paint(painter);
    if (!hasData())
        return;
    m_axes.paintClock(painter);
    m_curve.draw(painter, m_axes.mapping());
    for (const Cursor cursor : {A, B})
        drawCursor(painter, cursor);
}

void RecordChart::drawCursor(QPainter &painter, Cursor cursor) const
{
    const int point = m_cursors[cursor];
    if (point == noPoint)
        return;
    const QRectF &area = plotArea();
    const QPointF place = m_axes.mapping().toScene({m_data->time(point), m_data->level(point)});
    if (place.x() < area.left() || place.x() > area.right())
        return;
    const QColor color = cursor == A ? QColor(0xc2, 0x3b, 0x22) : QColor(0x2e, 0x7d, 0x32);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.0, cursor == A ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(QPointF(place.x(), area.top()), QPointF(place.x(), area.bottom()));
    painter.setPen(QPen(color, 1.5));
    painter.setBrush(Qt::NoBrush);
    if (area.contains(place))
        painter.drawEllipse(place, 4.0, 4.0);
    const QFontMetricsF metrics(painter.font());
    const QString name = cursor == A ? QStringLiteral("A") : QStringLiteral("B");
    // The two flags stand on either side, so that both can be read on neighbouring points.
    const double width = metrics.horizontalAdvance(name) + 8.0;
    const QRectF flag(cursor == A ? place.x() - width : place.x(), area.top(), width,
                      metrics.height());
    painter.fillRect(flag, color);
    painter.setPen(Qt::white);
    painter.drawText(flag, Qt::AlignCenter, name);
}
