#include "chartprobe.h"

#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"

#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QtMath>
#include <QtTest>

#include <cmath>

namespace ChartProbe {

void show(GraphicsBase &view, int width, int height)
{
    view.resize(width, height);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
}

void run(GraphicsBase &view, const char *slot)
{
    QVERIFY2(QMetaObject::invokeMethod(&view, slot), slot);
}

void click(GraphicsBase &view, const QPointF &position)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position.toPoint());
}

void turnWheel(GraphicsBase &view, const QPointF &position, int delta,
               Qt::KeyboardModifiers modifiers)
{
    QWheelEvent event(position, view.viewport()->mapToGlobal(position.toPoint()), QPoint(),
                      QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &event);
}

void dropOn(QWidget &target, const QMimeData &data)
{
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    QVERIFY(event.isAccepted());
}

ModalScript::Step rename(const char *name)
{
    return [name](QWidget *question) {
        QCOMPARE(question->findChild<QLabel *>(text("label_MainInfo"))->text(),
                 text("Existing frequency!\n Please modify the name"));
        auto *edit = question->findChild<QLineEdit *>(text("currentFreq"));
        QCOMPARE(edit->text(), question->findChild<QLineEdit *>(text("rawFreq"))->text());
        edit->setText(text(name));
        question->findChild<QPushButton *>(text(name ? "okBtn" : "cancelBtn"))->click();
    };
}

QVector<double> shown(const GraphicsBase &view)
{
    const ViewRange range = view.shownRange();
    return {range.xMin, range.xMax, range.yMin, range.yMax};
}

QString names(const GraphicsBase &view)
{
    QStringList names;
    for (const PathInfo *path : view.paths())
        names.append(path->name());
    return names.join(QLatin1Char('|'));
}

QImage picture(GraphicsBase &view)
{
    QCoreApplication::processEvents();
    return view.grab().toImage();
}

QVector<QPoint> pixelsOf(const QImage &picture, const QRect &area, const QColor &color,
                         int tolerance)
{
    QVector<QPoint> pixels;
    const QRect seen = area & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) <= tolerance &&
                std::abs(pixel.green() - color.green()) <= tolerance &&
                std::abs(pixel.blue() - color.blue()) <= tolerance)
                pixels.append({x, y});
        }
    }
    return pixels;
}

bool showsCurve(GraphicsBase &view, const QImage &picture, int pathId, const QPointF &value,
                int reach)
{
    const QPoint corner = view.toScene(value).toPoint() - QPoint(reach, reach);
    const QRect area(corner, QSize(2 * reach + 1, 2 * reach + 1));
    return !pixelsOf(picture, area, view.paths().value(pathId)->color(), 40).isEmpty();
}

Points flat()
{
    return {{0, -20}, {100, -20}};
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

Points pattern(int count)
{
    Points points;
    for (int i = 0; i < count; ++i) {
        const double angle = -180.0 + 360.0 * i / (count - 1);
        points.append({angle, -15.0 + 10.0 * std::cos(qDegreesToRadians(angle * 3.0))});
    }
    return points;
}

} // namespace ChartProbe

ChartBench::ChartBench(const ChartProbe::Points &points, int kind)
    : view(kind, nullptr)
{
    ChartProbe::show(view);
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

QList<QPointF> ChartBench::drawn() const
{
    return path->pathItem()->drawnPoints();
}
