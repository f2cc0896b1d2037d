#include "2d/curvetext.h"
#include "2d/graphicsbase.h"
#include "2d/listchart.h"
#include "2d/mypathitem.h"
#include "2d/pathinfo.h"
#include "modaldialogs.h"
#include "patterns/curveimport.h"
#include "patterns/patternwindow.h"
#include "patterns/workbench.h"
#include "testmain.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

QString sample(const QString &name)
{
    return QDir(QStringLiteral(MZ_SAMPLES)).filePath(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// As long as it exists no file may grow beyond a few bytes, as on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
#ifdef Q_OS_UNIX
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit tight = m_before;
        tight.rlim_cur = 16;
        m_active = setrlimit(RLIMIT_FSIZE, &tight) == 0;
#endif
    }
    ~FullDisk()
    {
#ifdef Q_OS_UNIX
        setrlimit(RLIMIT_FSIZE, &m_before);
#endif
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

    bool isActive() const
    {
        return m_active;
    }

private:
#ifdef Q_OS_UNIX
    rlimit m_before{};
#endif
    bool m_active = false;
};

} // namespace

/// The workbench's window with real files.
class TestPatternWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void samplesFillChartsAndTables();
    void badFiles_data();
    void badFiles();
    void cancelLeavesTheChartsAsTheyWere();
    void curveComesBackFromItsFile();
    void failedSaveKeepsTheGoodFile_data();
    void failedSaveKeepsTheGoodFile();
    void picturesAndReports_data();
    void picturesAndReports();
    void lossIsAddedToACopy();
    void lossNeedsAFrequency();
    void curveTravelsBetweenWindows();
    void windowsShareRecentFiles();
    void actionsFollowTheSelection();
    void viewActionsReachBothCharts();
    void closedWindowIsGone();
    void commandLineOfTheProgram_data();
    void commandLineOfTheProgram();
    void signalKeepsThePlaceOfTheWindow();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    QAction &action(const char *name) const
    {
        return *m_window->findChild<QAction *>(QString::fromLatin1(name));
    }
    CurveSet &curves() const { return m_window->form().curves(); }
    QTableWidget &table(const char *name) const
    {
        return *m_window->findChild<QTableWidget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
    PatternWindow *m_window = nullptr;
    QStringList m_told; ///< what message boxes said
    std::unique_ptr<ModalDialogs> m_boxes;
};

void TestPatternWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_workbench = std::make_unique<Workbench>(file(QStringLiteral("settings.json")));
    m_window = m_workbench->openWindow();
    m_window->resize(1280, 760);
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_told.clear();
    m_boxes = std::make_unique<ModalDialogs>([this](QWidget &dialog) {
        if (const auto *box = qobject_cast<QMessageBox *>(&dialog)) {
            m_told.append(box->text());
            dialog.close();
        }
    });
}

void TestPatternWindow::cleanup()
{
    m_boxes.reset();
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_workbench.reset();
}

void TestPatternWindow::samplesFillChartsAndTables()
{
    m_window->openFiles({sample(QStringLiteral("dipole.csv")), sample(QStringLiteral("patch.csv")),
                         sample(QStringLiteral("horn.csv")), sample(QStringLiteral("array.csv"))});
    QVERIFY2(m_told.isEmpty(), qPrintable(m_told.join(QLatin1Char('\n'))));
    QCOMPARE(curves().ids().size(), 4);
    QCOMPARE(m_window->form().cartesianChart().paths().size(), 4);
    const QTableWidget &parameters = table("paraTable");
    QCOMPARE(parameters.rowCount(), 4);
    QCOMPARE(parameters.item(0, 0)->text(), QStringLiteral("900"));
    QCOMPARE(parameters.item(2, 0)->text(), QStringLiteral("10000"));
    QCOMPARE(parameters.item(3, 1)->text(), QStringLiteral("12.0410"));
    QVERIFY(qAbs(parameters.item(0, 2)->text().toDouble() - 78.0) < 0.3);
    QCOMPARE(table("supplementaryTable").rowCount(), 4);
    QCOMPARE(m_workbench->recentFiles().size(), 4);
    QCOMPARE(m_workbench->recentFiles().first(), sample(QStringLiteral("array.csv")));
}

void TestPatternWindow::badFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("curves"); // after one good curve was there
    QTest::addColumn<QString>("told");
    QTest::newRow("empty") << QByteArray() << 1 << "empty";
    QTest::newRow("header alone") << QByteArray("T\nN\nAngle,Power\n") << 2 << "no point";
    QTest::newRow("no curve") << QByteArray("just\nsome\ntext\n") << 1 << "Incorrect file format";
    QTest::newRow("NaN") << QByteArray("T\nN\nAngle,Power\n0,nan\n1,2\n") << 2 << "not finite";
    QTest::newRow("decimal commas")
        << QByteArray("T\nN\nAngle,Power\n0,5,-3,5\n") << 2 << "Decimal commas";
    QTest::newRow("row of text") << QByteArray("T\nN\nAngle,Power\nx,y\n1,2\n") << 2 << "read as 0";
    QTest::newRow("a missing name") << QByteArray("T\n\nAngle,Power\n0,1\n") << 2 << "";
    QTest::newRow("only infinities") << QByteArray("T\nN\nAngle,Power\n0,inf\n") << 2 << "no point";
}

void TestPatternWindow::badFiles()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, told);
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    const QVector<QPointF> before = curves().points(1);
    QFile out(file(QStringLiteral("bad.csv")));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    out.close();
    m_window->openFiles({out.fileName(), m_folder->path()});
    QTEST(curves().ids().size(), "curves");
    QCOMPARE(curves().points(1), before);
    QCOMPARE(m_told.size(), 1);
    QVERIFY2(m_told.first().contains(told), qPrintable(m_told.first()));
    QVERIFY2(m_told.first().contains(QStringLiteral("folder")), qPrintable(m_told.first()));
}

void TestPatternWindow::cancelLeavesTheChartsAsTheyWere()
{
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    QByteArray bytes = QByteArrayLiteral("T\nLong\nAngle,Power\n");
    for (int i = 0; i < 600000; ++i)
        bytes += QByteArray::number(i) + ",-12.25\n";
    QFile out(file(QStringLiteral("long.csv")));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    out.close();
    QTimer canceller;
    connect(&canceller, &QTimer::timeout, this, [this] {
        auto *progress = m_window->findChild<QProgressDialog *>();
        if (progress != nullptr && progress->value() > 400)
            progress->findChild<QPushButton *>()->click();
    });
    canceller.start(0);
    const QStringList files{sample(QStringLiteral("patch.csv")), out.fileName(),
                            sample(QStringLiteral("array.csv"))};
    const CurveImport cancelled = importCurves(m_window->form(), files, 0);
    QVERIFY(cancelled.cancelled);
    QVERIFY(cancelled.opened.isEmpty());
    QCOMPARE(curves().ids(), QList<int>({1}));
    canceller.stop();
    m_window->openFiles({out.fileName()});
    QCOMPARE(curves().points(2).size(), 600000);
}

void TestPatternWindow::curveComesBackFromItsFile()
{
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    curves().select(1);
    const QString path = file(QStringLiteral("again.csv"));
    QVERIFY(m_window->saveCurve(path));
    QCOMPARE(contentOf(path), contentOf(sample(QStringLiteral("horn.csv"))));
}

void TestPatternWindow::failedSaveKeepsTheGoodFile_data()
{
    QTest::addColumn<int>("what");
    QTest::newRow("curve") << 0;
    QTest::newRow("picture") << 1;
    QTest::newRow("report") << 2;
}

void TestPatternWindow::failedSaveKeepsTheGoodFile()
{
    QFETCH(const int, what);
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    curves().select(1);
    const auto save = [&](const QString &path) {
        return what == 0   ? m_window->saveCurve(path)
               : what == 1 ? m_window->savePicture(path)
                           : m_window->saveReport(path);
    };
    const QString good = file(what == 1 ? QStringLiteral("good.png") : QStringLiteral("good.csv"));
    QVERIFY(save(good));
    const QByteArray before = contentOf(good);
    QVERIFY(m_told.isEmpty());
    {
        const FullDisk full;
        if (!full.isActive())
            QSKIP("The size of files cannot be limited here.");
        QVERIFY(!save(good));
    }
    QCOMPARE(m_told.size(), 1);
    QVERIFY2(m_told.first().contains(QDir::toNativeSeparators(good)), qPrintable(m_told.first()));
    QCOMPARE(contentOf(good), before);
    QVERIFY(!save(file(QStringLiteral("no such folder/x.png"))));
    QCOMPARE(m_told.size(), 2);
    const QStringList left = QDir(m_folder->path()).entryList({QStringLiteral("good*")});
    QCOMPARE(left.size(), 1);
}

void TestPatternWindow::picturesAndReports_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("png") << "x.png" << QByteArray("\x89PNG");
    QTest::newRow("jpg") << "x.JPG" << QByteArray("\xff\xd8\xff");
    QTest::newRow("html") << "x.html" << QByteArray("<!DOCTYPE html>");
    QTest::newRow("pdf") << "x.pdf" << QByteArray("%PDF-");
}

void TestPatternWindow::picturesAndReports()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, start);
    m_window->openFiles({sample(QStringLiteral("horn.csv")), sample(QStringLiteral("patch.csv"))});
    const QString path = file(name);
    const bool isReport =
        name.endsWith(QStringLiteral("html")) || name.endsWith(QStringLiteral("pdf"));
    QVERIFY(isReport ? m_window->saveReport(path) : m_window->savePicture(path));
    const QByteArray bytes = contentOf(path);
    QVERIFY(bytes.startsWith(start));
    if (isReport) {
        QVERIFY(bytes.size() > 20000);
        return;
    }
    // The curves' colours are in the picture, on both sides of it.
    const QImage image = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB32);
    const QRgb color = curves().color(1).rgb();
    bool left = false;
    bool right = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAbs(qRed(pixel) - qRed(color)) + qAbs(qGreen(pixel) - qGreen(color)) +
                    qAbs(qBlue(pixel) - qBlue(color)) <
                30)
                (x < image.width() / 3 ? left : right) = true;
        }
    }
    QVERIFY(left && right);
}

void TestPatternWindow::lossIsAddedToACopy()
{
    m_window->openFiles({sample(QStringLiteral("patch.csv")), sample(QStringLiteral("horn.csv"))});
    const QVector<QPointF> original = curves().points(1);
    QVERIFY(m_window->loadLossTable(sample(QStringLiteral("loss-table.csv"))));
    curves().select(1);
    m_window->applyLoss(LossCorrection::Link::Up);
    curves().select(2);
    m_window->applyLoss(LossCorrection::Link::Down);
    QCOMPARE(curves().ids().size(), 4);
    QCOMPARE(curves().points(1), original);
    QVERIFY(qAbs(curves().points(3).at(90).y() - original.at(90).y() - 1.0) < 1e-12);
    QCOMPARE(curves().record(3).frequency, QStringLiteral("2450"));
    QCOMPARE(curves().record(3).correction, QStringLiteral("up-link +1.00 dB"));
    QVERIFY(!curves().record(3).extrapolated);
    // 10 GHz lies beyond the table: the mark is in the list, in the name, and so in every picture.
    QVERIFY(curves().record(4).extrapolated);
    QVERIFY(curves().record(4).correction.contains(QStringLiteral("(extrapolated)")));
    QVERIFY(curves().name(4).contains(QStringLiteral("(extrapolated)")));
    QVERIFY(m_told.isEmpty());
}

void TestPatternWindow::lossNeedsAFrequency()
{
    QVERIFY(m_window->loadLossTable(sample(QStringLiteral("loss-table.csv"))));
    QVERIFY(!m_window->loadLossTable(sample(QStringLiteral("horn.csv"))));
    QCOMPARE(m_told.size(), 1);
    m_window->form().addCurve(QStringLiteral("unknown"), {{0, 1}, {1, 2}});
    curves().select(1);
    QVERIFY(action("actionApplyUplink").isEnabled());
    m_window->applyLoss(LossCorrection::Link::Up);
    QCOMPARE(m_told.size(), 2);
    QVERIFY2(m_told.last().contains(QStringLiteral("unknown")), qPrintable(m_told.last()));
    QCOMPARE(curves().ids().size(), 1);
}

void TestPatternWindow::curveTravelsBetweenWindows()
{
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    curves().select(1);
    action("actionCopyCurve").trigger();
    PatternWindow *other = m_workbench->openWindow();
    other->findChild<QAction *>(QStringLiteral("actionPasteCurve"))->trigger();
    QCOMPARE(other->form().curves().name(1), curves().name(1));
    QCOMPARE(other->form().curves().points(1), curves().points(1));
    QVERIFY(other->form().polarChart().paths().size() == 1);
    QApplication::clipboard()->setText(QStringLiteral("no curve"));
    other->findChild<QAction *>(QStringLiteral("actionPasteCurve"))->trigger();
    QCOMPARE(other->form().curves().ids().size(), 1);
}

void TestPatternWindow::windowsShareRecentFiles()
{
    PatternWindow *other = m_workbench->openWindow();
    auto *menu = other->findChild<QMenu *>(QStringLiteral("menuRecent"));
    QVERIFY(!menu->isEnabled());
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    QVERIFY(menu->isEnabled());
    menu->actions().first()->trigger();
    QCOMPARE(other->form().curves().ids().size(), 1);
    QCOMPARE(Workbench(file(QStringLiteral("settings.json"))).recentFiles(),
             QStringList(sample(QStringLiteral("horn.csv"))));
}

void TestPatternWindow::actionsFollowTheSelection()
{
    QVERIFY(!action("actionSaveReport").isEnabled());
    QVERIFY(!action("actionSaveCurve").isEnabled());
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    QVERIFY(action("actionSaveReport").isEnabled());
    QVERIFY(!action("actionSaveCurve").isEnabled());
    curves().select(1);
    QVERIFY(action("actionSaveCurve").isEnabled());
    action("actionRemoveCurve").trigger();
    QVERIFY(curves().ids().isEmpty());
    QVERIFY(!action("actionSaveCurve").isEnabled());
    QVERIFY(!action("actionSaveReport").isEnabled());
}

void TestPatternWindow::viewActionsReachBothCharts()
{
    m_window->openFiles({sample(QStringLiteral("horn.csv"))});
    const QList<GraphicsBase *> views{&m_window->form().polarChart(),
                                      &m_window->form().cartesianChart()};
    const auto drawn = [](const GraphicsBase *view) {
        return view->paths().value(1)->pathItem()->drawnPoints();
    };
    QVector<QList<QPointF>> before;
    for (const GraphicsBase *view : views)
        before.append(drawn(view));
    action("actionSymmetry").trigger();
    for (int i = 0; i < views.size(); ++i)
        QVERIFY(drawn(views.at(i)) != before.at(i));
    QCOMPARE(curves().points(1).first(), QPointF(-180, -60));
    action("actionUndoSymmetry").trigger();
    for (int i = 0; i < views.size(); ++i)
        QCOMPARE(drawn(views.at(i)), before.at(i));
    action("actionParameterLines").setChecked(true);
    for (const GraphicsBase *view : views)
        QVERIFY(view->parameterLinesVisible());
}

void TestPatternWindow::closedWindowIsGone()
{
    const QPointer<PatternWindow> other = m_workbench->openWindow();
    other->openFiles({sample(QStringLiteral("horn.csv"))});
    other->close();
    QTRY_VERIFY(other.isNull());
    m_workbench->setLanguage(QStringLiteral("cn"));
    m_workbench->setLanguage(QStringLiteral("en"));
    QCOMPARE(curves().ids().size(), 0);
}

void TestPatternWindow::commandLineOfTheProgram_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("version") << QStringList(QStringLiteral("--version")) << 0
                             << QByteArray("mz6218-patterns " MZ_VERSION "\n");
    QTest::newRow("help") << QStringList(QStringLiteral("--help")) << 0 << QByteArray("[files...]");
    QTest::newRow("wrong") << QStringList(QStringLiteral("--wrong")) << 1 << QByteArray("wrong");
    QTest::newRow("no display") << QStringList() << 1 << QByteArray("There is no display");
}

void TestPatternWindow::commandLineOfTheProgram()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, output);
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(name));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-patterns"), arguments);
    QVERIFY(program.waitForFinished());
    QTEST(program.exitCode(), "code");
    const QByteArray printed = program.readAll();
    QVERIFY2(printed.contains(output), printed.constData());
}

void TestPatternWindow::signalKeepsThePlaceOfTheWindow()
{
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-patterns"),
                  {QStringLiteral(MZ_BIN_DIR "/samples/horn.csv")});
    const WorkbenchSettings settings(folder.filePath(QStringLiteral("mz6218/mz6218-patterns.json")));
    QTRY_VERIFY_WITH_TIMEOUT(!settings.recentFiles().isEmpty(), 30000);
    QVERIFY(settings.windowGeometry().isEmpty());
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
    QVERIFY(!settings.windowGeometry().isEmpty());
}

MZ_TEST_MAIN(TestPatternWindow)
#include "tst_patternwindow.moc"
