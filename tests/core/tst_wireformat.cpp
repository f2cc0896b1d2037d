#include "Logic/commandtexts.h"
#include "Logic/linebuffer.h"
#include "Logic/replyparser.h"

#include "testmain.h"

namespace {

using Pieces = QList<QByteArray>;

QString line(const char *text)
{
    return QString::fromUtf8(text);
}

/// Feeds \a pieces as a reader does: until the buffer has a line.
QString firstLineOf(const Pieces &pieces)
{
    LineBuffer buffer;
    for (const QByteArray &piece : pieces) {
        buffer.append(piece);
        if (buffer.hasLine())
            return buffer.takeLine();
    }
    return QStringLiteral("(no line)");
}

} // namespace

/// What stands on the wire, apart from any port: command lines, pieces of lines, values in lines.
class TestWireFormat : public QObject
{
    Q_OBJECT

private slots:
    void commandsCarryTheirValue()
    {
        using namespace CommandTexts;
        const QString gigahertz = QStringLiteral("GHz");
        QCOMPARE(setFrequency(2.456), QByteArray("FREQ 2.46\n"));
        QCOMPARE(setFrequency(line("%2"), gigahertz), QByteArray("FREQ %2GHz\n"));
        QCOMPARE(setOffset(0.125), QByteArray("OFFS 0.13\n"));
        QCOMPARE(setPowerUnit(line("µ€")), QByteArray("UNIT:POW \xB5?\n"));
    }

    void piecesBecomeOneLine()
    {
        const QString state = line("RETURN:REL ON");
        QCOMPARE(firstLineOf({"RETURN:R", "EL ON\n"}), state);
        QCOMPARE(firstLineOf({"RETURN:REL ON\r", "\n"}), state);
        QCOMPARE(firstLineOf({"first\nsec", "ond\n"}), line("first"));
        QCOMPARE(firstLineOf({"\nRETURN:REL ON\n"}), QString());
        // Characters of several bytes: cut, never ended, never begun.
        QCOMPARE(firstLineOf({"\xE2", "\x82", "\xAC\n"}), line("€"));
        QCOMPARE(firstLineOf({"10\xC2", "0W\n"}), line("10\uFFFD0W"));
        // A NUL hides the rest of its piece, be it the newline.
        QCOMPARE(firstLineOf({QByteArray("RETURN:\0REL OFF\n", 16), "REL ON\n"}), state);
    }

    void unfinishedLineIsBounded()
    {
        const auto overfull = [](const Pieces &pieces) {
            LineBuffer buffer;
            for (const QByteArray &piece : pieces)
                buffer.append(piece);
            return buffer.isOverfull();
        };
        const QByteArray limit(LineBuffer::capacity, 'x');
        QVERIFY(!overfull({limit}));
        QVERIFY(overfull({limit, "x"}));
        QVERIFY(!overfull({limit, "\n"}));
        // Bytes count, and not the text that they make.
        QVERIFY(overfull({QByteArray(LineBuffer::capacity + 1, '\0')}));
        QVERIFY(overfull({QByteArray("\xC2\xB5").repeated(LineBuffer::capacity / 2 + 1)}));
    }

    void clearedBufferRemembersNothing()
    {
        LineBuffer buffer;
        buffer.append(QByteArray(LineBuffer::capacity + 1, 'x') + '\xC2');
        buffer.clear();
        QVERIFY(!buffer.isOverfull());
        QCOMPARE(buffer.text(), QString());
        buffer.append("\xC2\xB5W\n");
        QCOMPARE(buffer.takeLine(), line("µW"));
    }

    void frequency()
    {
        const auto read = [](const char *reply) {
            const ReplyParser::Frequency frequency = ReplyParser::frequency(line(reply));
            return QStringLiteral("%1|").arg(frequency.value) + frequency.unit;
        };
        QCOMPARE(read("RETURN:FREQ 1500KHz\n"), line("1500|KHz"));
        QCOMPARE(read("RETURN:FREQ 2.45 GHz"), line("2.45|GHz"));
        QCOMPARE(read("RETURN:FREQ 2.45"), line("2.45|"));
        // Without the very prefix the unit stays, and no number is left.
        QCOMPARE(read("2.45GHz"), line("0|"));
        // A unit is always the last three characters, and goes wherever it stands.
        QCOMPARE(read("RETURN:FREQ 1500Hz"), line("150|0Hz"));
        QCOMPARE(read("RETURN:FREQ 2GHz5GHz"), line("25|GHz"));
        QCOMPARE(read("RETURN:FREQ 2.4\xFFGHz"), line("0|GHz"));
        QCOMPARE(read(""), line("0|"));
    }

    void power()
    {
        const auto read = [](const char *reply) {
            const ReplyParser::Power power = ReplyParser::power(line(reply));
            return QStringLiteral("%1|").arg(power.dbm) + power.text;
        };
        QCOMPARE(read("RETURN:GET -20.00dBm,10.00µW\n"), line("-20|10.00µW"));
        QCOMPARE(read("RETURN:GET -20.00dBm,"), line("-20|"));
        // A field that is no number is no reading, but says why.
        QCOMPARE(read("RETURN:GET -2\xFF.0dBm,1uW"), line("100|1uW"));
        QCOMPARE(read("RETURN:GET OVERLOAD,OVERLOAD"), line("100|OVERLOAD"));
        QCOMPARE(read("RETURN:GET -infdBm,0W"), line("100|0W"));
        QCOMPARE(read("RETURN:GET ,1uW"), line("100|1uW"));
        // No reading: one field, three, another prefix.
        QCOMPARE(read("RETURN:GET -20.00dBm"), line("100|"));
        QCOMPARE(read("RETURN:GET -20.RETURN:GET -21.00dBm,10.00uW"), line("100|"));
        QCOMPARE(read("RETURN:GET -20.00dBm,10.00uW,0"), line("100|"));
        QCOMPARE(read("RETURN:GET-20.00dBm,10.00uW"), line("100|"));
    }

    void otherValues()
    {
        using namespace ReplyParser;
        QCOMPARE(offset(line("RETURN:OFFS -1.50dB")), -1.5);
        QCOMPARE(offset(line("RETURN:OFFS 3.20 dB\n")), 3.2);
        QCOMPARE(offset(line("1.50")), 1.5);

        QCOMPARE(averageCount(line("RETURN:AVER:COUN 1024")), 1024);
        QCOMPARE(averageCount(line("16")), 16);
        QCOMPARE(averageCount(line("RETURN:AVER:COUN 16.0")), 0);

        // The identity loses its prefix wherever it stands, other texts at their start alone.
        QCOMPARE(identity(line("xRETURN:IDN MZ\n")), line("xMZ"));
        QCOMPARE(powerUnit(line("RETURN:UNIT:POW RETURN:UNIT:POW W")), line("RETURN:UNIT:POW W"));
        QCOMPARE(powerUnit(line("W\n")), line("W"));
        QCOMPARE(measureState(line("RETURN:RELON")), line("RETURN:RELON"));
    }

    void taskResult()
    {
        using ReplyParser::TaskResult;
        const auto result = [](const char *reply) { return ReplyParser::taskResult(line(reply)); };
        QCOMPARE(result("#12 RETURN:CAL:OK done"), TaskResult::CalibrationSucceeded);
        QCOMPARE(result("RETURN:CAL:ZERO:OK RETURN:CAL:FAIL"), TaskResult::CalibrationFailed);
        QCOMPARE(result("RETURN:CAL:ZERO:FAIL RETURN:CAL:ZERO:OK"), TaskResult::ZeroSucceeded);
        QCOMPARE(result("RETURN:CAL:ZERO:"), TaskResult::None);
    }

    void outcome()
    {
        const auto outcomes = [](const QByteArray &command, const QList<QByteArray> &replies) {
            QByteArray letters;
            for (const QByteArray &reply : replies)
                letters +=
                    "OTGRL"[int(ReplyParser::outcome(command + '\n', QString::fromUtf8(reply)))];
            return letters;
        };
        const QByteArray error = "RETURN:ERR -222,Data out of range";
        QCOMPARE(outcomes("OFFS 1.00", {"RETURN:OK", error, "RETURN:OFFS 1.00dB"}), "ORG");
        QCOMPARE(
            outcomes("OFFS?", {"RETURN:OFFS 1.00dB", error, "RETURN:OFFS -", "RETURN:REL ON", ""}),
            "ORGGG");
        QCOMPARE(outcomes("GET?", {"RETURN:GET -2dBm,1uW", "RETURN:GET OVERLOAD,OVERLOAD",
                                   "RETURN:GET -2dBm", "RETURN:GET nan,1uW", "-2dBm,1uW"}),
                 "OGGGG");
        QCOMPARE(
            outcomes("FREQ?", {"RETURN:FREQ 2.45GHz", "RETURN:FREQ 2.45", "RETURN:FREQ 2?5GHz"}),
            "OOG");
        QCOMPARE(outcomes("*IDN?", {"RETURN:IDN MZ6218", "RETURN:IDN ", "MZ6218"}), "OGG");
        QCOMPARE(outcomes("REL?", {"RETURN:REL OFF", "RETURN:REL 0?"}), "OG");
        QCOMPARE(outcomes("UNIT:POW?", {"RETURN:UNIT:POW DBM", "RETURN:UNIT:POW V"}), "OG");
        QCOMPARE(outcomes("AVER:COUN?", {"RETURN:AVER:COUN 16", "RETURN:AVER:COUN 1.5"}), "OG");
        QCOMPARE(outcomes("CAL", {"RETURN:CAL:OK", "RETURN:CAL:FAIL", "RETURN:CAL:ZERO:OK"}),
                 "ORG");
        QCOMPARE(outcomes("CAL:ZERO", {"RETURN:CAL:ZERO:OK", "RETURN:CAL:ZERO:FAIL"}), "OR");
    }
};

MZ_GUILESS_TEST(TestWireFormat)

#include "tst_wireformat.moc"
