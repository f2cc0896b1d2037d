#include "messagelog.h"
#include "storage/consolesettings.h"
#include "storage/filewriting.h"
#include "storage/recordfile.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDateTime>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <csignal>

#include <sys/resource.h>
#endif

namespace {

/// The one log file that was written below the current directory.
QString onlyLog()
{
    QDirIterator files(QStringLiteral("Log"), QDir::Files, QDirIterator::Subdirectories);
    const QString first = files.hasNext() ? files.next() : QString();
    return files.hasNext() ? QString() : first;
}

} // namespace

/// What the programs leave on the disk, whatever is in the way: records, log and settings.
class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }

    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void recordRowHoldsTheShownValues()
    {
        QCOMPARE(RecordFile::path(QString::fromUtf8("/测量 数据/%2"), QDate(2026, 3, 4)),
                 QString::fromUtf8("/测量 数据/%2/2026-03-04.csv"));
        const auto row = [](double frequency, double offset, const char *power,
                            const char *converted) {
            const QDateTime when(QDate(2026, 3, 4), QTime(5, 6, 59));
            return RecordFile::row(when, frequency, offset, QLatin1String(power),
                                   QLatin1String(converted));
        };
        // Six digits of the frequency; no reading; place markers of the instrument's own.
        QCOMPARE(row(2450.123456, -3.25, "-20.00", "10.00uW"),
                 QStringLiteral("2026/03/04 05:06,2450.12,-3.25,-20.00dBm,10.00uW\n"));
        QCOMPARE(row(40000000, 100, "100.00", ""),
                 QStringLiteral("2026/03/04 05:06,4e+07,100,100.00dBm,\n"));
        QCOMPARE(row(1, 0, "%5", "%1 %4"), QStringLiteral("2026/03/04 05:06,1,0,%5dBm,%1 %4\n"));
    }

    void recordHeaderStandsOnceAtTheTop()
    {
        const QString path = QString::fromUtf8("测量 1.csv");
        RecordFile::append(path, QStringLiteral("row 1\n"));
        RecordFile::append(path, QString::fromUtf8("row µ\n"));
        QCOMPARE(contentOf(path), QByteArray("Time,Frequency(GHz),Offset(dB),Power(dBm),"
                                             "Converted Power\nrow 1\nrow \xC2\xB5\n"));
        // A file of another program, and one whose last row was torn by a loss of power.
        const QString foreign = QStringLiteral("2.csv");
        for (const char *before : {"x\n", "x"}) {
            write(foreign, before);
            RecordFile::append(foreign, QStringLiteral("row 1\n"));
            QCOMPARE(contentOf(foreign), QByteArray("x\nrow 1\n"));
        }
    }

    void logLineNamesLevelMessageAndTime()
    {
        const QPair<int, const char *> levels[] = {
            {QtDebugMsg, "Debug: %1"},     {QtInfoMsg, "Info: %1"},
            {QtWarningMsg, "Warning: %1"}, {QtCriticalMsg, "Critical: %1"},
            {QtFatalMsg, "Fatal: %1"},     {7, ""},
        };
        const QDateTime when(QDate(2026, 3, 4), QTime(23, 6, 7, 89));
        for (const auto &[level, start] : levels) {
            QCOMPARE(MessageLog::line(QtMsgType(level), QStringLiteral("%1"), when),
                     QLatin1String(start) + QStringLiteral("(2026-03-04 23:06:07 089)"));
        }
        QCOMPARE(MessageLog::file(when), QStringLiteral("Log/2026-03-04/23.txt"));
    }

    void logMessagesAreAppended()
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
        const QRegularExpression lines(QString::fromUtf8(
            "^Warning: first\\(20[^\n]*\\)\r\nDebug: 10.00µW\\(20[^\n]*\\)\r\n$"));
        const QString content = QString::fromUtf8(contentOf(log));
        QVERIFY2(lines.match(content).hasMatch(), qPrintable(content));
    }

    void oldLogsGoWithoutWhatIsNotTheirs()
    {
        for (const char *path : {"Log/2026-03-01/10.txt", "Log/2026-03-02/10.txt",
                                 "Log/2026-03-02/notes.md", "Log/2026-03-03/10.txt"}) {
            const QString file = QLatin1String(path);
            write(file, "x");
        }
        MessageLog::removeOld(QDate(2026, 3, 4), 0); // all are to be kept
        QVERIFY(QFile::exists(QStringLiteral("Log/2026-03-01/10.txt")));
        MessageLog::removeOld(QDate(2026, 3, 4), 2);
        QStringList left;
        QDirIterator files(QStringLiteral("Log"), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            left.append(files.next());
        left.sort();
        QCOMPARE(left, (QStringList{QStringLiteral("Log/2026-03-02/notes.md"),
                                    QStringLiteral("Log/2026-03-03/10.txt")}));
        QVERIFY(!QDir(QStringLiteral("Log/2026-03-01")).exists());
    }

    void anySettingsAreRead_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("meaning"); // language|address|folder|interval|period
        const auto row = [](const char *name, const QByteArray &text, const char *meaning) {
            QTest::newRow(name) << text << QString::fromUtf8(meaning);
        };

        row("Chinese, folder with blanks",
            "language:cn\nIP:\nPath:/\xE6\xB5\x8B \xE6\x95\xB0/ x \nInterval:30\nPeriod:9\n",
            "cn||/测 数/ x |30|9");
        row("saved by a Windows editor",
            "\xEF\xBB\xBFlanguage:en\r\nIP:10.0.0.2\r\nPath:C:/x\r\nInterval:5\r\nPeriod:3\r\n",
            "en|10.0.0.2|C:/x|5|3");
        row("empty file", "", "cn|||0|10");
        row("en anywhere in the first line", "a sentence\n\n\n\n\n", "en|||0|10");
        row("numbers that are none", "cn\nIP:x\nPath:y\nInterval:soon\nPeriod:long\n",
            "cn|x|y|0|0");
        row("bare interval counts, bare period does not", "en\n\n\n7\n7\n", "en|||7|10");
        row("period beyond the chart", "en\n\n\nInterval:99\nPeriod:15\n", "en|||99|10");
        row("number beyond any range", "en\n\n\nInterval:99999999999\nPeriod:0\n", "en|||0|0");
        row("garbage", QByteArray("\xFF\xFE\x80\x01", 4) + QByteArray(5000, '\n'), "cn|||0|10");
    }

    void anySettingsAreRead()
    {
        QFETCH(QByteArray, text);
        const ConsoleSettings settings = ConsoleSettings::parse(text);
        const QStringList meaning{settings.language, settings.ipAddress, settings.recordFolder,
                                  QString::number(settings.interval),
                                  QString::number(settings.period)};
        QTEST(meaning.join(QLatin1Char('|')), "meaning");
    }

    void settingsWrittenAreReadBack()
    {
        const QString path = QStringLiteral("config.ini");
        // A longer file of before must not show behind the new one.
        ConsoleSettings{QStringLiteral("cn"), QString(400, QLatin1Char('x')), {}, 1, 1}.save(path);
        const QString folder = QString::fromUtf8("/测量 %1/%5");
        const ConsoleSettings written{QStringLiteral("en"), QStringLiteral("%3"), folder, 12, 4};
        written.save(path);
        QCOMPARE(
            QString::fromUtf8(contentOf(path)),
            QString::fromUtf8("language:en\nIP:%3\nPath:/测量 %1/%5\nInterval:12\nPeriod:4\n"));
        const auto read = ConsoleSettings::load(path);
        QVERIFY(read);
        QCOMPARE(read->toText(), written.toText());
    }

    void tornLineIsTakenBack()
    {
#ifdef Q_OS_UNIX
        const QString path = write(QStringLiteral("1.csv"), "head\nrow\n");
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual{};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &usual), 0);
        const rlimit tight{12, usual.rlim_max}; // bytes: room for three more
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &tight), 0);
        const FileOutcome outcome = appendLine(path, "a longer row\n", {});
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &usual), 0);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(outcome.kind, FileOutcome::Kind::WriteFailed);
        QCOMPARE(contentOf(path), QByteArray("head\nrow\n"));
#else
        QSKIP("a process cannot be kept from writing here");
#endif
    }

    /// What becomes of a disk that fails is tried by the campaign of the files.
    void writesIntoDevicesAndRefusesFolders()
    {
        QCOMPARE(replaceFile(m_folder->path(), "text").kind, FileOutcome::Kind::OpenFailed);
#ifdef Q_OS_WIN
        QSKIP("there is no device that is always full");
#endif
        const QString device = QStringLiteral("/dev/full");
        QCOMPARE(replaceFile(device, "text").kind, FileOutcome::Kind::WriteFailed);
        QVERIFY(!QFileInfo(device).isFile());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

MZ_GUILESS_TEST(TestFiles)
#include "tst_files.moc"
