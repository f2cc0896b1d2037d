#include "Logic/frequencyunit.h"
#include "console/startoptions.h"
#include "frame/frameedge.h"
#include "testmain.h"

Q_DECLARE_METATYPE(StartOptions::Wish)

/// The console's small computations: the frequency's unit, the grip on a frameless window, the
/// command line.
class TestConsoleUnits : public QObject
{
    Q_OBJECT

private slots:
    void frequencyIsSentWithoutNeedlessDigits()
    {
        QCOMPARE(frequencyText(2.45, 1000000), QStringLiteral("2.45"));
        QCOMPARE(frequencyText(40, 1000000), QStringLiteral("40"));
        QCOMPARE(frequencyText(0.000001, 1000000), QStringLiteral("0.000001"));
        QCOMPARE(frequencyText(1500, 1), QStringLiteral("1500"));
        QCOMPARE(frequencyText(40000000, 1), QStringLiteral("40000000"));
    }

    void everyUnitCoversTheSameRange()
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

    void edgeUnderTheCursor()
    {
        // The frame is 200 x 100, so that the grip lines stand at 18 and at 181 and 81 in it.
        const auto edgesAt = [](const QPoint &cursor) {
            const QPoint origin(-30, 40);
            return FrameEdge::edgesAt(origin + cursor, QRect(origin, QSize(200, 100)), 4)
                .value_or(-1);
        };
        using namespace FrameEdge;
        QCOMPARE(edgesAt({18, 18}), Top | Left);
        QCOMPARE(edgesAt({181, 81}), Bottom | Right);
        QCOMPARE(edgesAt({15, 21}), Top | Left); // the corner wins within its band
        QCOMPARE(edgesAt({181, 50}), int(Right));
        QCOMPARE(edgesAt({100, 21}), int(Top));
        QCOMPARE(edgesAt({100, 22}), int(None));
        QCOMPARE(edgesAt({100, 50}), int(None));
        QCOMPARE(edgesAt({100, 0}), int(None));
        QCOMPARE(edgesAt({195, 81}), -1); // beside the end of the bottom line: as before
    }

    void draggedEdgeMovesAlone()
    {
        // From (100, 100) to (299, 249), between 120 x 80 and 400 x 300.
        const auto resized = [](int edges, const QPoint &cursor) {
            const QRect before(QPoint(100, 100), QPoint(299, 249));
            return FrameEdge::resized(before, edges, cursor, {120, 80}, {400, 300});
        };
        using namespace FrameEdge;
        QCOMPARE(resized(Top | Left, {108, 138}), QRect(QPoint(90, 120), QPoint(299, 249)));
        QCOMPARE(resized(Top, {0, 900}), QRect(QPoint(100, 170), QPoint(299, 249)));
        QCOMPARE(resized(Top, {0, -900}), QRect(QPoint(100, -50), QPoint(299, 249)));
        QCOMPARE(resized(Right, {900, 0}), QRect(QPoint(100, 100), QPoint(499, 249)));
        QCOMPARE(resized(None, {900, 900}), QRect(QPoint(100, 100), QPoint(299, 249)));
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<StartOptions::Wish>("wish");
        QTest::addColumn<QString>("said"); // the transport and its baud rate, or a part of the text
        using Wish = StartOptions::Wish;
        const auto row = [](const char *line, Wish wish, const char *said) {
            const QString words = QLatin1String("mz6218 ") + QLatin1String(line);
            QTest::newRow(line) << words.split(QLatin1Char(' ')) << wish << said;
        };
        const char *const ownColons = "--serial /dev/serial/by-path/pci-0:2.0-port0";
        row("--serial COM3", Wish::Run, "|COM3|115200");
        row("--serial=/dev/pts/3:9600", Wish::Run, "|/dev/pts/3|9600");
        row(ownColons, Wish::Run, "|/dev/serial/by-path/pci-0:2.0-port0|115200");
        row("--serial /dev/serial/by-path/pci-0:2.0-port0:9600", Wish::Run,
            "|/dev/serial/by-path/pci-0:2.0-port0|9600");
        row("--serial COM3:0", Wish::Refuse, "no baud rate");
        row("--serial COM3:abc", Wish::Refuse, "'abc' is no baud rate");
        row("--keep-logs 0", Wish::Refuse, "number of days");
        row("--lan a --serial b", Wish::Refuse, "exclude each other");
        row("--lan", Wish::Refuse, "--lan");
        row("--language de", Wish::Refuse, "'de'");
        row("10.0.0.2", Wish::Refuse, "'10.0.0.2'");
        row("--doctor COM3:9600", Wish::Examine, "");
        row("--doctor a b", Wish::Refuse, "one address");
        row("--doctor --lan a", Wish::Refuse, "no other option");
        row("--help", Wish::Print, "--serial PORT");
    }

    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, said);
        const StartOptions options = StartOptions::read(arguments);
        QTEST(options.wish, "wish");
        if (options.wish == StartOptions::Wish::Run) {
            const QString baudRate = QString::number(options.baudRate);
            QCOMPARE(
                QStringList({options.lanHost, options.serialPort, baudRate}).join(QLatin1Char('|')),
                said);
            return;
        }
        QVERIFY2(options.text.contains(said), qPrintable(options.text));
        if (options.wish == StartOptions::Wish::Refuse)
            QVERIFY2(options.text.contains(QStringLiteral("Usage:")), qPrintable(options.text));
    }
};

MZ_GUILESS_TEST(TestConsoleUnits)
#include "tst_consoleunits.moc"
