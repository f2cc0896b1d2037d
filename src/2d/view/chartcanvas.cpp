#include "2d/view/chartcanvas.h"

#include <QFocusEvent>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

/// A scroll bar that is never seen: to ask the style for its size takes a fifth of a tick of the
/// time chart.
class UnseenScrollBar : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;

    QSize sizeHint() const override { return {}; }
};

} // namespace

ChartCanvas::ChartCanvas(QWidget *parent)
    : QGraphicsView(parent)
    , m_scene(std::make_unique<QGraphicsScene>())
{
    // Few items, most of which move with every change: an index would only have to be kept up.
    m_scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    // One plain ground below everything, instead of those of window, viewport and chart: a fifth of
    // the cost of a tick of the time chart.
    m_scene->setBackgroundBrush(Qt::white);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setScene(m_scene.get());
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_MouseTracking);
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBar(new UnseenScrollBar(Qt::Horizontal, this));
    setVerticalScrollBar(new UnseenScrollBar(Qt::Vertical, this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(QStringLiteral("border-width: 1px;border-style: none;"));
}

ChartCanvas::~ChartCanvas() = default;

QPixmap ChartCanvas::unfocusedPicture()
{
    const QScopedValueRollback<bool> withoutFocus(m_focusShown, false);
    return grab();
}

/// The scene would keep the tabulator among its tables, none of which takes a key.
bool ChartCanvas::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
            return focusNextPrevChild(key == Qt::Key_Tab);
    }
    return QGraphicsView::event(event);
}

void ChartCanvas::focusInEvent(QFocusEvent *event)
{
    QGraphicsView::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    m_focusShown = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason;
    viewport()->update();
}

void ChartCanvas::focusOutEvent(QFocusEvent *event)
{
    QGraphicsView::focusOutEvent(event);
    m_focusShown = false;
    viewport()->update();
}

// A screen scaled by 1.25 ends a view within a pixel, which its ground has to cover wholly: what
// has been painted there before would shine through.
void ChartCanvas::drawBackground(QPainter *painter, const QRectF &rect)
{
    QGraphicsView::drawBackground(painter, rect.adjusted(-1.0, -1.0, 1.0, 1.0));
}

void ChartCanvas::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    if (!m_focusShown)
        return;
    constexpr double width = 2.0;
    QPainter painter(viewport());
    painter.setPen(QPen(QColor(10, 134, 214), width));
    painter.drawRect(QRectF(viewport()->rect()).adjusted(1.0, 1.0, -1.0, -1.0));
}
