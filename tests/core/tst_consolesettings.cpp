#include "consolesettings.h"
#include "testmain.h"

#include <QFile>
#include <QTemporaryDir>

/// "config.ini": what the console still knows after a restart, whatever was done to the file.
class TestConsoleSettings : public QObject
{
    Q_OBJECT

private slots:
    void anyFileIsRead_data();
    void anyFileIsRead();
    void whatIsWrittenIsReadBack();
    void unwritableFileIsNoSettings();
    void oldFileSurvivesWithoutRoomForTheNew();
};

void TestConsoleSettings::anyFileIsRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("period");

    const QString none;
    QTest::newRow("Chinese, folder with blanks")
        << QByteArray("language:cn\nIP:\nPath:/\xE6\xB5\x8B\xE9\x87\x8F \xE6\x95\xB0/ x "
                      "\nInterval:30\nPeriod:10\n")
        << "cn" << none << QString::fromUtf8("/测量 数/ x ") << 30 << 10;
    QTest::newRow("saved by a Windows editor")
        << QByteArray("\xEF\xBB\xBFlanguage:en\r\nIP:10.0.0.2\r\nPath:C:/"
                      "data\r\nInterval:5\r\nPeriod:3\r\n")
        << "en"
        << "10.0.0.2"
        << "C:/data" << 5 << 3;
    QTest::newRow("empty file") << QByteArray() << "cn" << none << none << 0 << 10;
    QTest::newRow("en anywhere in the first line")
        << QByteArray("a sentence\n\n\n\n\n") << "en" << none << none << 0 << 10;
    QTest::newRow("numbers that are none")
        << QByteArray("language:cn\nIP:x\nPath:y\nInterval:soon\nPeriod:long\n") << "cn"
        << "x"
        << "y" << 0 << 0;
    QTest::newRow("bare interval counts, bare period does not")
        << QByteArray("language:en\n\n\n7\n7\n") << "en" << none << none << 7 << 10;
    QTest::newRow("period beyond the chart")
        << QByteArray("language:en\n\n\nInterval:99\nPeriod:15\n") << "en" << none << none << 99
        << 10;
    QTest::newRow("period of nothing")
        << QByteArray("language:en\n\n\nInterval:1\nPeriod:0\n") << "en" << none << none << 1 << 0;
    QTest::newRow("number beyond any range")
        << QByteArray("language:en\n\n\nInterval:99999999999\nPeriod:99999999999\n") << "en" << none
        << none << 0 << 0;
    QTest::newRow("garbage") << QByteArray("\xFF\xFE\x80\x01", 4) + QByteArray(5000, '\n') << "cn"
                             << none << none << 0 << 10;
}

void TestConsoleSettings::anyFileIsRead()
{
    QFETCH(QByteArray, text);
    const ConsoleSettings settings = ConsoleSettings::parse(text);
    QTEST(settings.language, "language");
    QTEST(settings.ipAddress, "address");
    QTEST(settings.recordFolder, "folder");
    QTEST(settings.interval, "interval");
    QTEST(settings.period, "period");
}

void TestConsoleSettings::whatIsWrittenIsReadBack()
{
    const QTemporaryDir place;
    const QString path = place.filePath(QStringLiteral("config.ini"));
    // A longer file of before must not show behind the new one.
    ConsoleSettings{QStringLiteral("cn"), QString(400, QLatin1Char('x')), {}, 1, 1}.save(path);
    const ConsoleSettings written{QStringLiteral("en"), QStringLiteral("%3"),
                                  QString::fromUtf8("/测量 %1/%5"), 12, 4};
    written.save(path);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
             QString::fromUtf8("language:en\nIP:%3\nPath:/测量 %1/%5\nInterval:12\nPeriod:4\n"));
    const auto read = ConsoleSettings::load(path);
    QVERIFY(read);
    QCOMPARE(read->toText(), written.toText());
}

void TestConsoleSettings::unwritableFileIsNoSettings()
{
    const QTemporaryDir place;
    // A folder that is gone, and a folder in the file's own place.
    for (const QString &path : {place.filePath(QStringLiteral("gone/config.ini")), place.path()}) {
        ConsoleSettings{QStringLiteral("en"), {}, {}, 1, 1}.save(path);
        QVERIFY2(!ConsoleSettings::load(path), qPrintable(path));
    }
}

void TestConsoleSettings::oldFileSurvivesWithoutRoomForTheNew()
{
    const QTemporaryDir place;
    // No name is left for the file that is to take the old one's place.
    const QString path = place.filePath(QString(250, QLatin1Char('c')));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("language:en\n");
    file.close();

    ConsoleSettings{QStringLiteral("cn"), {}, {}, 1, 1}.save(path);
    const auto read = ConsoleSettings::load(path);
    QVERIFY(read);
    QCOMPARE(read->language, QStringLiteral("en"));
}

MZ_TEST_GUILESS_MAIN(TestConsoleSettings)
#include "tst_consolesettings.moc"
