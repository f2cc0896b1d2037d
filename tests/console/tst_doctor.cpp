#include "Logic/serialaddress.h"
#include "doctor/diagnosis.h"
#include "simulatorprocess.h"
#include "storage/writecheck.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>

using Verdict = Finding::Verdict;
using Prepare = std::function<void(const QDir &)>;

Q_DECLARE_METATYPE(Finding)
Q_DECLARE_METATYPE(Verdict)
Q_DECLARE_METATYPE(Prepare)

namespace {

/// Every name below \a folder, with size and time of the last change.
QStringList treeOf(const QString &folder)
{
    QStringList content;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        each.next();
        // A folder's time changes by the trial where no file can be made without a name.
        const QFileInfo entry = each.fileInfo();
        const QDateTime time = entry.isDir() ? QDateTime() : entry.lastModified();
        content.append(QStringLiteral("%1 %2 %3")
                           .arg(each.filePath(), QString::number(entry.size()),
                                time.toString(Qt::ISODateWithMs)));
    }
    content.sort();
    return content;
}

PortFacts lockedPort(bool isAdapter, const char *group)
{
    PortFacts port;
    port.name = QStringLiteral("ttyUSB0");
    port.path = QStringLiteral("/dev/ttyUSB0");
    port.isAdapter = isAdapter;
    port.group = QLatin1String(group);
    port.mayBeOpened = false;
    return port;
}

} // namespace

/// The examination of the machine: what it finds, and how it says so.
class TestDoctor : public QObject
{
    Q_OBJECT

private slots:
    void judges_data()
    {
        QTest::addColumn<Finding>("finding");
        QTest::addColumn<Verdict>("verdict");
        QTest::addColumn<QString>("said");

        QTest::newRow("adapter that this user may not open")
            << Diagnosis::ofPort(lockedPort(true, "dialout")) << Verdict::Wrong << "-aG dialout";
        QTest::newRow("built-in port that nobody uses")
            << Diagnosis::ofPort(lockedPort(false, "dialout")) << Verdict::Note << "ttyUSB0";
        QTest::newRow("no Chinese font for an English console")
            << Diagnosis::ofChineseFont(false, false) << Verdict::Note << "boxes";
        QTest::newRow("silent host")
            << Diagnosis::ofAnswer({QStringLiteral("10.0.0.2"), false, {}, {}}) << Verdict::Wrong
            << "Another program may hold";
        QTest::newRow("silent port") << Diagnosis::ofAnswer({QStringLiteral("COM3"), true, {}, {}})
                                     << Verdict::Wrong << "baud rate";
    }

    void judges()
    {
        QFETCH(Finding, finding);
        QFETCH(QString, said);
        const QString line = Diagnosis::line(finding);
        QTEST(finding.verdict, "verdict");
        QVERIFY2(line.contains(said), qPrintable(line));
        QCOMPARE(line.contains(QStringLiteral("WRONG")), finding.verdict == Verdict::Wrong);
        QVERIFY2(line.contains(QStringLiteral("->")), "it says what to do");
        QCOMPARE(Diagnosis::isSound({finding, finding}), finding.verdict != Verdict::Wrong);
    }

    void tellsPortsFromHosts()
    {
        const auto isPort = [](const char *address) {
            return SerialAddress::read(text(address)).isPort({text("ttyS0"), text("cu.meter")});
        };
        for (const char *port : {"/dev/ttyUSB0:9600", "COM3", "cu.meter", "cu.meter:1200"})
            QVERIFY2(isPort(port), port);
        for (const char *host : {"192.168.1.20", "fe80::1", "compass"}) // not a port's beginning
            QVERIFY2(!isPort(host), host);
    }

    void seesWhatIsInTheWay_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::addColumn<bool>("blocked");

        QTest::newRow("file of today") << Prepare([](const QDir &dir) {
            QVERIFY(dir.mkpath(QStringLiteral("a/b")));
            write(dir.filePath(QStringLiteral("a/b/file")), "kept");
        }) << false;
        QTest::newRow("folder in the file's place")
            << Prepare([](const QDir &dir) { QVERIFY(dir.mkpath(QStringLiteral("a/b/file"))); })
            << true;
        QTest::newRow("file in a folder's place")
            << Prepare([](const QDir &dir) { write(dir.filePath(QStringLiteral("a"))); }) << true;
#ifdef Q_OS_UNIX
        QTest::newRow("link to a medium that was taken out") << Prepare([](const QDir &dir) {
            QVERIFY(QFile::link(QStringLiteral("/gone"), dir.filePath(QStringLiteral("a"))));
        }) << true;
#endif
    }

    void seesWhatIsInTheWay()
    {
        QFETCH(Prepare, prepare);
        const QTemporaryDir folder;
        prepare(QDir(folder.path()));
        const QStringList before = treeOf(folder.path());
        const auto obstacle = WriteCheck::obstacle(folder.filePath(QStringLiteral("a/b/file")));
        QTEST(obstacle.has_value(), "blocked");
        QCOMPARE(treeOf(folder.path()), before);
    }

    void examines_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::addColumn<QString>("address"); // "LAN" and "serial": those of the simulator
        QTest::addColumn<QString>("said");

        const Prepare nothing([](const QDir &) {});
        const QString none;
        const QString answer = QStringLiteral("OK     %1: answers as \"MZ6218");
#ifdef Q_OS_UNIX // elsewhere there always is one
        QTest::newRow("no display") << nothing << none << "note   There is no display";
#endif
        QTest::newRow("instrument in the network") << nothing << "LAN" << answer;
        QTest::newRow("instrument at a port") << nothing << "serial" << answer;
        QTest::newRow("nobody at the address") << nothing << "127.255.0.1"
                                               << "WRONG  %1: Failed to connect";
        QTest::newRow("chosen folder blocked") << Prepare([](const QDir &dir) {
            const QString name = QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")) +
                                 QStringLiteral(".csv");
            QVERIFY(dir.mkpath(QStringLiteral("chosen/") + name));
            const QString path = dir.filePath(QStringLiteral("chosen"));
            write(dir.filePath(QStringLiteral("config.ini")),
                  QStringLiteral("language:en\nIP:\nPath:%1\n").arg(path).toUtf8());
        }) << none << "chosen (";
        QTest::newRow("font that is none") << Prepare([](const QDir &dir) {
            QVERIFY(dir.mkpath(QStringLiteral("font")));
            write(dir.filePath(QStringLiteral("font/Mulinito-Regular.ttf")), "no font");
        }) << none << "Mulinito-Regular.ttf is no font";
    }

    void examines()
    {
        QFETCH(Prepare, prepare);
        QFETCH(QString, address);
        QFETCH(QString, said);
        if (!SimulatorProcess::hasSerialPort && address == QStringLiteral("serial"))
            QSKIP(SimulatorProcess::noSerialPort);
        SimulatorProcess simulator;
        QVERIFY(simulator.startOnInstrumentPort(
            words(SimulatorProcess::hasSerialPort ? "--serial" : "")));
        if (address == QStringLiteral("LAN"))
            address = simulator.address();
        else if (address == QStringLiteral("serial"))
            address = simulator.serialPath();

        const QTemporaryDir folder;
        const QString built = QStandardPaths::findExecutable(text("mz6218"), {text(MZ_BIN_DIR)});
        const QString copy = folder.filePath(QFileInfo(built).fileName());
        QVERIFY(QFile::copy(built, copy));
        prepare(QDir(folder.path()));
        const QStringList before = treeOf(folder.path());
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
        if (!address.isEmpty()) // half of the cases have a display that went away
            environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4242"));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder.path());
        QStringList arguments(QStringLiteral("--doctor"));
        if (!address.isEmpty())
            arguments.append(address);
        program.start(copy, arguments);
        QVERIFY(program.waitForFinished());
        const QString report = QString::fromUtf8(program.readAllStandardOutput());
        QCOMPARE(program.exitCode() != 0, report.contains(QStringLiteral("WRONG ")));
        if (said.contains(QStringLiteral("%1")))
            said = said.arg(address);
        QVERIFY2(report.contains(said), qPrintable(report));
        QCOMPARE(treeOf(folder.path()), before);
        // The system may let go of a program a little after its end.
        QTRY_VERIFY(QFile::remove(copy) || !QFile::exists(copy));
    }
};

MZ_GUILESS_TEST(TestDoctor)
#include "tst_doctor.moc"
