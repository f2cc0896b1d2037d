#include "2d/view/graphicsbase.h"
#include "connectdialog.h"
#include "console/timechart.h"
#include "consoletester.h"
#include "frame/appstyle.h"
#include "measure/reading.h"
#include "testmain.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QWindow>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

/// The console as a window: its first state, its looks in both languages, the chart and the
/// connection dialog.
class TestConsoleWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void firstState()
    {
        const ConsoleTester console;
        QTRY_COMPARE(console.faultsOfState(false),
                     QStringList()); // once the first poll had no link
        QCOMPARE(console.window().minimumSize(), QSize(1120, 800));
        QCOMPARE(console.window().size(), QSize(1120, 800));
        QCOMPARE(console.window().windowTitle(), QStringLiteral("MZ6218 Power Meter"));
        QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));
        QCOMPARE(console.find<QComboBox>("comboBoxUnit")->currentText(), QStringLiteral("MHz"));
        QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value(), 50.0);
        for (const char *action : {"actionOpen", "actionClose", "actionManual"})
            QVERIFY2(console.find<QAction>(action)->isVisible(), action);
        for (const char *action : {"actionConnect", "actionDisconnect", "actionHelp"})
            QVERIFY2(!console.find<QAction>(action)->isVisible(), action);
        QVERIFY(console.find<QAction>("actionEN")->isChecked());
        QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(),
                 ConsoleTester::path(QStringLiteral("DataRecord")));
        QCOMPARE(console.timeAxis()->max(), 10.0);
    }

    void noTextIsClipped_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QSize>("size");
        for (const char *language : {"EN", "CN"}) {
            for (const QSize size : {QSize(1016, 640), QSize(1120, 800), QSize(3840, 2160)})
                QTest::addRow("%s at %d", language, size.width())
                    << QByteArray("action") + language << size;
        }
    }

    void noTextIsClipped()
    {
        QFETCH(QByteArray, language);
        QFETCH(QSize, size);
        AppStyle::applyStyleSheet();
        const ConsoleTester console;
        console.trigger(language.constData());
        console.window().updatePower(-100.0, QStringLiteral("-100.00dBm"));
        console.window().setMinimumSize(0, 0); // as on a smaller screen
        console.window().resize(size);
        for (int round = 0; round < 3; ++round) // new sizes of the reading ask for a new layout
            QCoreApplication::processEvents();
        QCOMPARE(console.window().size(), size);
        const auto widgets = console.window().findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const bool hasText = qobject_cast<const QLabel *>(widget) != nullptr ||
                                 qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                                 qobject_cast<const QGroupBox *>(widget) != nullptr ||
                                 qobject_cast<const QAbstractSpinBox *>(widget) != nullptr;
            if (!hasText || !widget->isVisible() || widget->window() != &console.window())
                continue;
            const QSize needed = widget->minimumSizeHint();
            QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height() &&
                         widget->parentWidget()->rect().contains(widget->geometry()),
                     qPrintable(widget->objectName()));
        }
        auto *panel = console.find<QWidget>("panel");
        const auto *area = console.find<QScrollArea>("scrollPanel");
        QVERIFY(panel->width() <= area->viewport()->width());
        QVERIFY(size.height() < 800 || panel->height() <= area->viewport()->height());
        qApp->setStyleSheet({});
    }

    void frequencyUnitConverts_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("converted");
        const auto row = [](const char *name, double value, const char *unit, const char *other,
                            const char *converted) {
            QTest::newRow(name) << value << text(unit) << text(other) << text(converted);
        };
        row("GHz to kHz", 2.5, "GHz", "KHz", "2500000");
        row("MHz to GHz", 2450.0, "MHz", "GHz", "2.450000");
        row("highest", 40.0, "GHz", "MHz", "40000.000");
        row("lowest", 1.0, "KHz", "GHz", "0.000001");
        row("unknown unit", 2450.0, "MHz", "THz", "2450.000");
    }

    void frequencyUnitConverts()
    {
        QFETCH(double, value);
        QFETCH(QString, unit);
        QFETCH(QString, other);
        const ConsoleTester console;
        console.window().updateFrequency(value, unit);
        auto *box = console.find<QDoubleSpinBox>("doubleSpinBoxFreq");
        console.find<QComboBox>("comboBoxUnit")->setCurrentText(other);
        QTEST(box->text(), "converted");
        console.find<QComboBox>("comboBoxUnit")->setCurrentText(unit);
        QCOMPARE(box->value(), value);
    }

    void languageKeepsWhatIsShown()
    {
        const ConsoleTester console;
        console.window().updateIDN(QStringLiteral("MZ6218,1"));
        console.window().updatePower(-20.0, QStringLiteral("10.00uW"));
        auto *dialog = console.find<ConnectDialog>("ConnectDialog");
        dialog->show();
        auto *baudRate = dialog->findChild<QComboBox *>(QStringLiteral("baudRate"));
        baudRate->setCurrentText(QStringLiteral("19200"));
        console.find<QSpinBox>("spinBoxChartPeriod")->setValue(4);
        QMetaObject::invokeMethod(&console.window(), "on_btnSetChartPeriod_clicked");
        for (const char *language : {"actionCN", "actionCN", "actionEN"}) {
            console.window().updateFrequency(50, QStringLiteral("MHz"));
            console.trigger(language);
            const bool english = QByteArray(language) == "actionEN";
            QCOMPARE(console.find<QAction>("actionEN")->isChecked(), english);
            QCOMPARE(console.find<QAction>("actionCN")->isChecked(), !english);
            QCOMPARE(console.text("labelIdentity"), QStringLiteral("MZ6218,1"));
            QCOMPARE(console.text("labelCurrentPower"), QStringLiteral("-20.00"));
            QCOMPARE(console.text("labelShowText"), QStringLiteral("10.00uW"));
            QCOMPARE(baudRate->currentText(), QStringLiteral("19200"));
            QCOMPARE(baudRate->count(), 9);
            // The same frequency, in the unit that a new list of units begins with.
            QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->text(),
                     QStringLiteral("50000"));
            QCOMPARE(console.find<QGroupBox>("groupBoxOffset")->title() ==
                         QStringLiteral("Offset(-100~100)"),
                     english);
            QCOMPARE(console.timeAxis()->max(), 4.0);
            QCOMPARE(console.timeAxis()->titleText() == QStringLiteral("Last 4 minutes"), english);
            QVERIFY(!console.find<QPushButton>("btnSetZero")->shortcut().isEmpty());
        }
    }

    void clickOnTheModeInUseChangesNothing()
    {
        const ConsoleTester console;
        for (const char *mode : {"actionCommunication_by_LAN", "actionCommunication_by_Serial"}) {
            for (int click = 0; click < 2; ++click) {
                console.trigger(mode);
                const bool isLan = QByteArray(mode).endsWith("LAN");
                QVERIFY(console.find<QAction>(mode)->isChecked());
                QCOMPARE(console.find<QAction>("actionConnect")->isVisible(), isLan);
                QCOMPARE(console.find<QAction>("actionOpen")->isVisible(), !isLan);
            }
        }
    }

    void chartKeepsTime()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        TimeChart chart(&window, layout);
        const auto *series = qobject_cast<QtCharts::QLineSeries *>(
            window.findChild<GraphicsBase *>()->chart()->series().value(0));
        QVERIFY(series != nullptr);
        const Reading level = Reading::of(-20.0, {});
        chart.feed({}, 0); // nothing has been read yet
        QVERIFY(series->pointsVector().isEmpty());
        chart.feed(level, 0);
        chart.feed(level, 20'500); // the instrument kept the console waiting
        chart.feed(level, 22'100); // what was left of a second counts
        chart.feed(Reading::missing(), 22'200);
        QCOMPARE(
            series->pointsVector(),
            (QVector<QPointF>{
                {1 / 60.0, -20.0}, {21 / 60.0, -20.0}, {23 / 60.0, -20.0}, {24 / 60.0, 100.0}}));
        chart.feed(level, 3600'000);
        QCOMPARE(series->pointsVector(), (QVector<QPointF>{{0.0, -20.0}}));
    }

    void connectDialogAsksForItsMode()
    {
        ConnectDialog dialog;
        QStringList asked;
        connect(&dialog, &ConnectDialog::openPort, this,
                [&](const QString &name, int number) { asked << name << QString::number(number); });
        auto *ports = dialog.findChild<QComboBox *>(QStringLiteral("port"));
        auto *baudRate = dialog.findChild<QComboBox *>(QStringLiteral("baudRate"));
        auto *accept = dialog.findChild<QPushButton *>(QStringLiteral("accept"));
        QCOMPARE(dialog.size(), QSize(280, 250));
        QCOMPARE(baudRate->currentText(), QStringLiteral("1200"));
        const int listed = ports->count();
        dialog.findChild<QPushButton *>(QStringLiteral("btnUpdate"))->click();
        QCOMPARE(ports->count(), 2 * listed); // the list is never cleared
        ports->addItem(QStringLiteral("COM7"));
        ports->setCurrentText(QStringLiteral("COM7"));
        baudRate->setCurrentText(QStringLiteral("57600"));
        dialog.show();
        accept->click();
        QVERIFY(!dialog.isVisible());

        dialog.setLinkMode(1);
        QCOMPARE(dialog.size(), QSize(280, 180));
        dialog.setIP(QStringLiteral("not an address"));
        dialog.setLinkMode(2); // no mode: nothing changes
        dialog.show();
        QVERIFY(!ports->isVisible());
        // What was pressed while the connection was being made comes in late, and is dropped.
        const QPoint place = accept->mapTo(&dialog, accept->rect().center());
        for (int click = 0; click < 3; ++click)
            QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, place);
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
        dialog.show();
        dialog.findChild<QPushButton *>(QStringLiteral("cancel"))->click();
        QCOMPARE(asked, (QStringList{QStringLiteral("COM7"), QStringLiteral("57600"),
                                     QStringLiteral("not an address"), QStringLiteral("5001")}));
    }

    void everyInputSpeaks()
    {
        const ConsoleTester console;
        for (const QWidget *widget : console.find<QWidget>("panel")->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const bool isInput =
                button || qobject_cast<const QAbstractSpinBox *>(widget) ||
                (qobject_cast<const QComboBox *>(widget) && !widget->objectName().isEmpty());
            if (!isInput || qobject_cast<const QGroupBox *>(widget->parentWidget()) == nullptr)
                continue;
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
            QVERIFY2(!widget->accessibleName().isEmpty() || (button && button->text().size() > 3),
                     qPrintable(widget->objectName()));
        }
    }
};

MZ_TEST(TestConsoleWindow)
#include "tst_consolewindow.moc"
