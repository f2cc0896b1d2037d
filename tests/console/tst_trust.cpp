#include "2d/scene/mymarkitem.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"
#include "Logic/seriallogic.h"
#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

namespace {

/// What the status bar says out of the ordinary.
QString notice(const ConsoleTester &console)
{
    return console.text("labelNotice");
}

bool isMarked(const ConsoleTester &console, const char *widget)
{
    return console.find<QWidget>(widget)->property("unsent").toBool();
}

void type(const ConsoleTester &console, const char *widget, const QString &text)
{
    auto *box = console.find<QWidget>(widget);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
}

QByteArray records(const QString &folder)
{
    QByteArray all;
    const QDir dir(folder);
    for (const QString &name : dir.entryList(QDir::Files))
        all += name.toUtf8() + '\n' + contentOf(dir.filePath(name));
    return all;
}

} // namespace

/// What the console shows can be believed, and what cannot says so.
class TestTrust : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void numbersHaveAPoint_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::newRow("point") << "1.5" << 1.5;
        QTest::newRow("comma") << "1,5" << 1.5;
        QTest::newRow("comma behind a point") << "1.2,5" << 1.25;
    }

    void numbersHaveAPoint()
    {
        const ConsoleTester console;
        console.window().updateOffset(2.5);
        QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->text(),
                 QStringLiteral("2.50"));
        console.find<QWidget>("groupBoxOffset")->setEnabled(true);
        QFETCH(QString, typed);
        type(console, "doubleSpinBoxOffset", typed);
        QTEST(console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->value(), "value");
        console.window().updateFrequency(2450000, QStringLiteral("KHz"));
        auto *frequency = console.find<QDoubleSpinBox>("doubleSpinBoxFreq");
        QCOMPARE(frequency->text(), QStringLiteral("2450000"));
        console.find<QWidget>("groupBoxFrquency")->setEnabled(true);
        type(console, "doubleSpinBoxFreq", QStringLiteral("2450,5")); // no 24505
        frequency->interpretText();
        QCOMPARE(frequency->text(), QStringLiteral("2450"));
        console.find<QWidget>("groupBoxAverageCount")->setEnabled(true);
        auto *count = console.find<QSpinBox>("spinBoxAverageCount");
        for (const auto &[written, read] : {std::pair("1,024", 1024), std::pair("2,5", 2)}) {
            type(console, "spinBoxAverageCount", text(written));
            count->interpretText();
            QCOMPARE(count->value(), read);
        }
    }

    void refusedSettingIsTold_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QString>("typed"); // empty: it is a button to click
        QTest::addColumn<QString>("said");
        const auto row = [](const char *box, const char *typed, const char *said) {
            QTest::newRow(box) << QByteArray(box) << text(typed) << text(said);
        };
        row("doubleSpinBoxOffset", "7", "Offset was not");
        row("spinBoxAverageCount", "8", "Average count was");
        row("doubleSpinBoxFreq", "2450", "Frequency was");
        row("radioButtonW", "", "Power unit was not");
    }

    /// Polling rests, the reading is old at once, and the value is marked until it is put back.
    void refusedSettingIsTold()
    {
        QFETCH(QByteArray, box);
        QFETCH(QString, typed);
        QFETCH(QString, said);
        SimulatorProcess simulator("--fault refuse");
        const ConsoleTester console(simulator);
        QTRY_VERIFY(console.text("labelReadingState").contains(QStringLiteral("Live")));
        if (typed.isEmpty()) {
            console.click(box.constData());
        } else {
            type(console, box.constData(), typed);
            QVERIFY(isMarked(console, box.constData()));
            QTest::keyClick(console.find<QWidget>(box.constData()), Qt::Key_Return);
        }
        QVERIFY2(notice(console).startsWith(said), qPrintable(notice(console)));
        QVERIFY(console.text("labelReadingState").contains(QStringLiteral("Stale")));
        QVERIFY(!console.isRunning("readTimer"));
        auto *widget = console.find<QWidget>(box.constData());
        QVERIFY(isMarked(console, box.constData()));
        QVERIFY2(widget->toolTip().contains(QStringLiteral("the instrument holds")),
                 qPrintable(widget->toolTip()));
        if (typed.isEmpty()) {
            const int sent = simulator.commands().count(QStringLiteral("UNIT:POW W"));
            console.click(box.constData()); // the same again
            QVERIFY(simulator.waitForCommand(QStringLiteral("UNIT:POW W"), sent + 1));
            return;
        }
        QTest::keyClick(widget, Qt::Key_Escape);
        QVERIFY(!isMarked(console, box.constData()));
        QVERIFY(!widget->toolTip().contains(QStringLiteral("the instrument holds")));
    }

    void untoldSettingIsMarked()
    {
        const ConsoleTester console;
        auto *link = console.window().findChild<SerialLogic *>();
        emit link->replied("AVER:COUN?\n", {}, Outcome::Timeout);
        emit link->updateAverageCount(0);
        QVERIFY(isMarked(console, "spinBoxAverageCount"));
        emit link->updateAverageCount(4);
        QVERIFY(!isMarked(console, "spinBoxAverageCount"));
    }

    void differenceIsTold()
    {
        SimulatorProcess simulator("--fault numeric-frequency");
        const ConsoleTester console(simulator);
        console.find<QComboBox>("comboBoxUnit")->setCurrentText(QStringLiteral("MHz"));
        type(console, "doubleSpinBoxFreq", QStringLiteral("2453.125"));
        console.click("btnSetFreq");
        QVERIFY2(notice(console).contains(QStringLiteral("2453.125 MHz")) ||
                     notice(console).contains(QStringLiteral("2.453125 GHz")),
                 qPrintable(notice(console)));
        QVERIFY(console.isRunning("readTimer") && !isMarked(console, "doubleSpinBoxFreq"));
        type(console, "doubleSpinBoxOffset", QStringLiteral("3"));
        console.click("btnSetOffset");
        QCOMPARE(notice(console), QString());
    }

    void readingSaysWhatItIsWorth()
    {
        SimulatorProcess simulator("");
        const ConsoleTester console;
        auto *power = console.find<QLabel>("labelCurrentPower");
        const auto says = [&](const char *words) {
            return console.text("labelReadingState").contains(QLatin1String(words)) &&
                   power->accessibleName().contains(QLatin1String(words)) &&
                   power->accessibleName().contains(power->text());
        };
        QVERIFY(says("Not connected"));
        QVERIFY(console.connectTo(simulator));
        QCOMPARE(power->text(), QStringLiteral("--.--"));
        console.window().timerOut();
        QVERIFY(says("No reading") && console.chartPoints().isEmpty());
        console.window().updatePower(100.0, QStringLiteral("OVERLOAD"));
        QVERIFY(says("No reading: the instrument says \"OVERLOAD\""));
        console.window().updatePower(-20.0, QStringLiteral("-20.00dBm"));
        QVERIFY(says("Live"));
        console.find<QTimer>("firstSaveTimer")->stop(); // a record would read again
        console.find<QTimer>("readTimer")->stop();
        QTRY_VERIFY_WITH_TIMEOUT(says("Stale: ") && says(" s old"), 6000);
        console.trigger("actionDisconnect");
        QVERIFY(says("Not connected"));
    }

    void wheelPassesBoxesWithoutFocus()
    {
        const ConsoleTester console;
        for (const char *name : {"spinBoxInterval", "comboBoxUnit", "doubleSpinBoxFreq"}) {
            auto *box = console.find<QWidget>(name);
            box->parentWidget()->setEnabled(true);
            const QVariant before = box->metaObject()->userProperty().read(box);
            QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), {}, {0, -120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &wheel);
            QCOMPARE(box->metaObject()->userProperty().read(box), before);
        }
    }

    void folderThatCannotBeWrittenIsRefused()
    {
        const ConsoleTester console;
        const QTemporaryDir folder;
        auto *line = console.find<QLineEdit>("lineEditPath");
        line->parentWidget()->setEnabled(true);
        const QString former = line->text();
        for (const QString &typed : {QString(), folder.filePath(QStringLiteral("none"))}) {
            line->selectAll();
            QTest::keyClick(line, Qt::Key_Delete);
            QTest::keyClicks(line, typed);
            QStringList seen;
            const ModalScript script({readBox(seen)});
            QTest::keyClick(line, Qt::Key_Return);
            QVERIFY2(seen.value(0).startsWith(QStringLiteral("Warning: No records can be")),
                     qPrintable(seen.value(0)));
            QCOMPARE(line->text(), former);
        }
        line->selectAll();
        QTest::keyClicks(line, folder.path());
        QTest::keyClick(line, Qt::Key_Return);
        console.window().saveValue();
        QVERIFY(
            records(folder.path()).startsWith(QDate::currentDate().toString(Qt::ISODate).toUtf8()));
        QVERIFY(console.text("labelRecord").startsWith(QStringLiteral("Last row: 20")));
    }

    void lostRecordsAreToldOnce()
    {
        const ConsoleTester console;
        auto *line = console.find<QLineEdit>("lineEditPath");
        const QString former = line->text();
        line->setText(QStringLiteral("/no such folder"));
        console.window().saveValue();
        QVERIFY(notice(console).startsWith(QStringLiteral("Records are not written: ")));
        const QString since = console.text("labelRecord");
        QVERIFY2(since.contains(QStringLiteral("No rows since")), qPrintable(since));
        type(console, "lineEditPath", {});
        console.window().saveValue();
        QCOMPARE(console.text("labelRecord"), since);
        line->setText(former);
        console.window().saveValue();
        QCOMPARE(notice(console), QString());
    }

    void recordBetweenSettingAndReadingWaitsForIt()
    {
        SimulatorProcess simulator("");
        const QTemporaryDir folder;
        const ConsoleTester console;
        console.find<QLineEdit>("lineEditPath")->setText(folder.path());
        QVERIFY(console.connectTo(simulator));
        console.find<QTimer>("firstSaveTimer")->stop();
        console.window().updatePower(-77.0, QStringLiteral("former"));
        type(console, "doubleSpinBoxOffset", QStringLiteral("10"));
        console.click("btnSetOffset");
        console.window().saveValue();
        const QByteArray rows = records(folder.path());
        QVERIFY2(rows.contains(",10,-") && !rows.contains("former"), rows.constData());
    }

    void openingIsStopped()
    {
        SimulatorProcess simulator("--fault no-reply");
        const ConsoleTester console;
        console.trigger("actionCommunication_by_LAN");
        QTimer look;
        connect(&look, &QTimer::timeout, &console.window(), [&console, &simulator] {
            // A query that has not been read yet goes astray with the connection.
            if (!notice(console).contains(QStringLiteral("identity")) ||
                simulator.commands().isEmpty())
                return;
            console.click("btnOpen"); // what is pressed meanwhile goes nowhere
            auto *connectAction = console.find<QAction>("actionConnect");
            QShortcutEvent shortcut(connectAction->shortcut(), 0);
            QApplication::sendEvent(connectAction, &shortcut);
            QVERIFY(!console.find<QWidget>("ConnectDialog")->isVisible());
            QTest::mouseClick(console.find<QWidget>("btnStopOpening"), Qt::LeftButton);
        });
        look.start(10);
        QVERIFY(!console.connectTo(simulator));
        QTRY_COMPARE(simulator.commands(), startUpQueries.mid(0, 1));
        QCOMPARE(console.faultsOfState(false), QStringList());
        QCOMPARE(notice(console), QString());
    }

    void secondErrorWaitsForNobody()
    {
        const ConsoleTester console;
        QStringList seen;
        const ModalScript script({[&](QWidget *box) {
            console.window().errorMessageBox(QStringLiteral("second"));
            readBox(seen)(box);
        }});
        console.window().errorMessageBox(QStringLiteral("first"));
        QCOMPARE(seen, QStringList(QStringLiteral("Note: first")));
        QVERIFY(script.isDone());
    }

    void serialLineThatHangsUpWhilePollingRestsIsTold()
    {
        if (!SimulatorProcess::hasSerialPort)
            QSKIP(SimulatorProcess::noSerialPort);
        SimulatorProcess simulator("--serial --fault refuse");
        const ConsoleTester console;
        QVERIFY(console.window().openPort(simulator.serialPath(), 115200));
        QCOMPARE(console.find<QComboBox>("comboBoxCom")->currentText(), simulator.serialPath());
        console.window().timerOut();
        QCOMPARE(console.find<QComboBox>("comboBoxCom")->currentText(), simulator.serialPath());
        console.find<QTimer>("firstSaveTimer")->stop(); // the first record would find out
        type(console, "doubleSpinBoxOffset", QStringLiteral("5"));
        console.click("btnSetOffset");
        QVERIFY(!console.isRunning("readTimer"));
        QStringList seen;
        const ModalScript script({readBox(seen)});
        simulator.stop();
        QTRY_COMPARE(seen, QStringList(QStringLiteral("Note: Please open the serial port first.")));
        QTRY_COMPARE(console.faultsOfState(false), QStringList());
    }

    void markersGoWithTheCurve()
    {
        SimulatorProcess simulator("");
        const ConsoleTester console(simulator);
        console.window().updatePower(-20.0, {});
        for (int second = 0; second < 3; ++second)
            console.window().timerOut();
        auto *chart = console.window().findChild<GraphicsBase *>();
        const auto *mark = chart->addMark(chart->toScene({1 / 60.0, -20.0}), Qt::red);
        chart->paths().value(1)->addMarkId(mark->markId());
        console.click("btnResetChart");
        QVERIFY(chart->marks().isEmpty());
    }
};

MZ_TEST(TestTrust)
#include "tst_trust.moc"
