#include "chartprobe.h"

#include "2d/pathinfo.h"

#include <QTimer>
#include <QtTest>

#include <cmath>

namespace ChartProbe {

bool show(GraphicsBase &view, int width, int height)
{
    view.resize(width, height);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        return false;
    QCoreApplication::processEvents();
    return true;
}

void run(GraphicsBase &view, const char *slot)
{
    QVERIFY2(QMetaObject::invokeMethod(&view, slot), slot);
}

void click(GraphicsBase &view, const QPointF &position)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position.toPoint());
}

void turnWheel(GraphicsBase &view, const QPointF &position, int delta)
{
    QWheelEvent event(position, view.viewport()->mapToGlobal(position.toPoint()), QPoint(),
                      QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

QImage picture(GraphicsBase &view)
{
    QCoreApplication::processEvents();
    return view.grab().toImage();
}

bool showsCurve(GraphicsBase &view, const QImage &picture, int pathId, const QPointF &value,
                int reach)
{
    const QColor color = view.paths().value(pathId)->color();
    const QPoint place = view.toScene(value).toPoint();
    constexpr int tolerance = 40;
    for (int y = place.y() - reach; y <= place.y() + reach; ++y) {
        for (int x = place.x() - reach; x <= place.x() + reach; ++x) {
            if (!picture.valid(x, y))
                continue;
            const QColor pixel = picture.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) < tolerance &&
                std::abs(pixel.green() - color.green()) < tolerance &&
                std::abs(pixel.blue() - color.blue()) < tolerance)
                return true;
        }
    }
    return false;
}

Points sine(int count, double from, double to, double level)
{
    Points points;
    for (int i = 0; i < count; ++i) {
        const double x = from + (to - from) * i / (count - 1);
        points.append({x, level + 10.0 * std::sin(x * 12.0 / (to - from))});
    }
    return points;
}

} // namespace ChartProbe

ChartBench::ChartBench(const ChartProbe::Points &points, int kind)
    : view(kind, nullptr)
    , ready(ChartProbe::show(view))
{
    if (kind == 0)
        view.setXRange(0, 100);
    view.setYRange(-40, 0, 4);
    path = view.addCurve(QStringLiteral("A"), points);
}

void ChartBench::openMenu(const QPointF &value, const std::function<void(ChartMenu &)> &choose)
{
    bool seen = false;
    QTimer::singleShot(0, &view, [&] {
        auto *menu = view.findChild<ChartMenu *>();
        seen = menu != nullptr;
        if (!menu)
            return;
        choose(*menu);
        menu->close();
    });
    const QPoint place = view.toScene(value).toPoint();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &event);
    QVERIFY(seen);
}

void ChartBench::chooseEntry(const QPointF &value, ChartMenu::Entry entry)
{
    openMenu(value, [entry](ChartMenu &menu) { menu.entry(entry)->trigger(); });
}

void ChartBench::addMark(double x)
{
    view.updatePathSelection(1);
    chooseEntry({x, -20}, ChartMenu::Entry::AddMark);
}

MyMarkItem *ChartBench::mark(int number) const
{
    return view.marks().value(number);
}
