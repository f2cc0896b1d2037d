#include "2d/data/curvetext.h"
#include "2d/data/paratabletext.h"
#include "2d/form/listchart.h"
#include "2d/form/parainfotable.h"
#include "2d/form/supplementarytable.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"
#include "widgets/lineedit.h"

#include <QAbstractItemModelTester>
#include <QChart>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QUrl>
#include <QValueAxis>

#include <cmath>

using namespace ChartProbe;
using namespace QtCharts;

namespace {

Points lobes(double peak, double width)
{
    Points points;
    for (int angle = -180; angle <= 180; ++angle)
        points.append({double(angle), peak - 30.0 * std::pow(std::sin(angle / width), 2)});
    return points;
}

} // namespace

/// The form as its user uses it.
class TestListChart : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = std::make_unique<ListChart>();
        m_form->resize(1200, 700);
        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form.get()));
        for (const char *table : {"curveTable", "pointTable"}) {
            QAbstractItemModel *model = child<QTableView>(table).model();
            new QAbstractItemModelTester(model, model);
        }
    }

    void bothChartsHoldTheSameCurves()
    {
        addTwo();
        for (const GraphicsBase *view : {&polar(), &cartesian()}) {
            QCOMPARE(names(*view), text("A 900 MHz|B"));
            QCOMPARE(view->paths().value(2)->points(), lobes(5, 20));
        }
        const QAbstractItemModel *points = child<QTableView>("pointTable").model();
        QCOMPARE(points->columnCount(), 4);
        QCOMPARE(points->rowCount(), 361);
        QCOMPARE(points->headerData(0, Qt::Vertical).toInt(), 1);
        QCOMPARE(points->index(0, 2).data().toString(), text("-180"));
        QCOMPARE(points->index(180, 3).data().toString(), text("5"));
    }

    void curveComesIntoEitherChart()
    {
        addTwo();
        QMimeData data;
        data.setText(CurveText::toClipboard(text("Horn 10 GHz"), lobes(5, 20)));
        QApplication::clipboard()->setText(data.text());
        for (GraphicsBase *view : {&polar(), &cartesian()}) {
            for (const bool paste : {false, true}) {
                if (paste)
                    run(*view, "pasteSlot");
                else
                    dropOn(*view->viewport(), data);
                QCOMPARE(names(polar()), text("A 900 MHz|B|Horn 10 GHz"));
                QCOMPARE(names(cartesian()), text("A 900 MHz|B|Horn 10 GHz"));
                QCOMPARE(cartesian().paths().value(3)->points(), lobes(5, 20));
                // The frequency table knows it at once, by the name's own frequency.
                QCOMPARE(cell("paraTable", 2, 0), text("10000"));
                m_form->curves().remove(3);
            }
        }
    }

    /// As when a curve is dragged from one chart to the other of the same form.
    void takenNameIsAskedFor()
    {
        addTwo();
        QMimeData data;
        data.setText(CurveText::toClipboard(text("B"), lobes(10, 40)));
        for (const char *answer : {static_cast<const char *>(nullptr), "C"}) {
            const ModalScript script({rename(answer)});
            dropOn(*cartesian().viewport(), data);
            QVERIFY(script.isDone());
            QCOMPARE(names(polar()), text(answer ? "A 900 MHz|B|C" : "A 900 MHz|B"));
            QCOMPARE(names(cartesian()), names(polar()));
        }
    }

    void goingCurveLeavesBothCharts()
    {
        addTwo();
        m_form->addCurve(text("C"), lobes(10, 40));
        QVERIFY(edit(0, 2, text("PTFE")));
        cartesian().clearChart(1);
        QCOMPARE(names(polar()), text("B|C"));
        m_form->curves().remove(3);
        QCOMPARE(names(cartesian()), text("B"));
        QCOMPARE(child<QTableWidget>("paraTable").rowCount(), 1);
        // A number that is used again brings nothing of its former owner.
        QCOMPARE(polar().addCurve(text("D"), lobes(1, 40))->pathId(), 1);
        QCOMPARE(m_form->curves().record(1).material, QString());
        polar().clearChart();
        QVERIFY(cartesian().paths().isEmpty());
        QCOMPARE(child<QTableWidget>("paraTable").rowCount(), 0);
    }

    void looksAreTheSameInBothCharts()
    {
        addTwo();
        const PathInfo *twin = cartesian().paths().value(2);
        PathInfo *curve = polar().paths().value(2);
        QCOMPARE(twin->color(), curve->color());
        // What the graph manager does.
        curve->setColor(Qt::magenta);
        curve->setLineWidth(5);
        curve->setName(text("New"));
        QCOMPARE(twin->color(), QColor(Qt::magenta));
        QCOMPARE(twin->lineWidth(), 5);
        QCOMPARE(twin->name(), text("New"));
        QCOMPARE(cell("supplementaryTable", 1, 0), text("New"));
        // What a click on the legend does.
        cartesian().setPathInfoHide(1);
        QVERIFY(curve->isHidden());
        QVERIFY(!polar().paths().value(1)->isHidden());
    }

    void selectionIsOne()
    {
        addTwo();
        auto &table = child<QTableView>("curveTable");
        table.selectRow(1);
        QCOMPARE(polar().selectedPath()->pathId(), 2);
        QCOMPARE(cartesian().selectedPath()->pathId(), 2);
        QCOMPARE(m_form->curves().selected(), 2);
        cartesian().updatePathSelection(1);
        QCOMPARE(polar().selectedPath()->pathId(), 1);
        QCOMPARE(table.selectionModel()->selectedRows().value(0).row(), 0);
        polar().updatePathSelection(0);
        QVERIFY(cartesian().selectedPath() == nullptr);
        QVERIFY(table.selectionModel()->selectedRows().isEmpty());
        // A click on the row that was selected last selects it again, and hiding deselects.
        const QModelIndex first = table.model()->index(0, 1);
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                              table.visualRect(first).center());
            QCOMPARE(m_form->curves().selected(), 1);
            run(polar(), "clearSelectionSlot");
            QCOMPARE(m_form->curves().selected(), 0);
        }
        m_form->curves().select(1);
        m_form->addCurve(text("C"), lobes(5, 20)); // makes the list anew
        QCOMPARE(table.selectionModel()->selectedRows().value(0).row(), 0);
        m_form->curves().setHidden(1, true);
        QCOMPARE(m_form->curves().selected(), 0);
        QVERIFY(table.selectionModel()->selectedRows().isEmpty());
    }

    void tablesTellTheFigures()
    {
        addTwo();
        const auto &table = child<QTableWidget>("paraTable");
        QVERIFY(child<QFrame>("listChartParaTabelFrame").isAncestorOf(&table));
        const QStringList expected =
            frequencyTableCells(m_form->figures().first().parameters, text("900"));
        QCOMPARE(expected.at(1), text("10.0000"));
        for (int column = 0; column < expected.size(); ++column)
            QCOMPARE(cell("paraTable", 0, column), expected.at(column));
        QCOMPARE(cell("paraTable", 1, 0), text("–"));
        QCOMPARE(cell("supplementaryTable", 0, 0), text("A 900 MHz"));
        QVERIFY(cell("supplementaryTable", 0, 1).toDouble() > 0.0);
        m_form->setBeamLevels({10.0});
        QCOMPARE(child<QTableWidget>("supplementaryTable").horizontalHeaderItem(7)->text(),
                 text("BW -10 dB [°]"));
        // A mask has none.
        CurveRecord record;
        record.isMask = true;
        m_form->addCurve(text("M"), lobes(15, 40), record);
        QCOMPARE(table.rowCount(), 2);
        m_form->curves().remove(3);
        // A hidden curve has none.
        QVERIFY(edit(0, 0, text("0"), Qt::CheckStateRole));
        QVERIFY(cartesian().paths().value(1)->isHidden());
        QCOMPARE(table.rowCount(), 1);
        QCOMPARE(cell("paraTable", 0, 1), text("5.0000"));
        QVERIFY(edit(0, 0, text("2"), Qt::CheckStateRole));
        QCOMPARE(cell("paraTable", 0, 1), text("10.0000"));
    }

    void frequencyAndMaterialAreEdited()
    {
        addTwo();
        QSignalSpy messages(m_form.get(), &ListChart::message);
        const QAbstractItemModel *model = child<QTableView>("curveTable").model();
        const auto shownAfter = [&](int column, const char *typed) {
            edit(0, column, text(typed));
            return model->index(0, column).data().toString();
        };
        QCOMPARE(shownAfter(1, "5.8 GHz"), text("5800"));
        QCOMPARE(shownAfter(1, ""), QString());
        QCOMPARE(shownAfter(2, " FR-4 "), text("FR-4"));
        QCOMPARE(shownAfter(0, "C"), text("C"));
        QCOMPARE(names(cartesian()), text("C|B"));
        QCOMPARE(messages.count(), 0);
        // What is refused is told.
        QCOMPARE(shownAfter(1, "high"), QString());
        QCOMPARE(shownAfter(0, "B"), text("C"));
        QCOMPARE(shownAfter(0, " "), text("C"));
        QCOMPARE(messages.count(), 3);
        QCOMPARE(names(cartesian()), text("C|B"));
    }

    void levelsFollowTheDataUntilChosen()
    {
        using Ends = QVector<double>;
        auto &min = child<LineEdit>("levelMin");
        QSignalSpy messages(m_form.get(), &ListChart::message);
        m_form->addCurve(text("A"), lobes(2.5, 40));
        QCOMPARE(shown(polar()), (Ends{-180, 180, -30, 5}));
        // Upside down is refused.
        min.setValue(50.0);
        emit min.editingFinished();
        QCOMPARE(messages.count(), 1);
        QCOMPARE(min.value(), -30.0);
        m_form->addCurve(text("B"), lobes(21, 40));
        QCOMPARE(shown(polar()), (Ends{-180, 180, -30, 30}));
        min.setValue(-50.0);
        emit min.editingFinished();
        QMetaObject::invokeMethod(&polar(), "panSlot");
        m_form->addCurve(text("C"), lobes(60, 40));
        QCOMPARE(polar().viewport()->cursor().shape(), Qt::OpenHandCursor);
        QCOMPARE(shown(polar()), (Ends{-180, 180, -50, 30}));
        QCOMPARE(shown(cartesian()), (Ends{-180, 180, -50, 30}));
        child<QPushButton>("fitButton").click();
        QCOMPARE(child<LineEdit>("levelMax").value(), 60.0);
        m_form->curves().setHidden(3, true); // what is not seen takes no room
        child<QPushButton>("fitButton").click();
        QCOMPARE(child<LineEdit>("levelMax").value(), 30.0);
    }

    void namesAndAnglesFindRoom()
    {
        for (int i = 0; i < 20; ++i)
            m_form->addCurve(text("Antenna of quite a long name, number %1").arg(i), lobes(i, 40));
        const auto *angles =
            qobject_cast<QValueAxis *>(cartesian().chart()->axes(Qt::Horizontal).first());
        for (const auto &[size, all] :
             {std::pair(QSize(800, 400), true), {QSize(260, 400), false}}) {
            cartesian().resize(size);
            const QRectF area = cartesian().chart()->plotArea();
            QVERIFY(area.width() > 0.6 * size.width());
            QVERIFY(area.height() > 0.4 * size.height());
            QCOMPARE(angles->tickCount() == 9, all);
        }
    }

    void titleComesFromTheFiles()
    {
        CurveRecord record;
        record.title = text("Horn, H plane");
        QCOMPARE(m_form->title(), QString());
        m_form->addCurve(text("A"), lobes(1, 40), record);
        m_form->addCurve(text("A2"), lobes(1, 40), record);
        QCOMPARE(polar().chart()->title(), record.title);
        record.title = text("Patch");
        m_form->addCurve(text("B"), lobes(1, 40), record);
        QVERIFY(!m_form->title().isEmpty() && m_form->title() != record.title);
        auto &edit = child<QLineEdit>("titleEdit");
        edit.clear();
        QTest::keyClicks(&edit, text("Mine"));
        QCOMPARE(cartesian().chart()->title(), text("Mine"));
        m_form->addCurve(text("C"), lobes(1, 40));
        QCOMPARE(m_form->title(), text("Mine"));
    }

    void droppedFilesAreNoCurves()
    {
        const QStringList files{text("/tmp/a.csv"), text("/tmp/b.csv")};
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(files.first()), QUrl::fromLocalFile(files.last())});
        QSignalSpy dropped(m_form.get(), &ListChart::filesDropped);
        for (QWidget *place : {static_cast<QWidget *>(m_form.get()), polar().viewport()}) {
            dropOn(*place, data);
            QTRY_COMPARE(dropped.count(), 1);
            QCOMPARE(dropped.takeFirst().first().toStringList(), files);
        }
        QVERIFY(m_form->curves().ids().isEmpty());
    }

    void parameterTextIsATable()
    {
        addTwo();
        const QStringList lines = m_form->parameterText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(),
                 9); // two tables of three lines, a gap, a heading, the last line's end
        QVERIFY(lines.at(0).startsWith(text("Curve\tFrequency(MHz)\tGain\t3dB Width\t")));
        QVERIFY(lines.at(1).startsWith(text("A 900 MHz\t900\t10.0000\t")));
        QCOMPARE(lines.at(1).count(QLatin1Char('\t')), lines.at(0).count(QLatin1Char('\t')));
        QCOMPARE(lines.at(4), text("Supplementary"));
        QCOMPARE(lines.at(7).count(QLatin1Char('\t')), lines.at(5).count(QLatin1Char('\t')));
    }

    void languageChangeKeepsEverything()
    {
        addTwo();
        m_form->setLevels(-20, 15);
        for (QWidget *widget :
             {static_cast<QWidget *>(m_form.get()), static_cast<QWidget *>(&polar()),
              static_cast<QWidget *>(&cartesian())}) {
            QEvent change(QEvent::LanguageChange);
            QApplication::sendEvent(widget, &change);
        }
        QCOMPARE(child<LineEdit>("levelMax").value(), 15.0);
        QCOMPARE(cartesian().shownRange().yMax, 15.0);
        QCOMPARE(cell("paraTable", 0, 0), text("900"));
        QCOMPARE(names(polar()), text("A 900 MHz|B"));
    }

private:
    template<typename Widget>
    Widget &child(const char *name) const
    {
        return *m_form->findChild<Widget *>(text(name));
    }
    GraphicsBase &polar() const { return m_form->polarChart(); }
    GraphicsBase &cartesian() const { return m_form->cartesianChart(); }
    /// Adds two curves, "A 900 MHz" with its peak at 10 dB and "B" at 5 dB.
    void addTwo() const
    {
        QCOMPARE(m_form->addCurve(text("A 900 MHz"), lobes(10, 40)), 1);
        QCOMPARE(m_form->addCurve(text("B"), lobes(5, 20)), 2);
    }

    QString cell(const char *table, int row, int column) const
    {
        const QTableWidgetItem *item = child<QTableWidget>(table).item(row, column);
        return item != nullptr ? item->text() : text("none");
    }

    bool edit(int row, int column, const QString &value, int role = Qt::EditRole) const
    {
        QAbstractItemModel *model = child<QTableView>("curveTable").model();
        return model->setData(model->index(row, column), value, role);
    }

    std::unique_ptr<ListChart> m_form;
};

MZ_TEST(TestListChart)

#include "tst_listchart.moc"
