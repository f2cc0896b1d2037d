#include "2d/data/patternsupplement.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/myparainfotable.h"
#include "2d/view/managergraph.h"
#include "2d/view/mycheckbox.h"
#include "2d/view/mycombobox.h"
#include "2d/view/mypushbutton.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QColorDialog>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>

#include <cmath>

using namespace ChartProbe;

namespace {

enum Row { IdRow, DescriptionRow, StateRow, ColorRow, WidthRow };

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

} // namespace

/// The graph manager, the tables of figures, and the lines that show them in a chart.
class TestChartTables : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_view = std::make_unique<GraphicsBase>(0);
        m_view->resetChart({text("F1"), text("F2"), text("F3")});
        curve(1)->setColor(QColor(10, 20, 30));
        curve(2)->setHidden(true);
        curve(3)->setLineWidth(7);
        m_dialog = std::make_unique<ManagerGraph>();
        m_dialog->updatePathInfo(m_view->paths());
        m_dialog->show();
    }

    void cleanup()
    {
        m_dialog.reset();
        m_view.reset();
    }

    void managerEditsAtOnce()
    {
        cell<MyCheckBox>(StateRow, 0)->click();
        cell<MyCheckBox>(StateRow, 1)->click();
        QVERIFY(curve(1)->isHidden() && !curve(2)->isHidden());

        auto *width = cell<MyComboBox>(WidthRow, 0);
        QList<int> widths;
        for (int i = width->count() - 1; i >= 0; --i) {
            width->setCurrentIndex(i);
            widths.append(curve(1)->lineWidth());
        }
        QCOMPARE(widths, QList<int>({9, 8, 9, 6, 5, 4, 3, 2, 1}));
        QCOMPARE(curve(2)->lineWidth(), 2);
    }

    void managerAsksForColor()
    {
        auto *swatch = cell<MyPushButton>(ColorRow, 0);
        const QColor before = curve(1)->color();
        for (const bool accepted : {false, true}) {
            const ModalScript script({[accepted](QWidget *window) {
                auto *dialog = qobject_cast<QColorDialog *>(window);
                QVERIFY(dialog);
                QCOMPARE(dialog->currentColor(), QColor(Qt::white));
                dialog->setCurrentColor(QColor(200, 0, 0));
                static_cast<QDialog *>(dialog)->done(accepted);
            }});
            swatch->click();
            QVERIFY(script.isDone());
            const QColor expected = accepted ? QColor(200, 0, 0) : before;
            QCOMPARE(curve(1)->color(), expected);
            QCOMPARE(swatch->palette().button().color(), expected);
        }
    }

    void managerRestoresEverything()
    {
        const QColor second = curve(2)->color();
        for (int column = 0; column < 3; ++column) {
            cell<MyCheckBox>(StateRow, column)->click();
            m_dialog->colorSelected(column, QColor(1, 2, 3));
            cell<MyComboBox>(WidthRow, column)->setCurrentIndex(8);
        }
        button("pushButtonDefault")->click();
        for (int column = 0; column < 3; ++column) {
            const bool isShown = column != 1;
            QCOMPARE(curve(column + 1)->isHidden(), !isShown);
            QCOMPARE(cell<MyCheckBox>(StateRow, column)->isChecked(), isShown);
        }
        QCOMPARE(curve(2)->color(), second);
        QCOMPARE(cell<MyPushButton>(ColorRow, 1)->palette().button().color(), second);
        QCOMPARE(curve(1)->lineWidth(), 2);
        QCOMPARE(cell<MyComboBox>(WidthRow, 0)->currentText(), text("2"));
        QCOMPARE(curve(3)->lineWidth(), 7); // not among the widths that are offered
        QVERIFY(m_dialog->isVisible());
        cell<MyCheckBox>(StateRow, 0)->click();
        m_dialog->reject(); // what was tried out is taken back
        QVERIFY(!curve(1)->isHidden());
    }

    void managerWritesNamesBack_data()
    {
        QTest::addColumn<QString>("descriptions");
        QTest::addColumn<Steps>("answers");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("closed");
        const Steps none;
        const Steps twice{rename("F1"), rename("B")};
        const Steps cancel{rename(nullptr)};
        QTest::newRow("untouched or emptied") << "F1||F3" << none << "F1|F2|F3" << true;
        QTest::newRow("two curves swap names") << "F2|F1|F3" << none << "F2|F1|F3" << true;
        QTest::newRow("a taken name is refused, and again")
            << "F1|F3|F3" << twice << "F1|B|F3" << true;
        const Steps close{[](QWidget *question) { question->close(); }};
        QTest::newRow("a name of blanks is none") << " |F2|F3" << close << "F1|F2|F3" << false;
        QTest::newRow("cancelled: back to the table") << "A|F3|F3" << cancel << "F1|F2|F3" << false;
    }

    void managerWritesNamesBack()
    {
        QFETCH(const QString, descriptions);
        QFETCH(const Steps, answers);
        QFETCH(const bool, closed);
        const QSignalSpy resized(m_dialog.get(), &ManagerGraph::updataResize);
        const QStringList edited = descriptions.split(QLatin1Char('|'));
        for (int column = 0; column < 3; ++column)
            table()->item(DescriptionRow, column)->setText(edited[column]);
        const ModalScript script(answers);
        button("pushButtonOK")->click();
        QVERIFY(script.isDone());
        QTEST(names(*m_view), "expected");
        QCOMPARE(m_dialog->isVisible(), !closed);
        QCOMPARE(resized.size(), closed ? 1 : 0);
    }

    void panelFollowsItsTableAndTheMouse()
    {
        QGraphicsScene scene(0, 0, 800, 600);
        auto *panel = new MyCustomProxy;
        scene.addItem(panel);
        for (const bool filled : {true, false, true}) {
            QCOMPARE(panel->isVisible(), !filled);
            if (filled)
                panel->updateParaInfo(sampleInfo());
            else
                panel->clearParaInfo();
            QCOMPARE(panel->getParaTableDataStatus(), filled);
            QCOMPARE(panel->table()->item(0, 2)->text(), text("20.00"));
        }
        QCOMPARE(panel->size(), QSizeF(300, 220));
        panel->setPos(50, 50);
        sendMouse(scene, QEvent::GraphicsSceneMousePress, {60, 60});
        sendMouse(scene, QEvent::GraphicsSceneMouseMove, {160, 90});
        sendMouse(scene, QEvent::GraphicsSceneMouseRelease, {160, 90});
        QCOMPARE(panel->pos(), QPointF(150, 80));
        QVERIFY(!scene.mouseGrabberItem());
    }

private:
    QTableWidget *table() const { return m_dialog->findChild<QTableWidget *>(text("tableWidget")); }
    template<typename Cell>
    Cell *cell(Row row, int column) const
    {
        QWidget *widget = table()->cellWidget(row, column);
        auto *found = qobject_cast<Cell *>(widget);
        return found ? found : widget->findChild<Cell *>();
    }
    QPushButton *button(const char *name) const
    {
        return m_dialog->findChild<QPushButton *>(text(name));
    }
    PathInfo *curve(int id) const { return m_view->paths()[id]; }

    std::unique_ptr<GraphicsBase> m_view;
    std::unique_ptr<ManagerGraph> m_dialog;
};

MZ_TEST(TestChartTables)

#include "tst_charttables.moc"
