#include "connectdialog.h"
#include "console/startoptions.h"
#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtCharts/QValueAxis>

namespace {

QString settingsPath()
{
    return ConsoleTester::path(QStringLiteral("config.ini"));
}

void writeSettings(const QByteArray &text)
{
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

} // namespace

/// What the console leaves on the disk: its settings and the records.
class TestConsoleFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void recordsGoIntoTheFileOfTheDay();
    void closeCancelsTheFirstRecord();
    void folderOfTheRecordsIsChosen_data();
    void folderOfTheRecordsIsChosen();
    void settingsSurviveARestart();
    void anySettingsFileIsTaken_data();
    void anySettingsFileIsTaken();
    void onlyALanConnectionIsRemembered();
    void saysAtStartWhatCannotBeWritten_data();
    void saysAtStartWhatCannotBeWritten();
};

void TestConsoleFiles::recordsGoIntoTheFileOfTheDay()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/测量 数据 XXXXXX"));
    const ConsoleTester console;
    console.find<QLineEdit>("lineEditPath")->setText(folder.path());
    QVERIFY(console.connectTo(simulator));
    const auto lines = [&folder] {
        QByteArray all;
        for (const QString &name : QDir(folder.path()).entryList({QStringLiteral("*.csv")}))
            all += ConsoleTester::contentOf(folder.filePath(name));
        return QString::fromUtf8(all).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    };
    // One record follows the connection by itself, the next one the button.
    QTRY_COMPARE(lines().size(), 2);
    console.find<QSpinBox>("spinBoxInterval")->setValue(30);
    QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 60000);
    console.window().updatePower(-20.0, QStringLiteral("10.00uW"));
    console.click("btnReset");
    QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 30 * 60000);

    QCOMPARE(lines().size(), 3);
    QCOMPARE(lines().at(0),
             QStringLiteral("Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power"));
    const QRegularExpression row(
        QStringLiteral("^\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d,[\\d.]+,0,-?[\\d.]+dBm,.*$"));
    QVERIFY2(row.match(lines().at(1)).hasMatch(), qPrintable(lines().at(1)));
    QVERIFY2(lines().at(2).endsWith(QStringLiteral(",0,-20.00dBm,10.00uW")),
             qPrintable(lines().at(2)));
}

void TestConsoleFiles::closeCancelsTheFirstRecord()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const QTemporaryDir folder;
    const ConsoleTester console;
    console.find<QLineEdit>("lineEditPath")->setText(folder.path());
    QVERIFY(console.connectTo(simulator));
    console.trigger("actionDisconnect");
    QVERIFY(!console.isRunning("firstSaveTimer"));
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestConsoleFiles::folderOfTheRecordsIsChosen_data()
{
    QTest::addColumn<bool>("chosen");

    QTest::newRow("chosen") << true;
    QTest::newRow("cancelled") << false;
}

void TestConsoleFiles::folderOfTheRecordsIsChosen()
{
    QFETCH(bool, chosen);
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const QTemporaryDir folder;
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    console.find<QLineEdit>("lineEditPath")->setText(folder.path());
    QDir(ConsoleTester::path(QStringLiteral("DataRecord"))).removeRecursively();

    QStringList seen;
    QVector<ModalScript::Step> steps{[&seen, chosen](QWidget *window) {
        seen.append(window->windowTitle());
        auto *dialog = qobject_cast<QDialog *>(window);
        if (chosen)
            dialog->accept();
        else
            dialog->reject();
    }};
    if (!chosen)
        steps.append([&seen](QWidget *window) {
            seen.append(qobject_cast<QMessageBox *>(window)->text());
            window->close();
        });
    const ModalScript script(steps);
    console.click("btnPath");
    QVERIFY(script.isDone());
    const QString usual = ConsoleTester::path(QStringLiteral("DataRecord"));
    QCOMPARE(seen, chosen ? QStringList(QStringLiteral("Save Dir"))
                          : (QStringList{QStringLiteral("Save Dir"),
                                         QStringLiteral("No directory selected.")}));
    QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(), chosen ? folder.path() : usual);
    QCOMPARE(QDir(usual).exists(), !chosen);
}

void TestConsoleFiles::settingsSurviveARestart()
{
    const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/测量 数据 XXXXXX"));
    ConsoleTester console;
    console.find<QLineEdit>("lineEditPath")->setText(folder.path());
    console.find<QSpinBox>("spinBoxInterval")->setValue(7);
    console.find<QSpinBox>("spinBoxChartPeriod")->setValue(3);
    console.trigger("actionCN");
    console.restart();
    QVERIFY(console.find<QAction>("actionCN")->isChecked());
    QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(), folder.path());
    QCOMPARE(console.find<QLineEdit>("lineEditPath")->toolTip(), folder.path());
    QCOMPARE(console.find<QSpinBox>("spinBoxInterval")->value(), 7);
    QCOMPARE(console.find<QSpinBox>("spinBoxChartPeriod")->value(), 3);
    QCOMPARE(console.timeAxis()->max(), 3.0);

    console.trigger("actionEN");
    console.restart();
    QVERIFY(console.find<QAction>("actionEN")->isChecked());
    console.end();
    QCOMPARE(
        QString::fromUtf8(ConsoleTester::contentOf(settingsPath())),
        QStringLiteral("language:en\nIP:\nPath:%1\nInterval:7\nPeriod:3\n").arg(folder.path()));
}

void TestConsoleFiles::anySettingsFileIsTaken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("english");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("period");

    QTest::newRow("empty") << QByteArray() << false << 1 << 10;
    QTest::newRow("deleted folder")
        << QByteArray("language:en\nIP:\nPath:/no such folder\nInterval:31\nPeriod:15\n") << true
        << 30 << 10;
    QTest::newRow("zero") << QByteArray("language:en\nIP:\nPath:\nInterval:0\nPeriod:0\n") << true
                          << 1 << 1;
    QTest::newRow("a program") << QByteArray("\x7f"
                                             "ELF\0\1\2\n\n\n\xff\xfe\n",
                                             14)
                               << false << 1 << 10;
}

void TestConsoleFiles::anySettingsFileIsTaken()
{
    QFETCH(QByteArray, text);
    writeSettings(text);
    const ConsoleTester console;
    QTEST(console.find<QAction>("actionEN")->isChecked(), "english");
    QCOMPARE(console.find<QAction>("actionCN")->isChecked(),
             !console.find<QAction>("actionEN")->isChecked());
    QTEST(console.find<QSpinBox>("spinBoxInterval")->value(), "interval");
    QTEST(console.find<QSpinBox>("spinBoxChartPeriod")->value(), "period");
    // Not its DataRecord: a folder that is gone must not be mistaken for the usual one.
    QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(),
             QCoreApplication::applicationDirPath());
    QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value(), 50.0);
}

void TestConsoleFiles::onlyALanConnectionIsRemembered()
{
    SimulatorProcess meter;
    SimulatorProcess other;
    QVERIFY(meter.startOnInstrumentPort() && other.start());
    ConsoleTester console;
    QVERIFY(console.connectTo(meter));
    QVERIFY(console.connectTo(other)); // not at the instrument's port
    console.restart();
    console.trigger("actionCommunication_by_LAN");
    console.trigger("actionConnect");
    auto *dialog = console.find<ConnectDialog>("ConnectDialog");
    QVERIFY(dialog->isVisible() && dialog->isModal());
    QCOMPARE(dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit"))->text(), meter.address());

    dialog->findChild<QPushButton *>(QStringLiteral("accept"))->click();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(console.faultsOfState(true), QStringList());
    QCOMPARE(console.text("labelPort"), meter.address() + QStringLiteral("/5001"));
}

void TestConsoleFiles::saysAtStartWhatCannotBeWritten_data()
{
    QTest::addColumn<QStringList>("blocked");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("said");

    const QString settings = QStringLiteral("config.ini");
    const QString records = QStringLiteral("DataRecord");
    const QString log = QStringLiteral("Log");
    QTest::newRow("nothing") << QStringList() << "en" << QStringList();
    QTest::newRow("settings") << QStringList(settings) << "en"
                              << QStringList(QStringLiteral("forgotten"));
    QTest::newRow("records") << QStringList(records) << "en"
                             << QStringList(QStringLiteral("No reading is recorded"));
    QTest::newRow("log") << QStringList(log) << "en" << QStringList(QStringLiteral("no messages"));
    QTest::newRow("everything, in Chinese")
        << QStringList{settings, records, log} << "cn"
        << QStringList{QStringLiteral("设置"), QStringLiteral("记录"), QStringLiteral("日志")};
}

void TestConsoleFiles::saysAtStartWhatCannotBeWritten()
{
    QFETCH(QStringList, blocked);
    QFETCH(QString, language);
    QFETCH(QStringList, said);
    for (const QString &name : blocked) {
        const QString path = ConsoleTester::path(name);
        // What stands in the way is one of the other kind: rights would not hold back everyone.
        if (path == settingsPath())
            QVERIFY(QDir().mkpath(path));
        else
            QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    }
    SimulatorProcess simulator;
    QVERIFY(simulator.startOnInstrumentPort());
    const ConsoleTester console;
    StartOptions options;
    options.language = language;
    options.lanHost = simulator.address();
    console.window().begin(options);

    // The measurement has begun, whether somebody reads the box or not.
    QCOMPARE(console.faultsOfState(true), QStringList());
    const auto boxes = console.window().findChildren<QMessageBox *>();
    QCOMPARE(boxes.size(), said.isEmpty() ? 0 : 1);
    for (const QString &name : blocked)
        QVERIFY2(boxes[0]->text().contains(ConsoleTester::path(name)),
                 qPrintable(boxes[0]->text()));
    for (const QString &text : said)
        QVERIFY2(boxes[0]->text().contains(text), qPrintable(boxes[0]->text()));
}

MZ_TEST_MAIN(TestConsoleFiles)
#include "tst_consolefiles.moc"
