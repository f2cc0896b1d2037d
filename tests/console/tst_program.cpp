#include "simulatorprocess.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString builtProgram = QStringLiteral(MZ_BIN_DIR "/mz6218");

QByteArray contentOfAll(const QString &folder)
{
    QByteArray all;
    const QDir dir(folder);
    for (const QString &name : dir.entryList(QDir::Files))
        all += contentOf(dir.filePath(name));
    return all;
}

void send(const char *signal, const QProcess &program)
{
    QCOMPARE(QProcess::execute(QStringLiteral("kill"),
                               {QStringLiteral("-s"), QString::fromLatin1(signal),
                                QString::number(program.processId())}),
             0);
}

/// Ends \a program by \a signal, which it has to take like the closing of its window.
void endIt(QProcess &program, const char *signal)
{
    send(signal, program);
    QVERIFY(program.waitForFinished());
    QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
    QCOMPARE(program.exitCode(), 0);
}

/// The console in a folder of its own.
class CopiedProgram : public QProcess
{
public:
    CopiedProgram()
    {
        setStandardErrorFile(QProcess::nullDevice());
        setWorkingDirectory(QDir::rootPath());
        QFile::copy(builtProgram, path(QStringLiteral("mz6218")));
    }

    void startConsole(const QStringList &arguments)
    {
        start(QStringLiteral("nohup"), QStringList(path(QStringLiteral("mz6218"))) + arguments);
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QByteArray log() const
    {
        const QDir days(path(QStringLiteral("Log")));
        QByteArray all;
        for (const QString &day : days.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            all += contentOfAll(days.filePath(day));
        return all;
    }

    QByteArray settings() const { return contentOf(path(QStringLiteral("config.ini"))); }

private:
    QTemporaryDir m_folder{QDir::tempPath() + QString::fromUtf8("/功率 计 XXXXXX")};
};

} // namespace

/// The console as it is started: from the command line, in a folder of its own.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void commandLineAnswers_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("platform");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");

        const QString offscreen = QStringLiteral("offscreen");
        const QString none; // and so no display either
        QTest::newRow("help") << QStringList(QStringLiteral("--help")) << "xcb" << 0 << "--lan HOST"
                              << "";
        QTest::newRow("bad option behind Qt's own, without a display")
            << QStringList{QStringLiteral("-style"), QStringLiteral("fusion"),
                           QStringLiteral("--lann")}
            << none << 1 << ""
            << "'lann'";
        QTest::newRow("no display") << QStringList() << none << 1 << ""
                                    << "There is no display";
        QTest::newRow("display that does not answer") << QStringList() << "xcb" << 1 << ""
                                                      << "No window can be opened";
    }

    void commandLineAnswers()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, platform);
        QFETCH(QString, out);
        QFETCH(QString, err);
        const QTemporaryDir folder;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        program.start(builtProgram, arguments);
        QVERIFY(program.waitForFinished());
        QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
        QTEST(program.exitCode(), "status");
        QVERIFY(program.readAllStandardOutput().contains(out.toLatin1()));
        QVERIFY(program.readAllStandardError().contains(err.toLatin1()));
    }

    void measuresFromAnyFolder()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.startOnInstrumentPort());
        CopiedProgram program;
        program.startConsole({QStringLiteral("--lan"), simulator.address(),
                              QStringLiteral("--language"), QStringLiteral("cn")});
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 1, 30000));
        send("HUP", program); // nohup keeps that from it
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 3, 30000));
        QTRY_COMPARE(contentOfAll(program.path(QStringLiteral("DataRecord"))).count('\n'), 2);
        const QByteArray log = program.log();
        QVERIFY(log.contains("send cmd: \"GET?\\n\"") && log.contains("\r\n"));
        QVERIFY(!log.contains("Warning: "));
        QCOMPARE(int(program.state()), int(QProcess::Running));
        endIt(program, "INT");
        QVERIFY(program.settings().contains("IP:" + simulator.address().toLatin1() + '\n'));
    }

    void signalClosesAnErrorBoxToo()
    {
        CopiedProgram program;
        program.startConsole({QStringLiteral("--serial"), QStringLiteral("/dev/no-port")});
        QTRY_VERIFY_WITH_TIMEOUT(program.log().contains("Open port"), 30000);
        endIt(program, "TERM");
        QCOMPARE(program.settings().count('\n'), 5);
    }
};

MZ_GUILESS_TEST(TestProgram)
#include "tst_program.moc"
