#include "2d/curvetext.h"
#include "2d/graphicsbase.h"
#include "2d/listchart.h"
#include "2d/parainfotable.h"
#include "2d/paratabletext.h"
#include "2d/pathinfo.h"
#include "2d/supplementarytable.h"
#include "modaldialogs.h"
#include "testmain.h"
#include "widgets/lineedit.h"

#include <QChart>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QUrl>

#include <cmath>

namespace {

QVector<QPointF> pattern(double peak, double width)
{
    QVector<QPointF> points;
    for (int angle = -180; angle <= 180; ++angle)
        points.append({double(angle), peak - 30.0 * std::pow(std::sin(angle / width), 2)});
    return points;
}

QStringList names(const GraphicsBase &view)
{
    QStringList names;
    for (auto path = view.paths().begin(); path != view.paths().end(); ++path)
        names.append(QStringLiteral("%1 %2").arg(path.key()).arg(path.value()->name()));
    return names;
}

void dropText(GraphicsBase &view, const QString &text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
}

} // namespace

/// The form as its operator uses it.
class TestListChart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void bothChartsHoldTheSameCurves();
    void curveComesIntoEitherChart_data();
    void curveComesIntoEitherChart();
    void takenNameIsAskedFor_data();
    void takenNameIsAskedFor();
    void goingCurveLeavesBothCharts();
    void looksAreTheSameInBothCharts();
    void selectionIsOne();
    void tablesTellTheFigures();
    void hiddenCurveHasNoFigures();
    void frequencyAndMaterialAreEdited_data();
    void frequencyAndMaterialAreEdited();
    void levelsFollowTheDataUntilChosen();
    void levelsUpsideDownAreRefused();
    void titleComesFromTheFiles();
    void droppedFilesAreNoCurves();
    void parameterTextIsATable();
    void languageChangeKeepsEverything();

private:
    template<typename Widget>
    Widget &child(const char *name) const
    {
        return *m_form->findChild<Widget *>(QString::fromLatin1(name));
    }
    QString cell(const char *table, int row, int column) const;
    bool edit(int row, int column, const QString &text, int role = Qt::EditRole) const;

    std::unique_ptr<ListChart> m_form;
};

void TestListChart::init()
{
    m_form = std::make_unique<ListChart>();
    m_form->resize(1200, 700);
    m_form->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_form.get()));
}

QString TestListChart::cell(const char *table, int row, int column) const
{
    const QTableWidgetItem *item = child<QTableWidget>(table).item(row, column);
    return item != nullptr ? item->text() : QStringLiteral("none");
}

bool TestListChart::edit(int row, int column, const QString &text, int role) const
{
    QAbstractItemModel *model = child<QTableView>("curveTable").model();
    return model->setData(model->index(row, column), text, role);
}

void TestListChart::bothChartsHoldTheSameCurves()
{
    QCOMPARE(m_form->addCurve(QStringLiteral("A"), pattern(10, 40)), 1);
    QCOMPARE(m_form->addCurve(QStringLiteral("B"), pattern(5, 20)), 2);
    for (const GraphicsBase *view : {&m_form->polarChart(), &m_form->cartesianChart()}) {
        QCOMPARE(names(*view), QStringList({QStringLiteral("1 A"), QStringLiteral("2 B")}));
        QCOMPARE(view->paths().value(2)->points(), pattern(5, 20));
    }
    const QAbstractItemModel *points = child<QTableView>("pointTable").model();
    QCOMPARE(points->columnCount(), 4);
    QCOMPARE(points->rowCount(), 361);
    QCOMPARE(points->index(0, 2).data().toString(), QStringLiteral("-180"));
    QCOMPARE(points->index(180, 3).data().toString(), QStringLiteral("5"));
}

void TestListChart::curveComesIntoEitherChart_data()
{
    QTest::addColumn<bool>("polar");
    QTest::addColumn<bool>("paste");
    QTest::newRow("dropped onto the polar chart") << true << false;
    QTest::newRow("dropped onto the cartesian chart") << false << false;
    QTest::newRow("pasted into the polar chart") << true << true;
    QTest::newRow("pasted into the cartesian chart") << false << true;
}

void TestListChart::curveComesIntoEitherChart()
{
    QFETCH(const bool, polar);
    QFETCH(const bool, paste);
    m_form->addCurve(QStringLiteral("A"), pattern(10, 40));
    GraphicsBase &view = polar ? m_form->polarChart() : m_form->cartesianChart();
    const QString text = CurveText::toClipboard(QStringLiteral("Horn 10 GHz"), pattern(5, 20));
    if (paste) {
        QApplication::clipboard()->setText(text);
        QMetaObject::invokeMethod(&view, "pasteSlot");
    } else {
        dropText(view, text);
    }
    const QStringList expected{QStringLiteral("1 A"), QStringLiteral("2 Horn 10 GHz")};
    QCOMPARE(names(m_form->polarChart()), expected);
    QCOMPARE(names(m_form->cartesianChart()), expected);
    QCOMPARE(m_form->cartesianChart().paths().value(2)->points(), pattern(5, 20));
    // The frequency table knows it at once, by the name's own frequency.
    QCOMPARE(cell("paraTable", 1, 0), QStringLiteral("10000"));
}

void TestListChart::takenNameIsAskedFor_data()
{
    QTest::addColumn<QString>("answer"); // empty: cancelled
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("renamed") << "B" << QStringList({QStringLiteral("1 A"), QStringLiteral("2 B")});
    QTest::newRow("cancelled") << "" << QStringList({QStringLiteral("1 A")});
}

/// As when a curve is dragged from one chart to the other of the same form.
void TestListChart::takenNameIsAskedFor()
{
    QFETCH(const QString, answer);
    QFETCH(const QStringList, expected);
    m_form->addCurve(QStringLiteral("A"), pattern(10, 40));
    ModalDialogs dialogs([&answer](QWidget &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("currentFreq"))->setText(answer);
        dialog
            .findChild<QPushButton *>(answer.isEmpty() ? QStringLiteral("cancelBtn")
                                                       : QStringLiteral("okBtn"))
            ->click();
    });
    dropText(m_form->cartesianChart(),
             CurveText::toClipboard(QStringLiteral("A"), pattern(10, 40)));
    QCOMPARE(dialogs.count(), 1);
    QCOMPARE(names(m_form->polarChart()), expected);
    QCOMPARE(names(m_form->cartesianChart()), expected);
}

void TestListChart::goingCurveLeavesBothCharts()
{
    for (const char *name : {"A", "B", "C"})
        m_form->addCurve(QString::fromLatin1(name), pattern(10, 40));
    m_form->curves().setRecord(
        1, {QString(), QString(), QStringLiteral("900"), QStringLiteral("PTFE"), QString(), false});
    m_form->cartesianChart().clearChart(1);
    QCOMPARE(names(m_form->polarChart()),
             QStringList({QStringLiteral("2 B"), QStringLiteral("3 C")}));
    m_form->curves().remove(3);
    QCOMPARE(names(m_form->cartesianChart()), QStringList({QStringLiteral("2 B")}));
    QCOMPARE(child<QTableWidget>("paraTable").rowCount(), 1);
    // A number that is used again brings nothing of its former owner.
    QCOMPARE(m_form->addCurve(QStringLiteral("D"), pattern(1, 40)), 1);
    QCOMPARE(m_form->curves().record(1).material, QString());
    m_form->polarChart().clearChart();
    QVERIFY(m_form->cartesianChart().paths().isEmpty());
    QCOMPARE(child<QTableWidget>("paraTable").rowCount(), 0);
}

void TestListChart::looksAreTheSameInBothCharts()
{
    m_form->addCurve(QStringLiteral("A"), pattern(10, 40));
    m_form->addCurve(QStringLiteral("B"), pattern(5, 20));
    const PathInfo *twin = m_form->cartesianChart().paths().value(2);
    PathInfo *curve = m_form->polarChart().paths().value(2);
    QCOMPARE(twin->color(), curve->color());
    // What the graph manager does.
    curve->setColor(Qt::magenta);
    curve->setLineWidth(5);
    curve->setName(QStringLiteral("New"));
    QCOMPARE(twin->color(), QColor(Qt::magenta));
    QCOMPARE(twin->lineWidth(), 5);
    QCOMPARE(twin->name(), QStringLiteral("New"));
    QCOMPARE(cell("supplementaryTable", 1, 0), QStringLiteral("New"));
    // What a click on the legend does.
    m_form->cartesianChart().setPathInfoHide(1);
    QVERIFY(curve->isHidden());
    QVERIFY(!m_form->polarChart().paths().value(1)->isHidden());
}

void TestListChart::selectionIsOne()
{
    m_form->addCurve(QStringLiteral("A"), pattern(10, 40));
    m_form->addCurve(QStringLiteral("B"), pattern(5, 20));
    auto &table = child<QTableView>("curveTable");
    table.selectRow(1);
    QCOMPARE(m_form->polarChart().selectedPath()->pathId(), 2);
    QCOMPARE(m_form->cartesianChart().selectedPath()->pathId(), 2);
    QCOMPARE(m_form->curves().selected(), 2);
    m_form->cartesianChart().updatePathSelection(1);
    QCOMPARE(m_form->polarChart().selectedPath()->pathId(), 1);
    QCOMPARE(table.selectionModel()->selectedRows().value(0).row(), 0);
    m_form->polarChart().updatePathSelection(0);
    QVERIFY(m_form->cartesianChart().selectedPath() == nullptr);
    QVERIFY(table.selectionModel()->selectedRows().isEmpty());
}

void TestListChart::tablesTellTheFigures()
{
    CurveRecord record;
    record.frequency = QStringLiteral("2450");
    m_form->addCurve(QStringLiteral("A"), pattern(10, 40), record);
    m_form->addCurve(QStringLiteral("no frequency"), pattern(5, 20));
    const auto &table = child<QTableWidget>("paraTable");
    QVERIFY(child<QFrame>("listChartParaTabelFrame").isAncestorOf(&table));
    QCOMPARE(table.rowCount(), 2);
    const QStringList expected =
        frequencyTableCells(m_form->figures().first().parameters, QStringLiteral("2450"));
    QCOMPARE(expected.at(1), QStringLiteral("10.0000"));
    for (int column = 0; column < expected.size(); ++column)
        QCOMPARE(cell("paraTable", 0, column), expected.at(column));
    QCOMPARE(cell("paraTable", 1, 0), QStringLiteral("\u2013"));
    QCOMPARE(cell("supplementaryTable", 0, 0), QStringLiteral("A"));
    QVERIFY(cell("supplementaryTable", 0, 1).toDouble() > 0.0);
}

void TestListChart::hiddenCurveHasNoFigures()
{
    m_form->addCurve(QStringLiteral("A 900 MHz"), pattern(10, 40));
    m_form->addCurve(QStringLiteral("B 800 MHz"), pattern(5, 20));
    QVERIFY(edit(0, 0, QStringLiteral("0"), Qt::CheckStateRole));
    QVERIFY(m_form->cartesianChart().paths().value(1)->isHidden());
    QCOMPARE(child<QTableWidget>("paraTable").rowCount(), 1);
    QCOMPARE(cell("paraTable", 0, 0), QStringLiteral("800"));
    QVERIFY(edit(0, 0, QStringLiteral("2"), Qt::CheckStateRole));
    QCOMPARE(cell("paraTable", 0, 0), QStringLiteral("900"));
}

void TestListChart::frequencyAndMaterialAreEdited_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<QString>("shown");
    QTest::newRow("frequency") << 1 << "5800" << true << "5800";
    QTest::newRow("frequency with unit") << 1 << "5.8 GHz" << true << "5800";
    QTest::newRow("frequency taken away") << 1 << "" << true << "";
    QTest::newRow("no frequency") << 1 << "high" << false << "900";
    QTest::newRow("material") << 2 << " FR-4 " << true << "FR-4";
    QTest::newRow("name") << 0 << "C" << true << "C";
    QTest::newRow("name of another curve") << 0 << "B" << false << "A 900 MHz";
    QTest::newRow("no name") << 0 << " " << false << "A 900 MHz";
}

void TestListChart::frequencyAndMaterialAreEdited()
{
    m_form->addCurve(QStringLiteral("A 900 MHz"), pattern(10, 40));
    m_form->addCurve(QStringLiteral("B"), pattern(5, 20));
    QSignalSpy messages(m_form.get(), &ListChart::message);
    QFETCH(const int, column);
    QFETCH(const QString, text);
    QFETCH(const bool, taken);
    QCOMPARE(edit(0, column, text), taken);
    QCOMPARE(messages.count(), taken ? 0 : 1);
    const QAbstractItemModel *model = child<QTableView>("curveTable").model();
    QTEST(model->index(0, column).data().toString(), "shown");
    QCOMPARE(m_form->cartesianChart().paths().value(1)->name(),
             model->index(0, 0).data().toString());
}

void TestListChart::levelsFollowTheDataUntilChosen()
{
    const auto &min = child<LineEdit>("levelMin");
    const auto &max = child<LineEdit>("levelMax");
    m_form->addCurve(QStringLiteral("A"), pattern(2.5, 40));
    QCOMPARE(max.value(), 5.0);
    QCOMPARE(min.value(), -30.0);
    m_form->addCurve(QStringLiteral("B"), pattern(21, 40));
    QCOMPARE(max.value(), 30.0);
    m_form->setLevels(-50, 40);
    m_form->addCurve(QStringLiteral("C"), pattern(60, 40));
    QCOMPARE(max.value(), 40.0);
    QCOMPARE(min.value(), -50.0);
    for (const GraphicsBase *view : {&m_form->polarChart(), &m_form->cartesianChart()}) {
        QCOMPARE(view->shownRange().yMin, -50.0);
        QCOMPARE(view->shownRange().yMax, 40.0);
    }
    child<QPushButton>("fitButton").click();
    QCOMPARE(max.value(), 60.0);
    QCOMPARE(m_form->cartesianChart().shownRange().xMin, -180.0);
    QCOMPARE(m_form->cartesianChart().shownRange().xMax, 180.0);
}

void TestListChart::levelsUpsideDownAreRefused()
{
    m_form->addCurve(QStringLiteral("A"), pattern(2.5, 40));
    QSignalSpy messages(m_form.get(), &ListChart::message);
    auto &min = child<LineEdit>("levelMin");
    min.setValue(50.0);
    emit min.editingFinished();
    QCOMPARE(messages.count(), 1);
    QCOMPARE(min.value(), -30.0);
    QCOMPARE(m_form->polarChart().shownRange().yMin, -30.0);
}

void TestListChart::titleComesFromTheFiles()
{
    CurveRecord record;
    record.title = QStringLiteral("Horn, H plane");
    QCOMPARE(m_form->title(), QString());
    m_form->addCurve(QStringLiteral("A"), pattern(1, 40), record);
    QCOMPARE(m_form->polarChart().chart()->title(), record.title);
    record.title = QStringLiteral("Patch");
    m_form->addCurve(QStringLiteral("B"), pattern(1, 40), record);
    QVERIFY(!m_form->title().isEmpty() && m_form->title() != record.title);
    auto &edit = child<QLineEdit>("titleEdit");
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("Mine"));
    QCOMPARE(m_form->cartesianChart().chart()->title(), QStringLiteral("Mine"));
    m_form->addCurve(QStringLiteral("C"), pattern(1, 40));
    QCOMPARE(m_form->title(), QStringLiteral("Mine"));
}

void TestListChart::droppedFilesAreNoCurves()
{
    QSignalSpy dropped(m_form.get(), &ListChart::filesDropped);
    for (QWidget *place : {static_cast<QWidget *>(m_form.get()), m_form->polarChart().viewport()}) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a.csv")),
                      QUrl::fromLocalFile(QStringLiteral("/tmp/b.csv"))});
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(place, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &drop);
        QTRY_COMPARE(dropped.count(), 1);
        QCOMPARE(dropped.takeFirst().first().toStringList(),
                 QStringList({QStringLiteral("/tmp/a.csv"), QStringLiteral("/tmp/b.csv")}));
    }
    QVERIFY(m_form->curves().ids().isEmpty());
}

void TestListChart::parameterTextIsATable()
{
    m_form->addCurve(QStringLiteral("A 900 MHz"), pattern(10, 40));
    m_form->addCurve(QStringLiteral("B"), pattern(5, 20));
    const QStringList lines = m_form->parameterText().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 9); // two tables of three lines, a gap, a heading, the last line's end
    QVERIFY(lines.at(0).startsWith(QStringLiteral("Curve\tFrequency(MHz)\tGain\t3dB Width\t")));
    QVERIFY(lines.at(1).startsWith(QStringLiteral("A 900 MHz\t900\t10.0000\t")));
    QCOMPARE(lines.at(1).count(QLatin1Char('\t')), lines.at(0).count(QLatin1Char('\t')));
    QCOMPARE(lines.at(4), QStringLiteral("Supplementary"));
    QCOMPARE(lines.at(7).count(QLatin1Char('\t')), lines.at(5).count(QLatin1Char('\t')));
}

void TestListChart::languageChangeKeepsEverything()
{
    m_form->addCurve(QStringLiteral("A 900 MHz"), pattern(10, 40));
    m_form->setLevels(-20, 15);
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_form.get(), &change);
    QApplication::sendEvent(&m_form->polarChart(), &change);
    QApplication::sendEvent(&m_form->cartesianChart(), &change);
    QCOMPARE(child<LineEdit>("levelMax").value(), 15.0);
    QCOMPARE(m_form->cartesianChart().shownRange().yMax, 15.0);
    QCOMPARE(cell("paraTable", 0, 0), QStringLiteral("900"));
    QCOMPARE(names(m_form->polarChart()), QStringList(QStringLiteral("1 A 900 MHz")));
}

MZ_TEST_MAIN(TestListChart)
#include "tst_listchart.moc"
