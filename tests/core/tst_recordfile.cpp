#include "recordfile.h"
#include "testmain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(QtMsgType)

namespace {

const QByteArray header = "Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n";

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

/// The record that the operator hands on: a file a day, with a header and a row for each reading.
class TestRecordFile : public QObject
{
    Q_OBJECT

private slots:
    void fileIsNamedAfterTheDay();
    void rowHoldsTheShownValues_data();
    void rowHoldsTheShownValues();
    void headerStandsOnceAtTheTop_data();
    void headerStandsOnceAtTheTop();
    void failureIsLogged_data();
    void failureIsLogged();
};

void TestRecordFile::fileIsNamedAfterTheDay()
{
    QCOMPARE(RecordFile::path(QString::fromUtf8("/测量 数据/%2"), QDate(2026, 3, 4)),
             QString::fromUtf8("/测量 数据/%2/2026-03-04.csv"));
}

void TestRecordFile::rowHoldsTheShownValues_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("offset");
    QTest::addColumn<QString>("power");
    QTest::addColumn<QString>("converted");
    QTest::addColumn<QString>("values");

    QTest::newRow("six digits of the frequency") << 2450.123456 << -3.25 << "-20.00"
                                                 << "-20.00dBm"
                                                 << "2450.12,-3.25,-20.00dBm,-20.00dBm";
    QTest::newRow("kilohertz beyond six digits") << 40000000.0 << 100.0 << "7.10"
                                                 << "5.13mW"
                                                 << "4e+07,100,7.10dBm,5.13mW";
    QTest::newRow("no reading") << 50.0 << 0.0 << "100.00"
                                << ""
                                << "50,0,100.00dBm,";
    QTest::newRow("place markers of the instrument's own") << 1.0 << 0.0 << "%5"
                                                           << "%1 %4"
                                                           << "1,0,%5dBm,%1 %4";
}

void TestRecordFile::rowHoldsTheShownValues()
{
    QFETCH(double, frequency);
    QFETCH(double, offset);
    QFETCH(QString, power);
    QFETCH(QString, converted);
    QFETCH(QString, values);
    const QDateTime when(QDate(2026, 3, 4), QTime(5, 6, 59));
    QCOMPARE(RecordFile::row(when, frequency, offset, power, converted),
             QStringLiteral("2026/03/04 05:06,%1\n").arg(values));
}

void TestRecordFile::headerStandsOnceAtTheTop_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("new file") << false << QByteArray() << header + "row 1\nrow \xC2\xB5\n";
    QTest::newRow("file of this morning") << true << header + "row 0\n"
                                          << header + "row 0\nrow 1\nrow \xC2\xB5\n";
    QTest::newRow("file of another program")
        << true << QByteArray("x\n") << QByteArray("x\nrow 1\nrow \xC2\xB5\n");
}

void TestRecordFile::headerStandsOnceAtTheTop()
{
    QFETCH(bool, exists);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("测量 1.csv"));
    if (exists)
        write(path, before);
    RecordFile::append(path, QStringLiteral("row 1\n"));
    RecordFile::append(path, QString::fromUtf8("row µ\n"));
    QCOMPARE(contentOf(path), after);
}

void TestRecordFile::failureIsLogged_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QtMsgType>("type");
    QTest::addColumn<QString>("message");

    QTest::newRow("folder is gone") << "/no such folder/x.csv" << QtDebugMsg << "^open failed$";
    QTest::newRow("a folder of that name") << "/" << QtDebugMsg << "^open failed$";
    QTest::newRow("disk is full") << "/dev/full" << QtWarningMsg << "/dev/full.*No space left";
}

void TestRecordFile::failureIsLogged()
{
    QFETCH(QString, path);
    QFETCH(QtMsgType, type);
    QFETCH(QString, message);
    if (path == QStringLiteral("/dev/full") && !QFile::exists(path))
        QSKIP("this system has no device that is always full");
    if (path == QStringLiteral("/dev/full")) // what Qt says of appending to a device
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("sequential")));
    QTest::ignoreMessage(type, QRegularExpression(message));
    RecordFile::append(path, QStringLiteral("row\n"));
}

MZ_TEST_GUILESS_MAIN(TestRecordFile)
#include "tst_recordfile.moc"
