#include "patterns/curvefilereader.h"
#include "testmain.h"

#include <QTemporaryDir>

namespace {

const QByteArray goodHead = QByteArrayLiteral("Title\nCurve\nAngle,Power\n");

} // namespace

/// Curve files as they come in from the world.
class TestCurveFileReader : public QObject
{
    Q_OBJECT

private slots:
    void oneFile_data();
    void oneFile();
    void whatIsNoFile_data();
    void whatIsNoFile();
    void badFileKeepsNoneFromBeingRead();
    void cancelKeepsNothing();
    void millionRows();

private:
    QString file(const QString &name, const QByteArray &bytes);

    QTemporaryDir m_folder;
};

QString TestCurveFileReader::file(const QString &name, const QByteArray &bytes)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("no test file");
    return file.fileName();
}

void TestCurveFileReader::oneFile_data()
{
    using Points = QVector<QPointF>;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QString>("told"); // part of what the operator is told, empty: nothing

    QTest::newRow("good") << goodHead + "0,-3.5\n90,12\n"
                          << true << Points{{0, -3.5}, {90, 12}} << QString();
    QTest::newRow("last line without its end")
        << goodHead + "0,1\n1,2" << true << Points{{0, 1}, {1, 2}} << QString();
    QTest::newRow("Windows line ends")
        << QByteArray("Title\r\nCurve\r\nAngle,Power\r\n0,1\r\n1,2\r\n") << true
        << Points{{0, 1}, {1, 2}} << QString();
    QTest::newRow("byte-order mark") << "\xef\xbb\xbf" + goodHead + "0,1\n"
                                     << true << Points{{0, 1}} << QString();
    QTest::newRow("numbers of every shape")
        << goodHead + "-1.5e1,+2\n 3 ,.5\n1e-05,-0\n"
        << true << Points{{-15, 2}, {3, 0.5}, {1e-05, -0.0}} << QString();
    QTest::newRow("header alone") << goodHead << true << Points{} << "holds no point";
    QTest::newRow("row of text") << goodHead + "0,1\nlower half\nzero,2\n"
                                 << true << Points{{0, 1}, {0, 2}} << "read as 0: 1.";
    QTest::newRow("row of one field") << goodHead + "0,1\nlower half\n"
                                      << true << Points{{0, 1}} << "fewer than two fields: 1.";
    QTest::newRow("NaN and infinities") << goodHead + "0,nan\n1,inf\n-inf,2\n3,4\n"
                                        << true << Points{{3, 4}} << "not finite: 3.";
    QTest::newRow("decimal commas") << goodHead + "0,5,-3,5\n"
                                    << true << Points{{0, 5}} << "Decimal commas";
    QTest::newRow("empty") << QByteArray() << false << Points{} << "The file is empty";
    QTest::newRow("header in lower case") << QByteArray("Title\nCurve\nangle,power\n0,1\n") << false
                                          << Points{} << "Incorrect file format";
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << false << Points{}
                             << "Incorrect file format";
}

void TestCurveFileReader::oneFile()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isRead);
    QFETCH(const QVector<QPointF>, points);
    QFETCH(const QString, told);

    CurveFileReader reader;
    QVERIFY(reader.read({file(QStringLiteral("one.csv"), bytes)}));
    QCOMPARE(reader.curves().size(), isRead ? 1 : 0);
    QCOMPARE(reader.failures().size(), isRead ? 0 : 1);
    if (isRead) {
        QCOMPARE(reader.curves().first().title, QStringLiteral("Title"));
        QCOMPARE(reader.curves().first().name, QStringLiteral("Curve"));
        QCOMPARE(reader.curves().first().points, points);
    }
    const QString all = (reader.failures() + reader.remarks()).join(QLatin1Char('\n'));
    QVERIFY2(told.isEmpty() ? all.isEmpty() : all.contains(told), qPrintable(all));
    QVERIFY(all.isEmpty() || all.startsWith(QStringLiteral("one.csv: ")));
}

void TestCurveFileReader::whatIsNoFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("told");
    QTest::newRow("folder") << m_folder.path() << "folder";
    QTest::newRow("missing") << m_folder.filePath(QStringLiteral("missing.csv")) << "opened";
    const QString locked = file(QStringLiteral("locked.csv"), goodHead);
    QFile::setPermissions(locked, {});
    // The superuser may read everything.
    if (!QFile(locked).open(QIODevice::ReadOnly))
        QTest::newRow("no permission") << locked << "opened";
}

void TestCurveFileReader::whatIsNoFile()
{
    QFETCH(const QString, path);
    QFETCH(const QString, told);
    CurveFileReader reader;
    QVERIFY(reader.read({path}));
    QVERIFY(reader.curves().isEmpty());
    QCOMPARE(reader.failures().size(), 1);
    QVERIFY2(reader.failures().first().contains(told), qPrintable(reader.failures().first()));
}

void TestCurveFileReader::badFileKeepsNoneFromBeingRead()
{
    CurveFileReader reader;
    QVERIFY(reader.read({file(QStringLiteral("a.csv"), goodHead + "0,1\n"), m_folder.path(),
                         file(QStringLiteral("b.csv"), goodHead + "0,2\n")}));
    QCOMPARE(reader.curves().size(), 2);
    QCOMPARE(reader.curves().last().points, QVector<QPointF>({{0, 2}}));
    QCOMPARE(reader.failures().size(), 1);
}

void TestCurveFileReader::cancelKeepsNothing()
{
    const QStringList files{file(QStringLiteral("a.csv"), goodHead + "0,1\n"),
                            file(QStringLiteral("b.csv"), goodHead + "0,2\n")};
    CurveFileReader reader;
    int last = -1;
    QVERIFY(reader.read(files, [&last](const QString &, int perMille) {
        const bool rises = perMille >= last;
        last = perMille;
        return rises && perMille <= 1000;
    }));
    QVERIFY(last >= 500);
    QVERIFY(
        !reader.read(files, [&files](const QString &file, int) { return file == files.first(); }));
    QVERIFY(reader.curves().isEmpty());
    QVERIFY(reader.failures().isEmpty());
}

void TestCurveFileReader::millionRows()
{
    constexpr int rows = 1000000;
    QByteArray bytes = goodHead;
    bytes.reserve(rows * 16);
    for (int i = 0; i < rows; ++i)
        bytes += QByteArray::number(i) + ",-12.25\n";
    CurveFileReader reader;
    int calls = 0;
    QVERIFY(reader.read({file(QStringLiteral("long.csv"), bytes)}, [&calls](const QString &, int) {
        ++calls;
        return true;
    }));
    QCOMPARE(reader.curves().first().points.size(), rows);
    QCOMPARE(reader.curves().first().points.last(), QPointF(rows - 1, -12.25));
    QVERIFY(reader.remarks().isEmpty());
    QVERIFY2(calls > 10, "a long file has to leave the operator time to cancel");
}

MZ_TEST_GUILESS_MAIN(TestCurveFileReader)
#include "tst_curvefilereader.moc"
