#include "connectdialog.h"
#include "console/startoptions.h"
#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtCharts/QValueAxis>

namespace {

QString settingsPath()
{
    return ConsoleTester::path(QStringLiteral("config.ini"));
}

QString today()
{
    return QLocale::c().toString(QDate::currentDate(), QStringLiteral("yyyy-MM-dd"));
}

} // namespace

/// What the console leaves on the disk: its settings and the records.
class TestConsoleFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void recordsGoIntoTheFileOfTheDay()
    {
        SimulatorProcess simulator("");
        const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/测量 数据 XXXXXX"));
        const ConsoleTester console;
        console.find<QLineEdit>("lineEditPath")->setText(folder.path());
        QVERIFY(console.connectTo(simulator));
        const auto lines = [&folder] {
            return QString::fromUtf8(contentOf(folder.filePath(today() + QStringLiteral(".csv"))))
                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        };
        // One record follows the connection by itself, the next one the button.
        QTRY_COMPARE(lines().size(), 2);
        console.find<QSpinBox>("spinBoxInterval")->setValue(30);
        QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 60000);
        console.window().updatePower(-20.0, QStringLiteral("10.00uW"));
        console.click("btnReset");
        QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 30 * 60000);
        QCOMPARE(lines().size(), 3);
        const QString row = lines().at(2);
        QVERIFY2(row.startsWith(today().replace(QLatin1Char('-'), QLatin1Char('/'))) &&
                     row.endsWith(QStringLiteral(",50,0,-20.00dBm,10.00uW")),
                 qPrintable(row));
    }

    void folderOfTheRecordsIsChosen()
    {
        const QTemporaryDir folder;
        const ConsoleTester console;
        auto *line = console.find<QLineEdit>("lineEditPath");
        line->setText(folder.path());
        const QString usual = ConsoleTester::path(QStringLiteral("DataRecord"));
        QDir(usual).removeRecursively();
        QStringList seen;
        const auto choose = [&seen](QDialog::DialogCode answer) {
            return [&seen, answer](QWidget *window) {
                seen.append(window->windowTitle());
                qobject_cast<QDialog *>(window)->done(answer);
            };
        };
        const ModalScript script(
            {choose(QDialog::Accepted), choose(QDialog::Rejected), readBox(seen)});
        QMetaObject::invokeMethod(&console.window(), "on_btnPath_clicked");
        QCOMPARE(line->text(), folder.path());
        QVERIFY(!QDir(usual).exists());
        QMetaObject::invokeMethod(&console.window(), "on_btnPath_clicked");
        QCOMPARE(line->text(), usual);
        QVERIFY(QDir(usual).exists() && script.isDone());
        QCOMPARE(seen.join(QLatin1Char('|')),
                 text("Save Dir|Save Dir|Warning: No directory selected."));
    }

    void settingsSurviveARestart()
    {
        const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/测量 数据 XXXXXX"));
        ConsoleTester console;
        console.find<QLineEdit>("lineEditPath")->setText(folder.path());
        console.find<QSpinBox>("spinBoxInterval")->setValue(7);
        console.find<QSpinBox>("spinBoxChartPeriod")->setValue(3);
        console.trigger("actionCN");
        console.restart();
        QVERIFY(console.find<QAction>("actionCN")->isChecked());
        QCOMPARE(console.find<QLineEdit>("lineEditPath")->toolTip(), folder.path());
        QCOMPARE(console.timeAxis()->max(), 3.0);
        console.trigger("actionEN");
        console.end();
        QCOMPARE(
            QString::fromUtf8(contentOf(settingsPath())),
            QStringLiteral("language:en\nIP:\nPath:%1\nInterval:7\nPeriod:3\n").arg(folder.path()));
    }

    void settingsOutOfRangeAreClamped()
    {
        QFile file(settingsPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("language:en\nIP:\nPath:/no such folder\nInterval:31\nPeriod:0\n");
        file.close();
        const ConsoleTester console;
        QCOMPARE(console.find<QSpinBox>("spinBoxInterval")->value(), 30);
        QCOMPARE(console.find<QSpinBox>("spinBoxChartPeriod")->value(), 1);
        // Not its DataRecord: a folder that is gone must not be mistaken for the usual one.
        QCOMPARE(console.find<QLineEdit>("lineEditPath")->text(),
                 QCoreApplication::applicationDirPath());
    }

    void onlyALanConnectionIsRemembered()
    {
        SimulatorProcess meter;
        SimulatorProcess other;
        QVERIFY(meter.startOnInstrumentPort() && other.start());
        ConsoleTester console;
        QVERIFY(console.connectTo(meter));
        QVERIFY(console.connectTo(other)); // not at the instrument's port
        console.restart();
        console.trigger("actionCommunication_by_LAN");
        auto *dialog = console.find<ConnectDialog>("ConnectDialog");
        auto *address = dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit"));
        console.trigger("actionConnect");
        QVERIFY(dialog->isVisible() && dialog->isModal());
        QCOMPARE(address->text(), meter.address());
        dialog->findChild<QPushButton *>(QStringLiteral("accept"))->click();
        QCOMPARE(console.text("labelPort"), meter.address() + QStringLiteral("/5001"));

        // What was typed is still there when it did not open, but is not remembered.
        QStringList seen;
        const ModalScript script({readBox(seen)});
        QVERIFY(!console.window().openPort(QStringLiteral("127.255.0.1"), 1));
        console.trigger("actionConnect");
        QCOMPARE(address->text(), QStringLiteral("127.255.0.1"));
        dialog->close();
        console.end();
        QVERIFY(contentOf(settingsPath()).contains("IP:" + meter.address().toUtf8() + '\n'));
    }

    void saysAtStartWhatIsInTheWay_data()
    {
        QTest::addColumn<QString>("blocked");
        QTest::addColumn<QString>("said");
        const auto row = [](const char *blocked, const char *said) {
            QTest::newRow(blocked) << text(blocked) << text(said);
        };
        row("", "");
        row("config.ini", "forgotten");
        row("DataRecord", "记录"); // in Chinese
        row("Log", "no messages");
        row("mz6218.lock", "Another console");
    }

    void saysAtStartWhatIsInTheWay()
    {
        QFETCH(QString, blocked);
        QFETCH(QString, said);
        StartOptions options;
        std::unique_ptr<ConsoleTester> other;
        if (blocked == QStringLiteral("mz6218.lock")) {
            other = std::make_unique<ConsoleTester>();
            other->window().begin(options);
        } else if (blocked == QStringLiteral("config.ini")) {
            // What stands in the way is of the other kind: rights would not hold back everyone.
            QVERIFY(QDir().mkpath(settingsPath()));
        } else if (!blocked.isEmpty()) {
            QVERIFY(QFile(ConsoleTester::path(blocked)).open(QIODevice::WriteOnly));
        }
        SimulatorProcess simulator;
        QVERIFY(simulator.startOnInstrumentPort());
        const ConsoleTester console;
        options.language = text(blocked == QLatin1String("DataRecord") ? "cn" : "en");
        options.lanHost = simulator.address();
        console.window().begin(options);
        // The measurement has begun, whether somebody reads the box or not.
        QCOMPARE(console.faultsOfState(true), QStringList());
        const auto boxes = console.window().findChildren<QMessageBox *>();
        QCOMPARE(boxes.size(), said.isEmpty() ? 0 : 1);
        if (!said.isEmpty())
            QVERIFY2(boxes[0]->text().contains(said), qPrintable(boxes[0]->text()));
    }
};

MZ_TEST(TestConsoleFiles)
#include "tst_consolefiles.moc"
