#include "frameedge.h"
#include "frequencyunit.h"
#include "startoptions.h"
#include "testmain.h"

Q_DECLARE_METATYPE(StartOptions::Wish)

/// The console's small computations: the frequency's unit, the grip on a frameless window, the
/// command line.
class TestConsoleUnits : public QObject
{
    Q_OBJECT

private slots:
    void frequencyIsSentWithoutNeedlessDigits_data();
    void frequencyIsSentWithoutNeedlessDigits();
    void everyUnitCoversTheSameRange();
    void edgeUnderTheCursor_data();
    void edgeUnderTheCursor();
    void draggedEdgeMovesAlone_data();
    void draggedEdgeMovesAlone();
    void commandLine_data();
    void commandLine();
};

void TestConsoleUnits::frequencyIsSentWithoutNeedlessDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("factor");
    QTest::addColumn<QString>("text");

    QTest::newRow("GHz with a fraction") << 2.45 << 1000000 << "2.45";
    QTest::newRow("tens of GHz keep their zero") << 40.0 << 1000000 << "40";
    QTest::newRow("one kHz in GHz") << 0.000001 << 1000000 << "0.000001";
    QTest::newRow("zeros of kHz are no decimals") << 1500.0 << 1 << "1500";
    QTest::newRow("highest kHz without exponent") << 40000000.0 << 1 << "40000000";
}

void TestConsoleUnits::frequencyIsSentWithoutNeedlessDigits()
{
    QFETCH(double, value);
    QFETCH(int, factor);
    QTEST(frequencyText(value, factor), "text");
}

void TestConsoleUnits::everyUnitCoversTheSameRange()
{
    for (const QString &name : FrequencyUnit::names()) {
        const auto unit = FrequencyUnit::find(name);
        QVERIFY(unit);
        QCOMPARE(unit->minimum * unit->factor, 1.0);
        QCOMPARE(unit->maximum * unit->factor, 40000000.0);
        // The smallest step that the box can show is 1 kHz.
        QCOMPARE(frequencyText(unit->minimum, unit->factor).toDouble(), unit->minimum);
    }
    for (const char *name : {"", "Hz", "ghz", "0Hz"})
        QVERIFY2(!FrequencyUnit::find(QLatin1String(name)), name);
}

void TestConsoleUnits::edgeUnderTheCursor_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<int>("edges"); // -1: as before

    // The frame is 200 x 100 at (0, 0), so the grip lines stand at 18 and at 181 and 81.
    QTest::newRow("top left corner") << QPoint(18, 18) << 5;
    QTest::newRow("bottom right corner") << QPoint(181, 81) << 10;
    QTest::newRow("top") << QPoint(100, 18) << 1;
    QTest::newRow("right") << QPoint(181, 50) << 8;
    QTest::newRow("middle") << QPoint(100, 50) << 0;
    QTest::newRow("outermost pixel of the band") << QPoint(100, 21) << 1;
    QTest::newRow("first pixel beside the band") << QPoint(100, 22) << 0;
    QTest::newRow("corner wins within its band") << QPoint(15, 21) << 5;
    QTest::newRow("beside the right end of the bottom line") << QPoint(195, 81) << -1;
    QTest::newRow("the window's very edge") << QPoint(100, 0) << 0;
}

void TestConsoleUnits::edgeUnderTheCursor()
{
    QFETCH(QPoint, cursor);
    QFETCH(int, edges);
    const QPoint origin(-30, 40);
    const QRect frame(origin, QSize(200, 100));
    QCOMPARE(FrameEdge::edgesAt(origin + cursor, frame, 4).value_or(-1), edges);
}

void TestConsoleUnits::draggedEdgeMovesAlone_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QRect>("result");

    // From (100, 100) to (299, 249), between 120 x 80 and 400 x 300.
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("left") << 4 << QPoint(108, 0) << rect(90, 100, 299, 249);
    QTest::newRow("corner") << 5 << QPoint(108, 138) << rect(90, 120, 299, 249);
    QTest::newRow("top no further than the least height")
        << 1 << QPoint(0, 900) << rect(100, 170, 299, 249);
    QTest::newRow("top no further than the largest height")
        << 1 << QPoint(0, -900) << rect(100, -50, 299, 249);
    QTest::newRow("right no further than the largest width")
        << 8 << QPoint(900, 0) << rect(100, 100, 499, 249);
    QTest::newRow("no edge") << 0 << QPoint(900, 900) << rect(100, 100, 299, 249);
}

void TestConsoleUnits::draggedEdgeMovesAlone()
{
    QFETCH(int, edges);
    QFETCH(QPoint, cursor);
    QFETCH(QRect, result);
    QCOMPARE(FrameEdge::resized(QRect(QPoint(100, 100), QPoint(299, 249)), edges, cursor,
                                QSize(120, 80), QSize(400, 300)),
             result);
}

void TestConsoleUnits::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<StartOptions::Wish>("wish");
    QTest::addColumn<QString>("lan");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<int>("baud");
    QTest::addColumn<QString>("text");

    using Wish = StartOptions::Wish;
    const auto words = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    const int usual = 115200;
    const QString none;
    QTest::newRow("serial port") << words("--serial COM3") << Wish::Run << none << "COM3" << usual
                                 << none;
    QTest::newRow("serial port and rate")
        << words("--serial=/dev/pts/3:9600") << Wish::Run << none << "/dev/pts/3" << 9600 << none;
    QTest::newRow("port with colons of its own")
        << words("--serial /dev/serial/by-path/pci-0:2.0-port0") << Wish::Run << none
        << "/dev/serial/by-path/pci-0:2.0-port0" << usual << none;
    QTest::newRow("rate of zero") << words("--serial COM3:0") << Wish::Refuse << none << none
                                  << usual << "no baud rate";
    QTest::newRow("both roads") << words("--lan a --serial b") << Wish::Refuse << none << none
                                << usual << "exclude each other";
    QTest::newRow("host missing") << words("--lan") << Wish::Refuse << none << none << usual
                                  << "--lan";
    QTest::newRow("unknown language")
        << words("--language de") << Wish::Refuse << none << none << usual << "'de'";
    QTest::newRow("stray word") << words("10.0.0.2") << Wish::Refuse << none << none << usual
                                << "'10.0.0.2'";
    QTest::newRow("examination") << words("--doctor COM3:9600") << Wish::Examine << none << none
                                 << usual << none;
    QTest::newRow("examination of two")
        << words("--doctor a b") << Wish::Refuse << none << none << usual << "one address";
    QTest::newRow("examination and link")
        << words("--doctor --lan a") << Wish::Refuse << none << none << usual << "no other option";
    QTest::newRow("help") << words("--help") << Wish::Print << none << none << usual
                          << "--serial PORT";
}

void TestConsoleUnits::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(StartOptions::Wish, wish);
    QFETCH(QString, text);
    const StartOptions options =
        StartOptions::read(QStringList(QStringLiteral("mz6218")) + arguments);
    QCOMPARE(int(options.wish), int(wish));
    QVERIFY2(options.text.contains(text), qPrintable(options.text));
    if (wish == StartOptions::Wish::Refuse)
        QVERIFY2(options.text.contains(QStringLiteral("Usage:")), qPrintable(options.text));
    if (wish != StartOptions::Wish::Run)
        return;
    QTEST(options.lanHost, "lan");
    QTEST(options.serialPort, "serial");
    QTEST(options.baudRate, "baud");
}

MZ_TEST_GUILESS_MAIN(TestConsoleUnits)
#include "tst_consoleunits.moc"
