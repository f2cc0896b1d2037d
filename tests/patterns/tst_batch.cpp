#include "patterns/batch.h"
#include "patterns/figuretable.h"
#include "patterns/maskfile.h"
#include "testfiles.h"
#include "testmain.h"

#include <QBuffer>
#include <QProcess>
#include <QTemporaryDir>

/// The workbench without a window.
class TestBatch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        write(text("a.csv"), "T\nA/B\nAngle,Power\n-90,-3\n0,0.1\n90,-3.5\n");
        write(text("again.csv"), "T\nA/B\nAngle,Power\n-1,0\n0,1\n");
        write(text("case.csv"), "T\na/b\nAngle,Power\n-1,0\n0,1\n");
        write(text("round.msi"),
              "NAME R\nFREQUENCY 900\nGAIN 3 dBi\nHORIZONTAL 4\n0 0\n90 10\n180 20\n"
              "270 10\nVERTICAL 4\n0 1\n90 10\n180 20\n270 10\n");
        write(text("empty.csv"));
    }

    void commandLine_data()
    {
        QTest::addColumn<bool>("isRight");
        for (const char *right :
             {"--figures a.csv b.csv", "--export out a", "--report r.PDF a", "--report=r.html a",
              "--export-msi o.msi --horizontal A --vertical B a", "--language cn --figures a"})
            QTest::newRow(right) << true;
        for (const char *wrong :
             {"--figures", "--figures --export out a", "--export out", "--report r.txt a",
              "--report", "--export-msi o.msi a", "--export-msi o.msi --horizontal A a",
              "--figures --colour a", "--figures --vertical A a", "--language xx --figures a"})
            QTest::newRow(wrong) << false;
    }
    void commandLine()
    {
        QFETCH(const bool, isRight);
        const CommandLine line = readCommandLine(words("program") + words(QTest::currentDataTag()));
        QCOMPARE(line.wish, isRight ? CommandLine::Wish::Batch : CommandLine::Wish::Refuse);
        QVERIFY(line.isBatch);
        QVERIFY(!readCommandLine(words("program a.csv -- --figures")).isBatch);
    }

    void figures()
    {
        QCOMPARE(run("--figures a.csv empty.csv ./again.csv"), int(Batch::Failed));
        const QList<QByteArray> lines = m_results.split('\n');
        QCOMPARE(lines.size(), 4);
        // Nothing was measured opposite the peak, and a curve of three points has no lobes to show.
        QCOMPARE(
            lines.at(1),
            QByteArray("a.csv,A/B,,3,0.1,162.09677419354838,-3,-3.5,,3.6,162.09677419354838,,,"));
        QVERIFY(lines.at(2).startsWith("./again.csv,A/B (2),,2,1,,"));
        QVERIFY2(m_messages.startsWith(text("empty.csv: ")), qPrintable(m_messages));
        QCOMPARE(FigureTable::row(text("a,\"b"), text("c\"d"), text("9"), {}),
                 QByteArray("\"a,\"\"b\",\"c\"\"d\",9,0,,,,,,,,,,\n"));
    }

    void exportOfCurves()
    {
        write(text("out/A_B.csv"), "old");
        QCOMPARE(run("--export out a.csv again.csv case.csv round.msi"), int(Batch::Done));
        QCOMPARE(QDir(text("out")).entryList(QDir::Files).join(QLatin1Char('|')),
                 text("A_B (2).csv|a_b (3).csv|A_B.csv|R H.csv|R V.csv"));
        QVERIFY(contentOf(text("out/a_b (3).csv")).startsWith("T\na/b\n"));
        QCOMPARE(contentOf(text("out/A_B (2).csv")),
                 QByteArray("T\nA/B (2)\nAngle,Power\n-1,0\n0,1\n"));
        QCOMPARE(contentOf(text("out/R H.csv")),
                 QByteArray("R\nR H\nAngle,Power\n-90,-7\n0,3\n90,-7\n180,-17\n"));
    }

    void exportAsMsi()
    {
        const auto task = [](const char *vertical) {
            return BatchTask{BatchTask::Kind::ExportMsi, text("o.msi"), text("R H"),
                             text(vertical)};
        };
        const QStringList files{text("round.msi"), text("a.csv")};
        QCOMPARE(run(task("R V"), files), int(Batch::Done));
        const QByteArray written = contentOf(text("o.msi"));
        QVERIFY(written.startsWith("NAME R\nFREQUENCY 900\nGAIN 3 dBi\nHORIZONTAL 360\n0 0.000\n"));
        QVERIFY(written.contains("VERTICAL 360\n0 1.000\n"));
        QCOMPARE(run(task("A/B"), files), int(Batch::Failed));
        QVERIFY2(m_messages.contains(text("from 90° to -90°")), qPrintable(m_messages));
        QCOMPARE(run(task("nobody"), files), int(Batch::Failed));
        QVERIFY2(m_messages.contains(text("nobody")), qPrintable(m_messages));
        QCOMPARE(contentOf(text("o.msi")), written);
    }

    void masks_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("corners"); // 0: refused
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const QByteArray &bytes, int corners,
                            const char *told = "") {
            QTest::newRow(name) << bytes << corners << text(told);
        };
        row("any separator", "# limit\nAngle;Level\n-10;-3\n0, 0\r\n10\t-3\n20 -4", 4);
        row("step", "0 0\n5 0\n5 -20\n", 3);
        row("word within", "0 0\n5 x\n", 0, "Line 2: Not an angle");
        row("going back", "0 0\n5 0\n\n4 0\n", 0, "Line 4: The angles");
        row("one corner", "0 0\n", 0, "two rows");
    }
    void masks()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, corners);
        QFETCH(const QString, told);
        const Mask mask = readMask(bytes);
        QCOMPARE(mask.corners.size(), corners);
        QVERIFY2(told.isEmpty() ? mask.problem.isEmpty() : mask.problem.contains(told),
                 qPrintable(mask.problem));
    }

    /// Started as a script does it on a machine without a screen.
    void reportWithoutDisplay()
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(text(name));
        process.setProcessEnvironment(environment);
        process.start(text(MZ_BIN_DIR "/mz6218-patterns"),
                      words("--report r.html a.csv round.msi missing.csv"));
        QVERIFY2(process.waitForFinished(), qPrintable(process.errorString()));
        QCOMPARE(process.exitCode(), int(Batch::Failed));
        QVERIFY(process.readAllStandardError().startsWith("missing.csv: "));
        const QByteArray report = contentOf(text("r.html"));
        for (const char *part : {"A/B", "R H", "R V", "data:image/png", "</html>"})
            QVERIFY2(report.contains(part), part);
    }

private:
    int run(const BatchTask &task, const QStringList &files)
    {
        QBuffer results;
        results.open(QIODevice::WriteOnly);
        m_messages.clear();
        QTextStream messages(&m_messages);
        const int status = Batch::run(task, files, results, messages);
        m_results = results.data();
        return status;
    }
    int run(const char *arguments)
    {
        const CommandLine line = readCommandLine(words("program") + words(arguments));
        return run(line.task, line.files);
    }

    QTemporaryDir m_folder;
    QByteArray m_results;
    QString m_messages;
};

MZ_GUILESS_TEST(TestBatch)
#include "tst_batch.moc"
