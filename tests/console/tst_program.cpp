#include "simulatorprocess.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString builtProgram = QStringLiteral(MZ_BIN_DIR "/mz6218");

QByteArray contentOfAll(const QString &folder)
{
    QByteArray all;
    const QDir dir(folder);
    for (const QString &name : dir.entryList(QDir::Files)) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            all += file.readAll();
    }
    return all;
}

} // namespace

/// The console as it is started: from the command line, in a folder of its own.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void commandLineAnswers_data();
    void commandLineAnswers();
    void measuresFromAnyFolder();
};

void TestProgram::commandLineAnswers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");

    const QString offscreen = QStringLiteral("offscreen");
    // Also where there is no display.
    QTest::newRow("help") << QStringList(QStringLiteral("--help")) << "xcb" << 0 << "--lan HOST"
                          << "";
    QTest::newRow("version") << QStringList(QStringLiteral("--version")) << "xcb" << 0 << MZ_VERSION
                             << "";
    QTest::newRow("bad option") << QStringList(QStringLiteral("--lann")) << offscreen << 1 << ""
                                << "Usage:";
    QTest::newRow("bad language") << QStringList{QStringLiteral("--language"), QStringLiteral("de")}
                                  << offscreen << 1 << ""
                                  << "'de'";
}

void TestProgram::commandLineAnswers()
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
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder.path());
    program.start(builtProgram, arguments);
    QVERIFY(program.waitForFinished());
    QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
    QTEST(program.exitCode(), "status");
    QVERIFY(program.readAllStandardOutput().contains(out.toLatin1()));
    QVERIFY(program.readAllStandardError().contains(err.toLatin1()));
}

void TestProgram::measuresFromAnyFolder()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.startOnInstrumentPort());
    const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/功率 计 XXXXXX"));
    const QString copy = folder.filePath(QStringLiteral("mz6218"));
    QVERIFY(QFile::copy(builtProgram, copy));

    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    program.setWorkingDirectory(QDir::rootPath());
    program.start(copy, {QStringLiteral("--lan"), simulator.address(), QStringLiteral("--language"),
                         QStringLiteral("cn")});
    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 3, 30000));
    QTRY_VERIFY(contentOfAll(folder.filePath(QStringLiteral("DataRecord"))).count('\n') == 2);
    const QDir logs(folder.filePath(QStringLiteral("Log")));
    QByteArray log;
    for (const QString &day : logs.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        log += contentOfAll(logs.filePath(day));
    QVERIFY(log.contains("send cmd: \"GET?\\n\"") && log.contains("\r\n"));
    QVERIFY(!log.contains("Warning: "));
    QCOMPARE(int(program.state()), int(QProcess::Running));
    program.terminate();
    QVERIFY(program.waitForFinished());
}

MZ_TEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
