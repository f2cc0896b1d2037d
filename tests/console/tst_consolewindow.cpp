#include "2d/view/graphicsbase.h"
#include "connectdialog.h"
#include "console/timechart.h"
#include "consoletester.h"
#include "measure/reading.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QToolBar>
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

    void firstState();
    void noTextIsClipped_data();
    void noTextIsClipped();
    void frequencyUnitConverts_data();
    void frequencyUnitConverts();
    void languageKeepsWhatIsShown();
    void everyTextHasChinese();
    void clickOnTheModeInUseChangesNothing();
    void chartKeepsTime();
    void chartShowsThePeriod();
    void connectDialogAsksForItsMode();
    void secondClickWhileConnectingIsDropped();
    void everyInputSpeaks();
};

void TestConsoleWindow::firstState()
{
    const ConsoleTester console;
    QTRY_COMPARE(console.faultsOfState(false), QStringList()); // once the first poll found no link
    QCOMPARE(console.window().minimumSize(), QSize(1120, 800));
    QCOMPARE(console.window().size(), QSize(1120, 800));
    QCOMPARE(console.window().windowTitle(), QStringLiteral("MZ6218 Power Meter"));
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));
    QVERIFY(console.text("labelIdentity").isEmpty() && console.text("labelPort").isEmpty());
    QCOMPARE(console.find<QComboBox>("comboBoxUnit")->currentText(), QStringLiteral("MHz"));
    QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value(), 50.0);

    QVERIFY(console.find<QAction>("actionOpen")->isVisible());
    QVERIFY(console.find<QAction>("actionClose")->isVisible());
    for (const char *action : {"actionConnect", "actionDisconnect", "actionHelp"})
        QVERIFY2(!console.find<QAction>(action)->isVisible(), action);
    QVERIFY(!console.find<QMenu>("menuTools")->menuAction()->isVisible());
    QVERIFY(!console.find<QToolBar>("mainToolBar")->isVisible());
    QVERIFY(console.find<QAction>("actionEN")->isChecked());
    QVERIFY(!console.find<QAction>("actionCN")->isChecked());

    const QString folder = ConsoleTester::path(QStringLiteral("DataRecord"));
    QVERIFY(QDir(folder).exists());
    QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(), folder);
    QCOMPARE(console.timeAxis()->min(), 0.0);
    QCOMPARE(console.timeAxis()->max(), 10.0);
}

void TestConsoleWindow::noTextIsClipped_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");

    for (const char *language : {"EN", "CN"}) {
        for (const QSize size : {QSize(1120, 800), QSize(1920, 1080), QSize(3840, 2160)})
            QTest::addRow("%s at %d", language, size.width())
                << QStringLiteral("action") + QLatin1String(language) << size;
    }
}

void TestConsoleWindow::noTextIsClipped()
{
    QFETCH(QString, language);
    QFETCH(QSize, size);
    const ConsoleTester console;
    console.trigger(language.toLatin1().constData());
    console.window().updatePower(-100.0, QStringLiteral("-100.00dBm"));
    console.window().resize(size);
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
        QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                 qPrintable(QStringLiteral("%1 is %2 x %3, its text needs %4 x %5")
                                .arg(widget->objectName())
                                .arg(widget->width())
                                .arg(widget->height())
                                .arg(needed.width())
                                .arg(needed.height())));
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                 qPrintable(widget->objectName()));
    }
}

void TestConsoleWindow::frequencyUnitConverts_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("other");
    QTest::addColumn<double>("converted");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("maximum");

    QTest::newRow("GHz to kHz") << 2.5 << "GHz"
                                << "KHz" << 2500000.0 << 0 << 40000000.0;
    QTest::newRow("kHz to GHz") << 2500000.0 << "KHz"
                                << "GHz" << 2.5 << 6 << 40.0;
    QTest::newRow("MHz to GHz") << 2450.0 << "MHz"
                                << "GHz" << 2.45 << 6 << 40.0;
    QTest::newRow("highest") << 40.0 << "GHz"
                             << "MHz" << 40000.0 << 3 << 40000.0;
    QTest::newRow("lowest") << 1.0 << "KHz"
                            << "GHz" << 0.000001 << 6 << 40.0;
    QTest::newRow("unknown unit changes nothing") << 2450.0 << "MHz"
                                                  << "THz" << 2450.0 << 3 << 40000.0;
}

void TestConsoleWindow::frequencyUnitConverts()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QFETCH(QString, other);
    const ConsoleTester console;
    console.window().updateFrequency(value, unit);
    auto *box = console.find<QDoubleSpinBox>("doubleSpinBoxFreq");
    QCOMPARE(box->value(), value);
    console.find<QComboBox>("comboBoxUnit")->setCurrentText(other);
    QTEST(box->value(), "converted");
    QTEST(box->decimals(), "decimals");
    QTEST(box->maximum(), "maximum");
    console.find<QComboBox>("comboBoxUnit")->setCurrentText(unit);
    QCOMPARE(box->value(), value);
}

void TestConsoleWindow::languageKeepsWhatIsShown()
{
    const ConsoleTester console;
    console.window().updateIDN(QStringLiteral("MZ6218,1"));
    console.window().updatePower(-20.0, QStringLiteral("10.00uW"));
    auto *dialog = console.find<ConnectDialog>("ConnectDialog");
    auto *baudRate = dialog->findChild<QComboBox *>(QStringLiteral("baudRate"));
    baudRate->setCurrentText(QStringLiteral("19200"));
    for (const char *language : {"CN", "CN", "EN", "EN"}) {
        console.window().updateFrequency(50, QStringLiteral("MHz"));
        console.trigger(QByteArray("action").append(language).constData());
        const bool english = QByteArray(language) == "EN";
        QCOMPARE(console.find<QAction>("actionEN")->isChecked(), english);
        QCOMPARE(console.find<QAction>("actionCN")->isChecked(), !english);
        QCOMPARE(console.find<QAction>("actionCN")->text(), QString::fromUtf8("简体中文"));
        QCOMPARE(console.text("labelIdentity"), QStringLiteral("MZ6218,1"));
        QCOMPARE(console.text("labelCurrentPower"), QStringLiteral("-20.00"));
        QCOMPARE(console.text("labelShowText"), QStringLiteral("10.00uW"));
        QCOMPARE(baudRate->currentText(), QStringLiteral("19200"));
        QCOMPARE(baudRate->count(), 9);
        // The same frequency, in the unit that a new list of units begins with.
        QCOMPARE(console.find<QComboBox>("comboBoxUnit")->currentText(), QStringLiteral("KHz"));
        QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value(), 50000.0);
        QCOMPARE(console.find<QGroupBox>("groupBoxOffset")->title() ==
                     QStringLiteral("Offset(-100~100)"),
                 english);
        QCOMPARE(console.timeAxis()->titleText() == QStringLiteral("Last 10 minutes"), english);
        QCOMPARE(dialog->windowTitle() == QStringLiteral("Connection"), english);
        QVERIFY(!console.find<QPushButton>("btnSetZero")->shortcut().isEmpty());
    }
}

void TestConsoleWindow::everyTextHasChinese()
{
    const ConsoleTester console;
    const auto texts = [&console] {
        QStringList all;
        for (const QAbstractButton *button : console.window().findChildren<QAbstractButton *>())
            all << button->text() << button->toolTip();
        for (const QGroupBox *group : console.window().findChildren<QGroupBox *>())
            all << group->title();
        for (const QAction *action : console.window().findChildren<QAction *>())
            all << action->text();
        return all;
    };
    const QStringList english = texts();
    console.trigger("actionCN");
    const QStringList chinese = texts();
    QCOMPARE(chinese.size(), english.size());
    // These are the same in both languages.
    const QRegularExpression same(QStringLiteral("^(|\\.\\.\\.|dBm|English|简体中文)$"));
    for (int i = 0; i < english.size(); ++i) {
        if (!same.match(english.at(i)).hasMatch())
            QVERIFY2(chinese.at(i) != english.at(i), qPrintable(english.at(i)));
    }
}

void TestConsoleWindow::clickOnTheModeInUseChangesNothing()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    console.trigger("actionCommunication_by_LAN");
    QCOMPARE(console.faultsOfState(true), QStringList());
    QVERIFY(console.find<QAction>("actionCommunication_by_LAN")->isChecked());
    QVERIFY(console.find<QAction>("actionConnect")->isVisible());

    console.trigger("actionCommunication_by_Serial");
    console.trigger("actionCommunication_by_Serial");
    QCOMPARE(console.faultsOfState(false), QStringList());
    QVERIFY(console.find<QAction>("actionCommunication_by_Serial")->isChecked());
    QVERIFY(console.find<QAction>("actionOpen")->isVisible());
    QVERIFY(!console.find<QAction>("actionConnect")->isVisible());
}

void TestConsoleWindow::chartKeepsTime()
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
    chart.feed(level, 21'100); // what was left of a second counts
    chart.feed(Reading::missing(), 21'200);
    QCOMPARE(series->pointsVector(),
             (QVector<QPointF>{
                 {1 / 60.0, -20.0}, {21 / 60.0, -20.0}, {22 / 60.0, -20.0}, {23 / 60.0, 100.0}}));
    chart.feed(level, 3600'000);
    QCOMPARE(series->pointsVector(), (QVector<QPointF>{{0.0, -20.0}}));
    chart.clear();
    chart.feed(level, 3700'000); // the time that no link was open does not count
    QCOMPARE(series->pointsVector(), (QVector<QPointF>{{0.0, -20.0}}));
}

void TestConsoleWindow::chartShowsThePeriod()
{
    const ConsoleTester console;
    console.find<QSpinBox>("spinBoxChartPeriod")->setValue(4);
    QMetaObject::invokeMethod(&console.window(), "on_btnSetChartPeriod_clicked");
    QCOMPARE(console.timeAxis()->max(), 4.0);
    QCOMPARE(console.timeAxis()->titleText(), QStringLiteral("Last 4 minutes"));
    console.trigger("actionCN");
    console.trigger("actionEN");
    QCOMPARE(console.timeAxis()->titleText(), QStringLiteral("Last 4 minutes"));
}

void TestConsoleWindow::connectDialogAsksForItsMode()
{
    ConnectDialog dialog;
    QString port;
    int value = 0;
    connect(&dialog, &ConnectDialog::openPort, this, [&](const QString &name, int number) {
        port = name;
        value = number;
    });
    auto *ports = dialog.findChild<QComboBox *>(QStringLiteral("port"));
    auto *baudRate = dialog.findChild<QComboBox *>(QStringLiteral("baudRate"));
    auto *connectButton = dialog.findChild<QPushButton *>(QStringLiteral("accept"));
    auto *refresh = dialog.findChild<QPushButton *>(QStringLiteral("btnUpdate"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Connection"));
    QCOMPARE(dialog.size(), QSize(280, 250));
    QCOMPARE(baudRate->currentText(), QStringLiteral("1200"));

    const int listed = ports->count();
    refresh->click();
    QCOMPARE(ports->count(), 2 * listed); // the list is never cleared
    ports->addItem(QStringLiteral("COM7"));
    ports->setCurrentText(QStringLiteral("COM7"));
    baudRate->setCurrentText(QStringLiteral("57600"));
    dialog.show();
    connectButton->click();
    QCOMPARE(port, QStringLiteral("COM7"));
    QCOMPARE(value, 57600);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    dialog.setLinkMode(1);
    QCOMPARE(dialog.size(), QSize(280, 180));
    dialog.setIP(QStringLiteral("not an address"));
    dialog.setLinkMode(2); // no mode: nothing changes
    dialog.show();
    QVERIFY(!refresh->isVisible() && !ports->isVisible());
    connectButton->click();
    QCOMPARE(port, QStringLiteral("not an address"));
    QCOMPARE(value, 5001);

    dialog.setLinkMode(0);
    QCOMPARE(dialog.size(), QSize(280, 250));
    dialog.show();
    QVERIFY(refresh->isVisible() && ports->isVisible());
    port.clear();
    dialog.findChild<QPushButton *>(QStringLiteral("cancel"))->click();
    QVERIFY(port.isNull() && !dialog.isVisible());
}

void TestConsoleWindow::secondClickWhileConnectingIsDropped()
{
    ConnectDialog dialog;
    int connections = 0;
    connect(&dialog, &ConnectDialog::openPort, this, [&] { ++connections; });
    auto *button = dialog.findChild<QPushButton *>(QStringLiteral("accept"));
    dialog.show();
    const QPoint place = button->mapTo(&dialog, button->rect().center());
    for (int click = 0; click < 3; ++click)
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, place);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QCOMPARE(connections, 1);

    dialog.show();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QCOMPARE(connections, 2);
}

void TestConsoleWindow::everyInputSpeaks()
{
    const ConsoleTester console;
    const auto widgets = console.window().findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool isInput = (button != nullptr || qobject_cast<const QAbstractSpinBox *>(widget) ||
                              qobject_cast<const QComboBox *>(widget)) &&
                             !widget->objectName().startsWith(QStringLiteral("qt_"));
        if (!isInput || widget->parentWidget()->parentWidget() == nullptr ||
            qobject_cast<const QGroupBox *>(widget->parentWidget()) == nullptr)
            continue;
        QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(!widget->accessibleName().isEmpty() || (button && button->text().size() > 3),
                 qPrintable(widget->objectName()));
    }
}

MZ_TEST_MAIN(TestConsoleWindow)
#include "tst_consolewindow.moc"
