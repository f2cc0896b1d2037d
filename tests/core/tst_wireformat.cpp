#include "Logic/commandtexts.h"
#include "Logic/linebuffer.h"
#include "Logic/replyparser.h"

#include "testmain.h"

#include <QtTest>

Q_DECLARE_METATYPE(ReplyParser::TaskResult)

namespace {

using Pieces = QList<QByteArray>;

/// A line as it reads at the top level of a test row.
QString line(const char *text)
{
    return QString::fromUtf8(text);
}

/// Feeds \a pieces as a reader does: until the buffer has a line.
QString firstLineOf(LineBuffer &buffer, const Pieces &pieces)
{
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
    void commandsCarryTheirValue_data();
    void commandsCarryTheirValue();
    void piecesBecomeOneLine_data();
    void piecesBecomeOneLine();
    void unfinishedLineIsBounded_data();
    void unfinishedLineIsBounded();
    void clearedBufferRemembersNothing();
    void frequency_data();
    void frequency();
    void offset_data();
    void offset();
    void averageCount_data();
    void averageCount();
    void texts_data();
    void texts();
    void power_data();
    void power();
    void taskResult_data();
    void taskResult();
};

void TestWireFormat::commandsCarryTheirValue_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("wire");

    const QString micro = QStringLiteral("µ€");
    QTest::newRow("decimals beyond the second are rounded")
        << CommandTexts::setFrequency(2.456) << QByteArray("FREQ 2.46\n");
    QTest::newRow("the highest frequency")
        << CommandTexts::setFrequency(40) << QByteArray("FREQ 40.00\n");
    QTest::newRow("what two decimals cannot hold")
        << CommandTexts::setFrequency(0.000001) << QByteArray("FREQ 0.00\n");
    QTest::newRow("value and unit without a blank")
        << CommandTexts::setFrequency(QStringLiteral("2.450001"), QStringLiteral("GHz"))
        << QByteArray("FREQ 2.450001GHz\n");
    QTest::newRow("a value that looks like a placeholder")
        << CommandTexts::setFrequency(QStringLiteral("%2"), QStringLiteral("GHz"))
        << QByteArray("FREQ %2GHz\n");
    QTest::newRow("negative offset")
        << CommandTexts::setOffset(-100) << QByteArray("OFFS -100.00\n");
    QTest::newRow("offset on an exact tie")
        << CommandTexts::setOffset(0.125) << QByteArray("OFFS 0.13\n");
    QTest::newRow("no group separators")
        << CommandTexts::setAverageCount(1024) << QByteArray("AVER:COUN 1024\n");
    QTest::newRow("one byte a character")
        << CommandTexts::setPowerUnit(micro) << QByteArray("UNIT:POW \xB5?\n");
}

void TestWireFormat::commandsCarryTheirValue()
{
    QFETCH(QByteArray, command);
    QTEST(command, "wire");
}

void TestWireFormat::piecesBecomeOneLine_data()
{
    QTest::addColumn<Pieces>("pieces");
    QTest::addColumn<QString>("expected");

    QTest::newRow("whole") << Pieces{"RETURN:REL ON\n"} << line("RETURN:REL ON");
    QTest::newRow("cut in two") << Pieces{"RETURN:R", "EL ON\n"} << line("RETURN:REL ON");
    QTest::newRow("newline alone in the last piece")
        << Pieces{"RETURN:REL ON", "\n"} << line("RETURN:REL ON");
    QTest::newRow("cut inside a character of two bytes")
        << Pieces{"10.00\xC2", "\xB5W\n"} << line("10.00µW");
    QTest::newRow("cut twice inside a character of three bytes")
        << Pieces{"\xE2", "\x82", "\xAC\n"} << line("€");
    QTest::newRow("character that never ends")
        << Pieces{"10\xC2", "0W\n"} << QStringLiteral("10\uFFFD0W");
    QTest::newRow("bytes that are no UTF-8") << Pieces{"A\xFF\n"} << QStringLiteral("A\uFFFD");
    QTest::newRow("two lines in one piece") << Pieces{"first\nsecond\n"} << line("first");
    QTest::newRow("a line and a half, then the rest")
        << Pieces{"first\nsec", "ond\n"} << line("first");
    QTest::newRow("empty line first") << Pieces{"\nRETURN:REL ON\n"} << QString();
    QTest::newRow("carriage return before the newline")
        << Pieces{"RETURN:REL ON\r\n"} << line("RETURN:REL ON");
    QTest::newRow("carriage return and newline apart")
        << Pieces{"RETURN:REL ON\r", "\n"} << line("RETURN:REL ON");
    QTest::newRow("other carriage returns stay") << Pieces{"A\rB\r\r\n"} << line("A\rB\r");
    QTest::newRow("NUL hides the rest of its piece")
        << Pieces{QByteArray("RETURN:\0REL OFF\n", 16), "REL ON\n"} << line("RETURN:REL ON");
    QTest::newRow("NUL hides the newline")
        << Pieces{QByteArray("RETURN\0\n", 8)} << line("(no line)");
    QTest::newRow("no newline") << Pieces{"RETURN:REL", " ON"} << line("(no line)");
}

void TestWireFormat::piecesBecomeOneLine()
{
    QFETCH(Pieces, pieces);
    LineBuffer buffer;
    QTEST(firstLineOf(buffer, pieces), "expected");
}

void TestWireFormat::unfinishedLineIsBounded_data()
{
    QTest::addColumn<Pieces>("pieces");
    QTest::addColumn<bool>("overfull");

    const QByteArray limit(LineBuffer::capacity, 'x');
    QTest::newRow("as long as allowed") << Pieces{limit} << false;
    QTest::newRow("one byte more") << Pieces{limit, "x"} << true;
    QTest::newRow("one byte more, but complete") << Pieces{limit, "\n"} << false;
    QTest::newRow("nothing but NULs") << Pieces{QByteArray(LineBuffer::capacity + 1, '\0')} << true;
    QTest::newRow("characters of several bytes")
        << Pieces{QByteArray("\xC2\xB5").repeated(LineBuffer::capacity / 2 + 1)} << true;
}

void TestWireFormat::unfinishedLineIsBounded()
{
    QFETCH(Pieces, pieces);
    LineBuffer buffer;
    for (const QByteArray &piece : pieces)
        buffer.append(piece);
    QTEST(buffer.isOverfull(), "overfull");
    buffer.clear();
    QVERIFY(!buffer.isOverfull());
    QCOMPARE(firstLineOf(buffer, {"next\n"}), QStringLiteral("next"));
}

void TestWireFormat::clearedBufferRemembersNothing()
{
    LineBuffer buffer;
    buffer.append("part of an old reply \xC2");
    QCOMPARE(buffer.text(), QStringLiteral("part of an old reply "));
    buffer.clear();
    QCOMPARE(firstLineOf(buffer, {"\xC2\xB5W\n"}), QStringLiteral("µW"));
    QCOMPARE(firstLineOf(buffer, {"next\n"}), QStringLiteral("next"));
}

void TestWireFormat::frequency_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");

    QTest::newRow("GHz") << line("RETURN:FREQ 2.45GHz") << 2.45 << line("GHz");
    QTest::newRow("MHz") << line("RETURN:FREQ 2450MHz") << 2450.0 << line("MHz");
    QTest::newRow("KHz") << line("RETURN:FREQ 1500KHz\n") << 1500.0 << line("KHz");
    QTest::newRow("blank before the unit") << line("RETURN:FREQ 2.45 GHz") << 2.45 << line("GHz");
    QTest::newRow("no unit") << line("RETURN:FREQ 2.45") << 2.45 << QString();
    QTest::newRow("plain Hz takes a digit with it")
        << line("RETURN:FREQ 1500Hz") << 150.0 << line("0Hz");
    QTest::newRow("unit twice") << line("RETURN:FREQ 2GHz5GHz") << 25.0 << line("GHz");
    QTest::newRow("something behind the unit")
        << line("RETURN:FREQ 2.45GHz?") << 0.0 << line("Hz?");
    QTest::newRow("unit alone") << line("RETURN:FREQ Hz") << 0.0 << line("Hz");
    QTest::newRow("without prefix the unit stays") << line("2.45GHz") << 0.0 << QString();
    QTest::newRow("bare number") << line("2.45") << 2.45 << QString();
    QTest::newRow("prefix in small letters") << line("return:freq 2.45GHz") << 0.0 << QString();
    QTest::newRow("prefix not at the start") << line(" RETURN:FREQ 2.45GHz") << 0.0 << QString();
    QTest::newRow("prefix alone") << line("RETURN:FREQ ") << 0.0 << QString();
    QTest::newRow("cut inside the prefix") << line("RETURN:FR") << 0.0 << QString();
    QTest::newRow("garbled digits") << line("RETURN:FREQ 2.4\uFFFDGHz") << 0.0 << line("GHz");
    QTest::newRow("decimal comma") << line("RETURN:FREQ 2,45GHz") << 0.0 << line("GHz");
    QTest::newRow("nothing came") << QString() << 0.0 << QString();
}

void TestWireFormat::frequency()
{
    QFETCH(QString, reply);
    const ReplyParser::Frequency frequency = ReplyParser::frequency(reply);
    QTEST(frequency.value, "value");
    QTEST(frequency.unit, "unit");
}

void TestWireFormat::offset_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<double>("value");

    QTest::newRow("with unit") << line("RETURN:OFFS -1.50dB") << -1.5;
    QTest::newRow("without unit") << line("RETURN:OFFS 100") << 100.0;
    QTest::newRow("blank before the unit") << line("RETURN:OFFS 3.20 dB\n") << 3.2;
    QTest::newRow("without prefix the unit stays") << line("1.50dB") << 0.0;
    QTest::newRow("bare number") << line("1.50") << 1.5;
    QTest::newRow("another unit") << line("RETURN:OFFS 1.50dBm") << 0.0;
    QTest::newRow("answer to another query") << line("RETURN:FREQ 2.45GHz") << 0.0;
    QTest::newRow("nothing came") << QString() << 0.0;
}

void TestWireFormat::offset()
{
    QFETCH(QString, reply);
    QTEST(ReplyParser::offset(reply), "value");
}

void TestWireFormat::averageCount_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<int>("count");

    QTest::newRow("number") << line("RETURN:AVER:COUN 1024") << 1024;
    QTest::newRow("bare number") << line("16") << 16;
    QTest::newRow("decimals") << line("RETURN:AVER:COUN 16.0") << 0;
    QTest::newRow("more than an int holds") << line("RETURN:AVER:COUN 99999999999") << 0;
    QTest::newRow("prefix alone") << line("RETURN:AVER:COUN ") << 0;
    QTest::newRow("nothing came") << QString() << 0;
}

void TestWireFormat::averageCount()
{
    QFETCH(QString, reply);
    QTEST(ReplyParser::averageCount(reply), "count");
}

void TestWireFormat::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("identity") << ReplyParser::identity(line("RETURN:IDN MZ6218,SN001,V1.0"))
                              << line("MZ6218,SN001,V1.0");
    QTest::newRow("identity with the prefix anywhere")
        << ReplyParser::identity(line("xRETURN:IDN MZ6218\n")) << line("xMZ6218");
    QTest::newRow("identity that looks like a placeholder")
        << ReplyParser::identity(line("RETURN:IDN %1%2")) << line("%1%2");
    QTest::newRow("identity without prefix")
        << ReplyParser::identity(line("MZ6218")) << line("MZ6218");
    QTest::newRow("unit in the instrument's letters")
        << ReplyParser::powerUnit(line("RETURN:UNIT:POW DBM")) << line("DBM");
    QTest::newRow("unit without prefix") << ReplyParser::powerUnit(line("W\n")) << line("W");
    QTest::newRow("unit once behind two prefixes")
        << ReplyParser::powerUnit(line("RETURN:UNIT:POW RETURN:UNIT:POW W"))
        << line("RETURN:UNIT:POW W");
    QTest::newRow("state") << ReplyParser::measureState(line("RETURN:REL OFF")) << line("OFF");
    QTest::newRow("state of another prefix")
        << ReplyParser::measureState(line("RETURN:RELON")) << line("RETURN:RELON");
}

void TestWireFormat::texts()
{
    QFETCH(QString, text);
    QTEST(text, "expected");
}

void TestWireFormat::power_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<double>("dbm");
    QTest::addColumn<QString>("text");

    QTest::newRow("watts") << line("RETURN:GET -20.00dBm,10.00uW") << -20.0 << line("10.00uW");
    QTest::newRow("micro sign") << line("RETURN:GET -20.00dBm,10.00µW\n") << -20.0
                                << line("10.00µW");
    QTest::newRow("number without its unit")
        << line("RETURN:GET 3.5,3.50dBm") << 3.5 << line("3.50dBm");
    QTest::newRow("display text left blank") << line("RETURN:GET -20.00dBm,") << -20.0 << QString();
    QTest::newRow("garbled number keeps its text")
        << line("RETURN:GET -2\uFFFD.00dBm,10.00uW") << 0.0 << line("10.00uW");
    QTest::newRow("one field") << line("RETURN:GET -20.00dBm") << 100.0 << QString();
    QTest::newRow("three fields") << line("RETURN:GET -20.00dBm,10.00uW,0") << 100.0 << QString();
    QTest::newRow("no prefix") << line("-20.00dBm,10.00uW") << 100.0 << QString();
    QTest::newRow("prefix without its blank")
        << line("RETURN:GET-20.00dBm,10.00uW") << 100.0 << QString();
    QTest::newRow("answer to another query") << line("RETURN:FREQ 2.45GHz") << 100.0 << QString();
    QTest::newRow("nothing came") << QString() << 100.0 << QString();
}

void TestWireFormat::power()
{
    QFETCH(QString, reply);
    const ReplyParser::Power power = ReplyParser::power(reply);
    QTEST(power.dbm, "dbm");
    QTEST(power.text, "text");
}

void TestWireFormat::taskResult_data()
{
    using Result = ReplyParser::TaskResult;
    QTest::addColumn<QString>("reply");
    QTest::addColumn<Result>("result");

    QTest::newRow("calibrated") << line("RETURN:CAL:OK") << Result::CalibrationSucceeded;
    QTest::newRow("not calibrated") << line("RETURN:CAL:FAIL") << Result::CalibrationFailed;
    QTest::newRow("zeroed") << line("RETURN:CAL:ZERO:OK") << Result::ZeroSucceeded;
    QTest::newRow("not zeroed") << line("RETURN:CAL:ZERO:FAIL") << Result::ZeroFailed;
    QTest::newRow("text around it")
        << line("#12 RETURN:CAL:OK done") << Result::CalibrationSucceeded;
    QTest::newRow("calibration before zeroing")
        << line("RETURN:CAL:ZERO:OK RETURN:CAL:FAIL") << Result::CalibrationFailed;
    QTest::newRow("success before failure")
        << line("RETURN:CAL:ZERO:FAIL RETURN:CAL:ZERO:OK") << Result::ZeroSucceeded;
    QTest::newRow("small letters") << line("return:cal:ok") << Result::None;
    QTest::newRow("cut short") << line("RETURN:CAL:ZERO:") << Result::None;
    QTest::newRow("a late reading") << line("RETURN:GET -20.00dBm,10.00uW") << Result::None;
    QTest::newRow("empty") << QString() << Result::None;
}

void TestWireFormat::taskResult()
{
    QFETCH(QString, reply);
    QTEST(ReplyParser::taskResult(reply), "result");
}

MZ_TEST_GUILESS_MAIN(TestWireFormat)

#include "tst_wireformat.moc"
