#include "2d/data/curvetext.h"
#include "simulatorprocess.h"
#include "sweep/runfile.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>
#include <QStandardPaths>

#include <cmath>

namespace {

QVector<QPointF> curveIn(const QString &path)
{
    return CurveText::fromFile(contentOf(path)).points;
}

} // namespace

/// mz6218-cli sweep against the simulated chamber and against the real rotctld.
class TestSweepProgram : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void measuresFilesBack_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("options");
        QTest::newRow("horn") << "horn.csv"
                              << "--from -20 --to 20 --step 20";
        QTest::newRow("array, mirrored") << "array.csv"
                                         << "--from 10 --to -7 --step 9 --sense -1";
    }

    void measuresFilesBack()
    {
        QFETCH(QString, sample);
        QFETCH(QString, options);
        const QString file = QStringLiteral(MZ_SAMPLES "/") + sample;
        SimulatorProcess chamber;
        QVERIFY2(chamber.start({text("--pattern"), file, text("--rotator"), text("0"),
                                text("--rotator-speed"), text("3600"), text("--noise"), text("0")}),
                 qPrintable(chamber.errorText()));
        QCOMPARE(sweep(chamber, chamber.rotatorPort(), options + text(" --settle 20ms")), 0);

        const QVector<QPointF> wanted = curveIn(file);
        const QVector<QPointF> measured = curveIn(path("out.csv"));
        const bool isMirrored = options.contains(text("sense"));
        QCOMPARE(measured.size(), 3);
        for (const QPointF &point : measured) {
            const double angle = isMirrored ? -point.x() : point.x();
            const auto same = std::find_if(wanted.begin(), wanted.end(), [angle](QPointF other) {
                return std::abs(other.x() - angle) < 1e-6;
            });
            QVERIFY(same != wanted.end());
            QVERIFY(std::abs(same->y() - point.y()) <= 0.01);
        }
        // A complete run needs no device to write its curve again.
        QVERIFY(QFile::remove(path("out.csv")));
        chamber.stop();
        QCOMPARE(sweep(chamber, 1, text("--resume")), 0);
        QCOMPARE(curveIn(path("out.csv")), measured);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("hasRun"); // of -20 to 20 by 20, one point of it
        QTest::addColumn<int>("status");
        QTest::newRow("out of limits")
            << "--from -180 --to 180 --step 9 --zero-at 300" << false << 2;
        QTest::newRow("no step") << "--from 0 --to 90 --step 0" << false << 2;
        QTest::newRow("no end") << "--from 0 --step 10" << false << 2;
        QTest::newRow("run exists") << "--from -20 --to 20 --step 20" << true << 2;
        QTest::newRow("other plan") << "--from -20 --to 20 --step 10 --resume" << true << 2;
        QTest::newRow("other averaging") << "--from -20 --to 20 --step 20 --resume" << true << 2;
        QTest::newRow("no folder") << "--from 0 --to 9 --step 1 --out /nowhere/x.csv" << false << 4;
    }

    void refuses()
    {
        QFETCH(QString, options);
        QFETCH(bool, hasRun);
        QByteArray run;
        if (hasRun) {
            RunHeader header;
            header.version = text("1.0.0");
            header.averaging = 7;
            header.plan = {-20.0, 20.0, 20.0, 0.0, 1};
            run = RunText::header(header) + "2026-11-21T20:03:02.117+01:00,-20,-20,-20,-3,0.1,3,\n";
            write(path("out.run.csv"), run);
        }
        SimulatorProcess chamber("--rotator 0 --noise 0");
        QTEST(sweep(chamber, chamber.rotatorPort(), options), "status");
        QVERIFY(!QFile::exists(path("out.csv")));
        QCOMPARE(contentOf(path("out.run.csv")), hasRun ? run : "cannot be read");
    }

    void tableRefusesBeyondLimitsThatItDoesNotTell()
    {
        SimulatorProcess chamber("--rotator 0 --noise 0 --rotator-fault refuse,only=\\dump_state");
        QCOMPARE(sweep(chamber, chamber.rotatorPort(), text("--from 500 --to 510 --step 9")), 2);
    }

    void tellsAbsence()
    {
        SimulatorProcess chamber("");
        QCOMPARE(sweep(chamber, 1, text("--from 0 --to 9 --step 1")), 3);
    }

    void turnsRealServer()
    {
        const QString server = QStandardPaths::findExecutable(text("rotctld"));
        if (server.isEmpty())
            QSKIP("rotctld is not installed (libhamlib-utils)");
        SimulatorProcess meter("--noise 0");
        QProcess rotator;
        const quint16 port = quint16(20000 + QCoreApplication::applicationPid() % 20000);
        rotator.start(server, {text("-m"), text("1"), text("-T"), text("127.0.0.1"), text("-t"),
                               QString::number(port)});
        QVERIFY(rotator.waitForStarted());
        const QString plan = text("--from -2 --to 2 --step 2 --settle 0 --tolerance 0.1");
        QTRY_COMPARE(sweep(meter, port, plan + text(" --overwrite")), 0);
        QCOMPARE(curveIn(path("out.csv")).size(), 3);
        QCOMPARE(
            sweep(meter, port, text("--from -180 --to 180 --step 9 --zero-at 300 --overwrite")), 2);
        rotator.kill();
        rotator.waitForFinished();
    }

private:
    QString path(const char *name) const { return m_folder->filePath(text(name)); }

    int sweep(SimulatorProcess &meter, quint16 rotatorPort, const QString &options) const
    {
        QStringList arguments{
            text("--lan"), text("127.0.0.1:%1").arg(meter.port() ? meter.port() : 1), text("sweep"),
            text("--rotator"), text("127.0.0.1:%1").arg(rotatorPort)};
        arguments += options.split(QLatin1Char(' '));
        if (!options.contains(text("--out")))
            arguments << text("--out") << path("out.csv");
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-cli"), arguments);
        return program.waitForFinished(60000) ? program.exitCode() : -1;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

MZ_GUILESS_TEST(TestSweepProgram)
#include "tst_sweepprogram.moc"
