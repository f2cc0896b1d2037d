#include "messagelog.h"
#include "testmain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QDateTime at(const QString &text)
{
    return QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The one log file that was written below the current directory.
QString onlyLog()
{
    const QDir log(QStringLiteral("Log"));
    const QStringList days = log.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (days.size() != 1)
        return {};
    const QDir day(log.filePath(days.constFirst()));
    const QStringList hours = day.entryList(QDir::Files);
    return hours.size() == 1 ? day.filePath(hours.constFirst()) : QString();
}

} // namespace

/// What the operator sends us when something went wrong: the message log.
class TestMessageLog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void lineNamesLevelMessageAndTime();
    void fileFollowsTheHour();
    void messagesAreAppended();
    void unwritablePlaceCostsOnlyTheMessage_data();
    void unwritablePlaceCostsOnlyTheMessage();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestMessageLog::lineNamesLevelMessageAndTime()
{
    const QPair<int, const char *> levels[] = {
        {QtDebugMsg, "Debug: %1"},       {QtInfoMsg, "Info: %1"},   {QtWarningMsg, "Warning: %1"},
        {QtCriticalMsg, "Critical: %1"}, {QtFatalMsg, "Fatal: %1"}, {7, ""},
    };
    for (const auto &[level, start] : levels) {
        QCOMPARE(MessageLog::line(QtMsgType(level), QStringLiteral("%1"),
                                  at(QStringLiteral("2026-03-04 05:06:07.089"))),
                 QLatin1String(start) + QStringLiteral("(2026-03-04 05:06:07 089)"));
    }
}

void TestMessageLog::fileFollowsTheHour()
{
    QCOMPARE(MessageLog::file(at(QStringLiteral("2026-12-31 23:59:59.999"))),
             QStringLiteral("Log/2026-12-31/23.txt"));
    QCOMPARE(MessageLog::file(at(QStringLiteral("2027-01-01 00:00:00.000"))),
             QStringLiteral("Log/2027-01-01/00.txt"));
}

void TestMessageLog::messagesAreAppended()
{
    // Two messages around a full hour lie in two files; one more try is then in one.
    QString log;
    for (int attempt = 0; attempt < 2 && log.isEmpty(); ++attempt) {
        QDir(QStringLiteral("Log")).removeRecursively();
        MessageLog::handler(QtWarningMsg, {}, QStringLiteral("first"));
        MessageLog::handler(QtDebugMsg, {"file", 7, "function", "category"},
                            QString::fromUtf8("10.00µW"));
        log = onlyLog();
    }
    const QList<QByteArray> lines = contentOf(log).split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).startsWith("Warning: first(20") && lines.at(0).endsWith(")\r"),
             lines.at(0).constData());
    QVERIFY2(lines.at(1).startsWith("Debug: 10.00\xC2\xB5W(20") && lines.at(1).endsWith(")\r"),
             lines.at(1).constData());
    QVERIFY(lines.at(2).isEmpty());
}

void TestMessageLog::unwritablePlaceCostsOnlyTheMessage_data()
{
    QTest::addColumn<QString>("obstacle");

    QTest::newRow("no folder of the day can be made") << "day";
    QTest::newRow("the file of the hour cannot be opened") << "hour";
    QTest::newRow("the disk is full") << "full";
}

void TestMessageLog::unwritablePlaceCostsOnlyTheMessage()
{
    QFETCH(QString, obstacle);
    const QDateTime now = QDateTime::currentDateTime();
    const auto block = [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly);
    };
    if (obstacle == QStringLiteral("day")) {
        QVERIFY(QDir().mkdir(QStringLiteral("Log")) && block(MessageLog::folder(now.date())));
    } else if (obstacle == QStringLiteral("hour")) {
        QVERIFY(QDir().mkpath(MessageLog::file(now)));
    } else {
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("this system has no device that is always full");
        QVERIFY(QDir().mkpath(MessageLog::folder(now.date())));
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), MessageLog::file(now)));
        // What Qt says of appending to a device, which the real handler never hears.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("sequential")));
    }
    MessageLog::handler(QtCriticalMsg, {}, QStringLiteral("lost"));

    // With the obstacle out of the way the next message is written as if nothing had been.
    QFile::remove(MessageLog::folder(now.date()));
    QFile::remove(MessageLog::file(now));
    QDir().rmdir(MessageLog::file(now));
    MessageLog::handler(QtInfoMsg, {}, QStringLiteral("found"));
    QVERIFY(contentOf(onlyLog()).startsWith("Info: found("));
}

MZ_TEST_GUILESS_MAIN(TestMessageLog)
#include "tst_messagelog.moc"
