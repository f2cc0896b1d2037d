#pragma once

#include "recorddata/recordsteering.h"
#include "recordview/recordaxes.h"
#include "recordview/recordcurve.h"

#include <QWidget>

#include <array>

/// Shows a record: level against clock time, with two cursors that stand on points.
///
/// The wheel zooms the time about the pointer, with Ctrl the level; dragging pans, or moves the
/// cursor that it began on. A click puts cursor A on the nearest point, with Shift cursor B.
class RecordChart : public QWidget
{
    Q_OBJECT

public:
    enum Cursor { A, B };
    static constexpr int noPoint = -1;

    explicit RecordChart(QWidget *parent = nullptr);

    /// Shows \a record, which must live until another is set; null for none. The range shown stays
    /// if \a keepRange, else all is shown and the cursors go.
    void setData(const RecordData *record, bool keepRange);
    /// Draws again what has been added to the data.
    void refresh();

    /// The point that a cursor stands on.
    int cursor(Cursor cursor) const { return m_cursors[cursor]; }
    void setCursorPoint(Cursor cursor, int point);

    /// Times in x, levels in y.
    ViewRange shownRange() const { return m_shown; }
    bool fitsLevel() const { return m_fitsLevel; }
    void retranslate();

public slots:
    void showAll();
    void zoomIn();
    void zoomOut();
    /// Whether the level axis follows what is shown.
    void setFitsLevel(bool fits);

signals:
    void cursorsMoved();
    void fitsLevelChanged(bool fits);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool hasData() const { return m_data && !m_data->isEmpty(); }
    RecordSteering steering() const;
    void showRange(ViewRange range);
    void zoomTime(double centre, double factor);
    void zoomLevel(double centre, double factor);
    void pan(double widths, double heights);
    void stepCursor(int points);
    void placeCursor(Cursor cursor, double time);
    int cursorAt(const QPointF &position) const;
    QPointF valueAt(const QPointF &position) const;
    void drawCursor(QPainter &painter, Cursor cursor) const;
    const QRectF &plotArea() const { return m_axes.mapping().plotArea; }

    RecordAxes m_axes;
    RecordCurve m_curve;
    const RecordData *m_data = nullptr;
    ViewRange m_shown{0.0, 1.0, -100.0, 0.0};
    bool m_fitsLevel = true;
    std::array<int, 2> m_cursors{noPoint, noPoint};
    Cursor m_active = A;

    enum class Drag { None, Undecided, Pan, Cursor };
    Drag m_drag = Drag::None;
    QPointF m_pressed;
    ViewRange m_pressedRange;
};
