#include "2d/graphicsbase.h"
#include "2d/managergraph.h"
#include "2d/mycheckbox.h"
#include "2d/mycombobox.h"
#include "2d/mypushbutton.h"
#include "2d/pathinfo.h"
#include "modalscript.h"
#include "testmain.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

Q_DECLARE_METATYPE(QVector<ModalScript::Step>)

namespace {

enum Row { IdRow, DescriptionRow, StateRow, ColorRow, WidthRow };

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Answers the question for another name; null cancels.
ModalScript::Step rename(const char *name)
{
    return [name](QWidget *question) {
        QCOMPARE(question->findChild<QLabel *>(text("label_MainInfo"))->text(),
                 text("Existing frequency!\n Please modify the name"));
        question->findChild<QLineEdit *>(text("currentFreq"))->setText(text(name ? name : ""));
        question->findChild<QPushButton *>(text(name ? "okBtn" : "cancelBtn"))->click();
    };
}

} // namespace

class TestManagerGraph : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isLabelledWithoutCurves();
    void showsCurves();
    void editsAtOnce();
    void asksForColor();
    void restoresEverything();
    void writesNamesBack_data();
    void writesNamesBack();
    void opensFromTheView();

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

void TestManagerGraph::init()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_view = std::make_unique<GraphicsBase>(0);
    m_view->resize(600, 400);
    m_view->resetChart({text("F1"), text("F2"), text("F3")});
    curve(1)->setColor(QColor(10, 20, 30));
    curve(2)->setHidden(true);
    curve(3)->setLineWidth(7);
    m_dialog = std::make_unique<ManagerGraph>();
    m_dialog->updatePathInfo(m_view->paths());
    m_dialog->show();
}

void TestManagerGraph::cleanup()
{
    m_dialog.reset();
    m_view.reset();
}

void TestManagerGraph::isLabelledWithoutCurves()
{
    m_dialog->updatePathInfo({});
    QCOMPARE(m_dialog->windowTitle(), text("Manage Graph"));
    QCOMPARE(table()->columnCount(), 0);
    QStringList labels;
    for (int row = 0; row < table()->rowCount(); ++row)
        labels.append(table()->verticalHeaderItem(row)->text());
    QCOMPARE(labels, text("ID|Description|State|Line Color|Line Width").split(QLatin1Char('|')));
    QVERIFY(!table()->verticalHeader()->isVisible() && !table()->horizontalHeader()->isVisible());
    button("pushButtonOK")->click();
    QVERIFY(!m_dialog->isVisible());
}

void TestManagerGraph::showsCurves()
{
    m_view->clearChart(2);
    m_dialog->updatePathInfo(m_view->paths());
    QCOMPARE(table()->columnCount(), 2);
    QTableWidgetItem *id = table()->item(IdRow, 1);
    QCOMPARE(id->text(), text("3"));
    QVERIFY(!id->flags().testFlag(Qt::ItemIsEditable));
    QCOMPARE(table()->item(DescriptionRow, 1)->text(), text("F3"));
    QVERIFY(table()->item(DescriptionRow, 1)->flags().testFlag(Qt::ItemIsEditable));

    QVERIFY(cell<MyCheckBox>(StateRow, 0)->isChecked());
    auto *swatch = cell<MyPushButton>(ColorRow, 0);
    QCOMPARE(swatch->palette().button().color(), QColor(10, 20, 30));
    QCOMPARE(swatch->grab().toImage().pixelColor(swatch->rect().center()), QColor(10, 20, 30));
    QCOMPARE(cell<MyComboBox>(WidthRow, 0)->currentText(), text("2"));
}

void TestManagerGraph::editsAtOnce()
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

void TestManagerGraph::asksForColor()
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

void TestManagerGraph::restoresEverything()
{
    const QColor second = curve(2)->color();
    for (int column = 0; column < 3; ++column) {
        cell<MyCheckBox>(StateRow, column)->click();
        m_dialog->colorSelected(column, QColor(1, 2, 3));
        cell<MyComboBox>(WidthRow, column)->setCurrentIndex(8);
    }
    button("pushButtonDefault")->click();
    QVERIFY(!curve(1)->isHidden() && curve(2)->isHidden() && !curve(3)->isHidden());
    QVERIFY(cell<MyCheckBox>(StateRow, 0)->isChecked() &&
            !cell<MyCheckBox>(StateRow, 1)->isChecked());
    QCOMPARE(curve(1)->color(), QColor(10, 20, 30));
    QCOMPARE(curve(2)->color(), second);
    QCOMPARE(cell<MyPushButton>(ColorRow, 1)->palette().button().color(), second);
    QCOMPARE(curve(1)->lineWidth(), 2);
    QCOMPARE(cell<MyComboBox>(WidthRow, 0)->currentText(), text("2"));
    QCOMPARE(curve(3)->lineWidth(), 7); // not among the widths that are offered
    QVERIFY(m_dialog->isVisible());
}

void TestManagerGraph::writesNamesBack_data()
{
    using Steps = QVector<ModalScript::Step>;
    QTest::addColumn<QString>("descriptions");
    QTest::addColumn<Steps>("answers");
    QTest::addColumn<QString>("names");
    QTest::addColumn<bool>("closed");
    QTest::newRow("untouched or emptied") << text("F1||F3") << Steps() << text("F1|F2|F3") << true;
    QTest::newRow("two curves swap names")
        << text("F2|F1|F3") << Steps() << text("F2|F1|F3") << true;
    QTest::newRow("a taken name is refused, and again")
        << text("F1|F3|F3") << Steps{rename("F1"), rename("B")} << text("F1|B|F3") << true;
    QTest::newRow("cancelled: back to the table")
        << text("A|F3|F3") << Steps{rename(nullptr)} << text("F1|F2|F3") << false;
}

void TestManagerGraph::writesNamesBack()
{
    QFETCH(const QString, descriptions);
    QFETCH(const QVector<ModalScript::Step>, answers);
    QFETCH(const bool, closed);
    const QSignalSpy resized(m_dialog.get(), &ManagerGraph::updataResize);
    const QStringList edited = descriptions.split(QLatin1Char('|'));
    for (int column = 0; column < 3; ++column)
        table()->item(DescriptionRow, column)->setText(edited[column]);
    const ModalScript script(answers);
    button("pushButtonOK")->click();
    QVERIFY(script.isDone());
    QStringList names;
    for (const PathInfo *path : m_view->paths())
        names.append(path->name());
    QTEST(names.join(QLatin1Char('|')), "names");
    QCOMPARE(m_dialog->isVisible(), !closed);
    QCOMPARE(resized.size(), closed ? 1 : 0);
}

void TestManagerGraph::opensFromTheView()
{
    m_dialog->hide();
    const ModalScript script({[](QWidget *window) {
        QCOMPARE(window->windowTitle(), text("Manage Graph"));
        QCOMPARE(window->findChild<QTableWidget *>(text("tableWidget"))->columnCount(), 3);
        window->close();
    }});
    QVERIFY(QMetaObject::invokeMethod(m_view.get(), "managerGraphicsSlot"));
    QVERIFY(script.isDone());
}

MZ_TEST_MAIN(TestManagerGraph)
#include "tst_managergraph.moc"
