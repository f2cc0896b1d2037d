#include "2d/mycustomproxy.h"
#include "2d/myparainfotable.h"
#include "2d/parainfotable.h"
#include "2d/patternanalysis.h"
#include "2d/patternlines.h"
#include "2d/viewrange.h"
#include "testmain.h"

#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>

#include <cmath>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QStringList rowTexts(const QTableWidget &table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts.append(table.item(row, column) ? table.item(row, column)->text() : QString());
    return texts;
}

QStringList headings(const QTableWidget &table)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts.append(table.horizontalHeaderItem(column)->text());
    return texts;
}

ParaInfo sampleInfo()
{
    ParaInfo info;
    info.gain = {1.0, 20.0};
    info.halfPowerLeft = {-10.0, 17.0};
    info.halfPowerRight = {12.5, 17.0};
    info.backLobe = {-179.0, 2.0};
    info.axialRatio = {0.0, 40.0};
    return info;
}

const QStringList standardHeadings =
    text("Frequency(MHz)|Gain|3dB Width|First Side Lobe(L)|First Side Lobe(R)|Before After Ratio|"
         "Axial Ratio|CrossPolarRatio")
        .split(QLatin1Char('|'));

void sendMouse(QGraphicsScene &scene, QEvent::Type type, const QPointF &position)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(position);
    event.setLastScenePos(position);
    event.setButtonDownScenePos(Qt::LeftButton, QPointF(60, 60));
    event.setButton(Qt::LeftButton);
    event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    QCoreApplication::sendEvent(&scene, &event);
}

/// Angle and radius on a circle of a pixel a dB around the origin.
QPointF onCircle(const QPointF &value)
{
    const double angle = value.x() * std::acos(-1.0) / 180.0;
    return QPointF(std::sin(angle), -std::cos(angle)) * (value.y() + 40.0);
}

} // namespace

class TestParaTables : public QObject
{
    Q_OBJECT

private slots:
    void floatingTableNamesAllRows();
    void panelFollowsItsTableAndTheMouse();
    void frequencyTableGrowsShrinksAndResets();
    void frequencyTableShowsAmplitude();
    void linesAreShownAndHidden();
    void levelIsAnArcOnPolarCharts();
};

void TestParaTables::floatingTableNamesAllRows()
{
    MyParaInfoTable table;
    table.updateParaInfo(sampleInfo());
    QStringList names;
    for (int row = 0; row < table.rowCount(); ++row)
        names.append(table.item(row, 0)->text());
    QCOMPARE(names, text("Gain|3dB (L)|3dB (R)|3dB Width|First Null(L)|First Null(R)|"
                         "First Side Lobe(L)|First Side Lobe(R)|Before After Ratio(R)|Axial Ratio|"
                         "CrossPolarRatio")
                        .split(QLatin1Char('|')));
    QCOMPARE(rowTexts(table, 3), QStringList({text("3dB Width"), text("22.50"), text("17.00")}));
    QCOMPARE(rowTexts(table, 9), QStringList({text("Axial Ratio"), QString(), text("40.00")}));
}

void TestParaTables::panelFollowsItsTableAndTheMouse()
{
    QGraphicsScene scene(0, 0, 800, 600);
    auto *panel = new MyCustomProxy;
    scene.addItem(panel);
    QVERIFY(!panel->isVisible() && !panel->getParaTableDataStatus());
    panel->updateParaInfo(sampleInfo());
    QVERIFY(panel->isVisible() && panel->getParaTableDataStatus());
    QCOMPARE(panel->size(), QSizeF(300, 220));
    panel->clearParaInfo();
    QVERIFY(!panel->isVisible() && !panel->getParaTableDataStatus());
    QCOMPARE(panel->table()->item(0, 2)->text(), text("20.00"));

    panel->updateParaInfo(sampleInfo());
    panel->setPos(50, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, {60, 60});
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, {160, 90});
    sendMouse(scene, QEvent::GraphicsSceneMouseRelease, {160, 90});
    QCOMPARE(panel->pos(), QPointF(150, 80));
    QVERIFY(!scene.mouseGrabberItem());
}

void TestParaTables::frequencyTableGrowsShrinksAndResets()
{
    ParaInfoTable table;
    QCOMPARE(headings(table), standardHeadings);
    table.updateParaInfo(sampleInfo(), 1, text("2450"));
    table.updateParaInfo(sampleInfo(), 3, text("10 GHz"));
    QCOMPARE(table.rowCount(), 3);
    QCOMPARE(table.maximumHeight(), table.rowHeight(0) * 4);
    QCOMPARE(rowTexts(table, 0).first(), text("2450"));
    QCOMPARE(rowTexts(table, 2), text("10 GHz|20.0000|22.5000|0.0000|0.0000|25.1055|40.0000|0.0000")
                                     .split(QLatin1Char('|')));
    table.updateParaInfo(sampleInfo(), 1, text("900"));
    QCOMPARE(table.rowCount(), 1);
    QCOMPARE(rowTexts(table, 0).first(), text("900"));
    table.resetRows();
    QCOMPARE(rowTexts(table, 0), standardHeadings);
    table.updateParaInfo(sampleInfo(), 1, text("2450"));
    QCOMPARE(rowTexts(table, 0).first(), text("2450"));
}

void TestParaTables::frequencyTableShowsAmplitude()
{
    ParaInfoTable table;
    table.updateParaInfo(sampleInfo(), 1, text("2450"));
    table.setColumns(ParaInfoTable::Columns::WithAmplitude);
    QCOMPARE(headings(table).mid(0, 3),
             text("Frequency(MHz)|Amplitude|Gain").split(QLatin1Char('|')));
    table.updateParaInfo(sampleInfo(), 2, text("900"));
    QCOMPARE(rowTexts(table, 1).mid(0, 3), text("900|10.0000|20.0000").split(QLatin1Char('|')));
    QCOMPARE(rowTexts(table, 0)[2], text("20.0000"));
    table.setColumns(ParaInfoTable::Columns::Standard);
    QCOMPARE(headings(table), standardHeadings);
    QCOMPARE(rowTexts(table, 1)[1], text("20.0000"));
}

void TestParaTables::linesAreShownAndHidden()
{
    const PatternLineValues values{{0, 0}, QPointF(-5, -3), std::nullopt, {-30, -12}, {300, -12}};
    const auto doubled = [](const QPointF &value) { return value * 2.0; };
    const ViewRange axes{-180, 180, -40, 10};
    PatternLines lines;
    const QList<QGraphicsItem *> items = lines.items();
    QCOMPARE(items.size(), 6);
    const auto visible = [&items] {
        QList<int> indices;
        for (int i = 0; i < items.size(); ++i) {
            if (items[i]->isVisible())
                indices.append(i);
        }
        return indices;
    };
    QCOMPARE(visible(), QList<int>());
    lines.update(values, doubled, axes, true);
    QCOMPARE(visible(), QList<int>({0, 1, 4}));
    const QPainterPath left = qgraphicsitem_cast<QGraphicsPathItem *>(items[1])->path();
    QCOMPARE(QPointF(left.elementAt(0)), QPointF(-10, -80));
    QCOMPARE(left.currentPosition(), QPointF(-10, -6));
    lines.update(values, doubled, axes, false);
    QCOMPARE(visible(), QList<int>());
    qDeleteAll(items);
}

void TestParaTables::levelIsAnArcOnPolarCharts()
{
    const PatternLineValues values{{0, 0}, QPointF(-60, -3), QPointF(60, -3), {}, {}};
    PatternLines lines;
    const QList<QGraphicsItem *> items = lines.items();
    lines.update(values, onCircle, {-180, 180, -40, 10}, true);
    const QPainterPath arc = qgraphicsitem_cast<QGraphicsPathItem *>(items[3])->path();
    QVERIFY(arc.elementCount() > 100);
    for (int i = 0; i < arc.elementCount(); ++i) {
        const QPointF point = arc.elementAt(i);
        QVERIFY(std::abs(std::hypot(point.x(), point.y()) - 37.0) < 1e-9);
    }
    qDeleteAll(items);
}

MZ_TEST_MAIN(TestParaTables)
#include "tst_paratables.moc"
