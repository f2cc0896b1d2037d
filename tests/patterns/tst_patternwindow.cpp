#include "2d/form/listchart.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "patterns/curveimport.h"
#include "patterns/lossactions.h"
#include "patterns/openactions.h"
#include "patterns/patternwindow.h"
#include "patterns/saveactions.h"
#include "patterns/workbench.h"
#include "testmain.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace ChartProbe;

namespace {

QString sample(const char *name)
{
    return QDir(QStringLiteral(MZ_SAMPLES)).filePath(text(name));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

/// The workbench's window with real files.
class TestPatternWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void samplesFillChartsAndTables();
    void badFilesAreToldTogether();
    void cancelLeavesTheChartsAsTheyWere();
    void curveComesBackFromItsFile();
    void picturesShowBothCharts();
    void reportsHoldThePicture();
    void lossIsAddedToACopy();
    void lossNeedsAFrequency();
    void windowsShareRecentFiles();
    void actionsFollowTheSelection();
    void viewActionsReachBothCharts();
    void closedWindowIsGone();
    void commandLineOfTheProgram_data();
    void commandLineOfTheProgram();
    void signalKeepsThePlaceOfTheWindow();

private:
    QString file(const char *name) const { return m_folder->filePath(text(name)); }
    QString write(const char *name, const QByteArray &bytes) const;
    QAction &action(const char *name) const { return *m_window->findChild<QAction *>(text(name)); }
    CurveSet &curves() const { return m_window->form().curves(); }
    /// Runs \a act, during which the window has to show one message, and returns that.
    template<typename Act>
    QString told(Act act) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
    PatternWindow *m_window = nullptr;
};

QString TestPatternWindow::write(const char *name, const QByteArray &bytes) const
{
    QFile out(file(name));
    const bool written = out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
    return written ? out.fileName() : QString();
}

template<typename Act>
QString TestPatternWindow::told(Act act) const
{
    QString message;
    const ModalScript script({[&message](QWidget *box) {
        message = qobject_cast<QMessageBox *>(box)->text();
        box->close();
    }});
    act();
    return script.isDone() ? message : text("not one message");
}

void TestPatternWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_workbench = std::make_unique<Workbench>(file("settings.json"));
    m_window = m_workbench->openWindow();
    m_window->resize(1280, 760);
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void TestPatternWindow::cleanup()
{
    // Not closed: that would ask about curves that no file holds.
    const QWidgetList windows = QApplication::topLevelWidgets();
    QVector<PatternWindow *> ours;
    for (QWidget *window : windows)
        ours.append(qobject_cast<PatternWindow *>(window));
    qDeleteAll(ours);
    m_workbench.reset();
}

void TestPatternWindow::samplesFillChartsAndTables()
{
    const ModalScript noMessage({});
    m_window->opening().openFiles(
        {sample("dipole.csv"), sample("patch.csv"), sample("horn.csv"), sample("array.csv")});
    QVERIFY(noMessage.isDone());
    QCOMPARE(curves().ids().size(), 4);
    QCOMPARE(m_window->form().cartesianChart().paths().size(), 4);
    const auto &parameters = *m_window->findChild<QTableWidget *>(text("paraTable"));
    QCOMPARE(parameters.rowCount(), 4);
    QCOMPARE(parameters.item(0, 0)->text(), text("900"));
    QCOMPARE(parameters.item(2, 0)->text(), text("10000"));
    QCOMPARE(parameters.item(3, 1)->text(), text("12.0410"));
    QVERIFY(qAbs(parameters.item(0, 2)->text().toDouble() - 78.0) < 0.3);
    QCOMPARE(m_workbench->recentFiles().size(), 4);
    QCOMPARE(m_workbench->recentFiles().first(), sample("array.csv"));
}

void TestPatternWindow::badFilesAreToldTogether()
{
    m_window->opening().openFiles({sample("horn.csv")});
    const QVector<QPointF> before = curves().points(1);
    const QStringList files{write("empty.csv", ""), m_folder->path(),
                            write("inf.csv", "T\nN\nAngle,Power\n0,inf\n"),
                            write("nameless.csv", "T\n\nAngle,Power\n0,1\n")};
    const QString message = told([&] { m_window->opening().openFiles(files); });
    for (const char *part : {"empty.csv", "folder", "inf.csv", "no point"})
        QVERIFY2(message.contains(text(part)), qPrintable(message));
    QCOMPARE(names(m_window->form().polarChart()).count(QLatin1Char('|')), 2);
    QCOMPARE(curves().points(1), before);
}

void TestPatternWindow::cancelLeavesTheChartsAsTheyWere()
{
    m_window->opening().openFiles({sample("horn.csv")});
    QByteArray bytes = QByteArrayLiteral("T\nLong\nAngle,Power\n");
    for (int i = 0; i < 600000; ++i)
        bytes += QByteArray::number(i) + ",-12.25\n";
    const QString longFile = write("long.csv", bytes);
    QTimer canceller;
    connect(&canceller, &QTimer::timeout, this, [this] {
        auto *progress = m_window->findChild<QProgressDialog *>();
        if (progress != nullptr && progress->value() > 400)
            progress->findChild<QPushButton *>()->click();
    });
    canceller.start(0);
    const QStringList files{sample("patch.csv"), longFile, sample("array.csv")};
    const CurveImport cancelled = importCurves(m_window->form(), files, 0);
    QVERIFY(cancelled.cancelled);
    QVERIFY(cancelled.opened.isEmpty());
    QCOMPARE(curves().ids(), QList<int>({1}));
    canceller.stop();
    m_window->opening().openFiles({longFile});
    QCOMPARE(curves().points(2).size(), 600000);
}

void TestPatternWindow::curveComesBackFromItsFile()
{
    m_window->opening().openFiles({sample("horn.csv")});
    curves().select(1);
    QVERIFY(m_window->saving().saveCurve(file("again.csv")));
    QCOMPARE(contentOf(file("again.csv")), contentOf(sample("horn.csv")));
    const QString place = file("no such folder/x.png");
    const QString message = told([&] { QVERIFY(!m_window->saving().saveCurve(place)); });
    QVERIFY2(message.contains(QDir::toNativeSeparators(place)), qPrintable(message));
    QCOMPARE(told([&] { QVERIFY(!m_window->saving().savePicture(place)); }), message);
    QCOMPARE(told([&] { QVERIFY(!m_window->saving().saveReport(place)); }), message);
}

void TestPatternWindow::picturesShowBothCharts()
{
    m_window->opening().openFiles({sample("horn.csv"), sample("patch.csv")});
    for (const auto &[name, start] :
         {std::pair("x.png", "\x89PNG"), std::pair("x.JPG", "\xff\xd8\xff")}) {
        QVERIFY(m_window->saving().savePicture(file(name)));
        QVERIFY(contentOf(file(name)).startsWith(start));
        const QImage image(file(name));
        const QRect left(0, 0, image.width() / 3, image.height());
        const QRect right(left.topRight(), image.rect().bottomRight());
        QVERIFY(!pixelsOf(image, left, curves().color(1), 10).isEmpty());
        QVERIFY(!pixelsOf(image, right, curves().color(1), 10).isEmpty());
    }
}

void TestPatternWindow::reportsHoldThePicture()
{
    m_window->opening().openFiles({sample("horn.csv")});
    for (const auto &[name, start] :
         {std::pair("x.html", "<!DOCTYPE html>"), std::pair("x.pdf", "%PDF-")}) {
        QVERIFY(m_window->saving().saveReport(file(name)));
        QVERIFY(contentOf(file(name)).startsWith(start));
        QVERIFY(QFileInfo(file(name)).size() > 20000);
    }
}

void TestPatternWindow::lossIsAddedToACopy()
{
    m_window->opening().openFiles({sample("patch.csv"), sample("horn.csv")});
    const QVector<QPointF> original = curves().points(1);
    QVERIFY(m_window->losses().loadTable(sample("loss-table.csv")));
    curves().select(1);
    action("actionApplyUplink").trigger();
    curves().select(2);
    action("actionApplyDownlink").trigger();
    QCOMPARE(curves().ids().size(), 4);
    QCOMPARE(curves().points(1), original);
    QVERIFY(qAbs(curves().points(3).at(90).y() - original.at(90).y() - 1.0) < 1e-12);
    QCOMPARE(curves().record(3).frequency, text("2450"));
    QCOMPARE(curves().record(3).correction, text("up-link +1.00 dB"));
    QVERIFY(!curves().record(3).extrapolated);
    // 10 GHz lies beyond the table: the mark is in the list, in the name, and so in every picture.
    QVERIFY(curves().record(4).extrapolated);
    QVERIFY(curves().record(4).correction.contains(text("(extrapolated)")));
    QVERIFY(curves().name(4).contains(text("down-link (extrapolated)")));
}

void TestPatternWindow::lossNeedsAFrequency()
{
    QVERIFY(m_window->losses().loadTable(sample("loss-table.csv")));
    const QString bad = told([&] { QVERIFY(!m_window->losses().loadTable(sample("horn.csv"))); });
    QVERIFY2(bad.contains(text("horn.csv")), qPrintable(bad));
    m_window->form().addCurve(text("unknown"), {{0, 1}, {1, 2}});
    curves().select(1);
    const QString missing = told([&] { action("actionApplyUplink").trigger(); });
    QVERIFY2(missing.contains(text("unknown")), qPrintable(missing));
    QCOMPARE(curves().ids().size(), 1);
}

void TestPatternWindow::windowsShareRecentFiles()
{
    const PatternWindow *other = m_workbench->openWindow();
    auto *menu = other->findChild<QMenu *>(text("menuRecent"));
    QVERIFY(!menu->isEnabled());
    m_window->opening().openFiles({sample("horn.csv")});
    QVERIFY(menu->isEnabled());
    menu->actions().first()->trigger();
    QCOMPARE(other->form().curves().ids().size(), 1);
    QCOMPARE(Workbench(file("settings.json")).recentFiles(), QStringList(sample("horn.csv")));
}

void TestPatternWindow::actionsFollowTheSelection()
{
    const auto verifyEnabled = [this](bool report, bool curve) {
        QCOMPARE(action("actionSaveReport").isEnabled(), report);
        QCOMPARE(action("actionSaveCurve").isEnabled(), curve);
    };
    verifyEnabled(false, false);
    m_window->opening().openFiles({sample("horn.csv")});
    verifyEnabled(true, false);
    curves().select(1);
    verifyEnabled(true, true);
    action("actionRemoveCurve").trigger();
    QVERIFY(curves().ids().isEmpty());
    verifyEnabled(false, false);
}

void TestPatternWindow::viewActionsReachBothCharts()
{
    m_window->opening().openFiles({sample("horn.csv")});
    for (const GraphicsBase *view :
         {&m_window->form().polarChart(), &m_window->form().cartesianChart()}) {
        const MyPathItem *item = view->paths().value(1)->pathItem();
        const QList<QPointF> before = item->drawnPoints();
        action("actionSymmetry").trigger();
        QVERIFY(item->drawnPoints() != before);
        action("actionUndoSymmetry").trigger();
        QCOMPARE(item->drawnPoints(), before);
        action("actionParameterLines").setChecked(true);
        QVERIFY(view->parameterLinesVisible());
    }
}

void TestPatternWindow::closedWindowIsGone()
{
    const QPointer<PatternWindow> other = m_workbench->openWindow();
    other->opening().openFiles({sample("horn.csv")});
    other->close();
    QTRY_VERIFY(other.isNull());
    m_workbench->setLanguage(text("cn"));
    m_workbench->setLanguage(text("en"));
    QCOMPARE(curves().ids().size(), 0);
}

void TestPatternWindow::commandLineOfTheProgram_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("output");
    const QByteArray version("mz6218-patterns " MZ_VERSION "\n");
    QTest::newRow("version") << "--version" << 0 << version;
    QTest::newRow("wrong") << "--wrong" << 1 << QByteArray("wrong");
    QTest::newRow("no display") << "x.csv" << 1 << QByteArray("There is no display");
}

void TestPatternWindow::commandLineOfTheProgram()
{
    QFETCH(const QString, argument);
    QFETCH(const QByteArray, output);
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(text(name));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-patterns"), {argument});
    QVERIFY(program.waitForFinished());
    QTEST(program.exitCode(), "code");
    const QByteArray printed = program.readAll();
    QVERIFY2(printed.contains(output), printed.constData());
}

void TestPatternWindow::signalKeepsThePlaceOfTheWindow()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("XDG_CONFIG_HOME"), m_folder->path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-patterns"), {sample("horn.csv")});
    const WorkbenchSettings settings(file("mz6218/mz6218-patterns.json"));
    QTRY_VERIFY_WITH_TIMEOUT(!settings.recentFiles().isEmpty(), 30000);
    QVERIFY(settings.windowGeometry().isEmpty());
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
    QVERIFY(!settings.windowGeometry().isEmpty());
}

MZ_TEST_MAIN(TestPatternWindow)

#include "tst_patternwindow.moc"
