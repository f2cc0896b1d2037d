#include "2d/form/listchart.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "patterns/lossactions.h"
#include "patterns/measure/measuredialog.h"
#include "patterns/measure/measurestrip.h"
#include "patterns/measuremenu.h"
#include "patterns/openactions.h"
#include "patterns/patternwindow.h"
#include "patterns/saveactions.h"
#include "patterns/savequestion.h"
#include "patterns/workbench.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include <functional>

using namespace ChartProbe;

namespace {

QString samplePath(const char *name)
{
    return QDir(QStringLiteral(MZ_SAMPLES)).filePath(text(name));
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(class TestPatternWindow &)>)

/// The workbench's window with real files.
class TestPatternWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_workbench = std::make_unique<Workbench>(file("settings.json"));
        m_window = m_workbench->openWindow();
        m_window->resize(1280, 760);
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
    }

    void cleanup()
    {
        // Not closed: that would ask about curves that no file holds.
        const QWidgetList windows = QApplication::topLevelWidgets();
        QVector<PatternWindow *> ours;
        for (QWidget *window : windows)
            ours.append(qobject_cast<PatternWindow *>(window));
        qDeleteAll(ours);
        m_workbench.reset();
    }

    void samplesFillChartsAndTables()
    {
        const ModalScript noMessage({});
        m_window->opening().openFiles({samplePath("dipole.csv"), samplePath("patch.csv"),
                                       samplePath("horn.csv"), samplePath("array.csv")});
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
        QCOMPARE(m_workbench->recentFiles().first(), samplePath("array.csv"));
    }

    void badFilesAreToldTogether()
    {
        m_window->opening().openFiles({samplePath("horn.csv")});
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

    void curveComesBackFromItsFile()
    {
        m_window->opening().openFiles({samplePath("horn.csv")});
        curves().select(1);
        QVERIFY(m_window->saving().saveCurve(file("again.csv")));
        QCOMPARE(contentOf(file("again.csv")), contentOf(samplePath("horn.csv")));
        const QString place = file("no such folder/x.png");
        const QString message = told([&] { QVERIFY(!m_window->saving().saveCurve(place)); });
        QVERIFY2(message.contains(QDir::toNativeSeparators(place)), qPrintable(message));
        QCOMPARE(told([&] { QVERIFY(!m_window->saving().savePicture(place)); }), message);
        QCOMPARE(told([&] { QVERIFY(!m_window->saving().saveReport(place)); }), message);
    }

    void picturesShowBothCharts()
    {
        m_window->opening().openFiles({samplePath("horn.csv"), samplePath("patch.csv")});
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
        curves().setHidden(1, true);
        QVERIFY(m_window->saving().savePicture(file("x.png")));
        const QImage image(file("x.png"));
        QVERIFY(pixelsOf(image, image.rect(), curves().color(1), 10).isEmpty());
        // The names below a drawing are not cut off with its charts.
        QVERIFY(m_window->saving().savePicture(file("x.svg")));
        QVERIFY(!contentOf(file("x.svg")).trimmed().endsWith("</g>\n</svg>"));
    }

    void reportsHoldThePicture()
    {
        m_window->opening().openFiles({samplePath("horn.csv")});
        for (const auto &[name, start] :
             {std::pair("x.html", "<!DOCTYPE html>"), std::pair("x.pdf", "%PDF-")}) {
            QVERIFY(m_window->saving().saveReport(file(name)));
            QVERIFY(contentOf(file(name)).startsWith(start));
            QVERIFY(QFileInfo(file(name)).size() > 20000);
        }
        CurveRecord mask;
        mask.isMask = true;
        curves().add(text("M"), {{-90, 0}, {90, 0}}, mask);
        for (const bool shown : {true, false}) { // a mask that is hidden judges nothing
            curves().setHidden(2, !shown);
            QVERIFY(m_window->saving().saveReport(file("x.html")));
            QCOMPARE(contentOf(file("x.html")).contains("Mask limits"), shown);
        }
    }

    void lossIsAddedToACopy()
    {
        m_window->opening().openFiles({samplePath("patch.csv"), samplePath("horn.csv")});
        const QVector<QPointF> original = curves().points(1);
        QVERIFY(m_window->losses().loadTable(samplePath("loss-table.csv")));
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
        // 10 GHz lies beyond the table: the mark is in the list, in the name, and so in every
        // picture.
        QVERIFY(curves().record(4).extrapolated);
        QVERIFY(curves().record(4).correction.contains(text("(extrapolated)")));
        QVERIFY(curves().name(4).contains(text("down-link (extrapolated)")));
        curves().select(3); // a second correction is added to the first
        action("actionApplyDownlink").trigger();
        QVERIFY(curves().record(5).correction.startsWith(text("up-link +1.00 dB; down-link")));
    }

    void lossNeedsAFrequency()
    {
        QVERIFY(m_window->losses().loadTable(samplePath("loss-table.csv")));
        const QString bad =
            told([&] { QVERIFY(!m_window->losses().loadTable(samplePath("horn.csv"))); });
        QVERIFY2(bad.contains(text("horn.csv")), qPrintable(bad));
        m_window->form().addCurve(text("unknown"), {{0, 1}, {1, 2}});
        curves().select(1);
        const QString missing = told([&] { action("actionApplyUplink").trigger(); });
        QVERIFY2(missing.contains(text("unknown")), qPrintable(missing));
        QCOMPARE(curves().ids().size(), 1);
    }

    void windowsShareRecentFiles()
    {
        const PatternWindow *other = m_workbench->openWindow();
        auto *menu = other->findChild<QMenu *>(text("menuRecent"));
        QVERIFY(!menu->isEnabled());
        m_window->opening().openFiles({samplePath("horn.csv")});
        QVERIFY(menu->isEnabled());
        menu->actions().first()->trigger();
        QCOMPARE(other->form().curves().ids().size(), 1);
        m_window->opening().openFiles({write("gone.csv", "T\nN\nAngle,Power\n0,1\n")});
        QVERIFY(QFile::remove(file("gone.csv")));
        const QString message = told([menu] { menu->actions().first()->trigger(); });
        QVERIFY2(message.contains(text("gone.csv")), qPrintable(message));
        QCOMPARE(Workbench(file("settings.json")).recentFiles(),
                 QStringList(samplePath("horn.csv")));
    }

    void actionsFollowTheSelection()
    {
        const auto verifyEnabled = [this](bool report, bool curve) {
            QCOMPARE(action("actionSaveReport").isEnabled(), report);
            QCOMPARE(action("actionSaveCurve").isEnabled(), curve);
        };
        verifyEnabled(false, false);
        m_window->opening().openFiles({samplePath("horn.csv")});
        verifyEnabled(true, false);
        curves().select(1);
        verifyEnabled(true, true);
        action("actionRemoveCurve").trigger();
        QVERIFY(curves().ids().isEmpty());
        verifyEnabled(false, false);
    }

    void viewActionsReachBothCharts()
    {
        m_window->opening().openFiles({samplePath("horn.csv")});
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

    void stepsAreUndone_data()
    {
        QTest::addColumn<std::function<void(TestPatternWindow &)>>("act");
        using Act = std::function<void(TestPatternWindow &)>;
        QTest::newRow("remove") << Act([](auto &test) { test.curves().remove(1); });
        QTest::newRow("rename") << Act([](auto &test) { test.curves().rename(1, text("Other")); });
        QTest::newRow("recolour") << Act([](auto &test) {
            test.m_window->form().cartesianChart().paths().value(1)->setColor(Qt::magenta);
        });
        QTest::newRow("frequency") << Act([](auto &test) {
            CurveRecord record = test.curves().record(1);
            record.frequency = text("1");
            test.curves().setRecord(1, record);
        });
        QTest::newRow("correct") << Act([](auto &test) {
            test.m_window->losses().loadTable(samplePath("loss-table.csv"));
            test.action("actionApplyUplink").trigger();
        });
        QTest::newRow("paste") << Act([](auto &test) {
            QApplication::clipboard()->setText(text("P\nAngle\tPower\n0\t-3,5\n"));
            test.action("actionPasteCurve").trigger();
        });
    }

    void stepsAreUndone()
    {
        QFETCH(const std::function<void(TestPatternWindow &)>, act);
        m_window->opening().openFiles({samplePath("patch.csv"), samplePath("horn.csv")});
        QVERIFY(!action("actionUndo").isEnabled());
        curves().select(1);
        const auto all = [this] {
            QStringList states;
            for (const int id : curves().ids()) {
                const CurveState state = curves().state(id);
                states.append(state.look.name + state.look.color.name() + state.record.frequency +
                              QString::number(state.points.size()));
            }
            return states;
        };
        const QStringList before = all();
        act(*this);
        const QStringList after = all();
        QVERIFY(after != before);
        const bool hides = curves().ids().contains(1);
        curves().setHidden(1, true); // is no step, and no step undoes it
        // A curve that came in between takes the number that was given back.
        m_window->opening().openFiles({samplePath("array.csv")});
        action("actionUndo").trigger();
        const QStringList undone = all();
        for (const QString &state : before)
            QVERIFY2(undone.contains(state), qPrintable(state));
        QVERIFY(!action("actionUndo").isEnabled());
        QCOMPARE(curves().isHidden(1), hides);
        QCOMPARE(names(m_window->form().cartesianChart()), names(m_window->form().polarChart()));
        action("actionRedo").trigger();
        QCOMPARE(all().size(), after.size() + 1);
    }

    void operationsMakeCurves_data()
    {
        QTest::addColumn<QString>("made"); // the name and the level at 90 degrees of each
        QTest::newRow("Comp&are") << "B minus A 2";
        QTest::newRow("A&verage") << "Average of 2 curves -7.886";
        QTest::newRow("&Envelope") << "Maximum of 2 curves -7|Minimum of 2 curves -9";
        QTest::newRow("&Mirror Curve") << "B, mirrored -1";
    }

    void operationsMakeCurves()
    {
        m_window->form().addCurve(text("A"), {{-90, -4}, {0, 0}, {90, -9}});
        m_window->form().addCurve(text("B"), {{-90, -1}, {0, 0}, {90, -7}});
        curves().select(2);
        const double highest = m_window->form().cartesianChart().shownRange().yMax;
        for (QAction *entry : m_window->findChild<QMenu *>(text("menuEdit"))->actions()) {
            if (entry->text() == text(QTest::currentDataTag()))
                entry->trigger();
        }
        QStringList made;
        for (const int id : curves().ids().mid(2)) {
            made.append(curves().name(id) + QLatin1Char(' ') +
                        QString::number(curves().points(id).last().y(), 'g', 4));
            QVERIFY(!curves().record(id).isSaved);
        }
        QTEST(made.join(QLatin1Char('|')), "made");
        action("actionUndo").trigger(); // which shows what was shown before
        QCOMPARE(m_window->form().cartesianChart().shownRange().yMax, highest);
    }

    void gainIsComparedWithAReference()
    {
        m_window->opening().openFiles({samplePath("patch.csv"), samplePath("horn.csv")});
        const QVector<QPointF> measured = curves().points(2);
        curves().select(2);
        const ModalScript script({[](QWidget *dialog) {
            const auto fields = dialog->findChildren<QDoubleSpinBox *>();
            fields.at(0)->setValue(15.0); // gain, level (proposed), loss, loss of the reference
            fields.at(2)->setValue(1.5);
            fields.at(3)->setValue(0.25);
            qobject_cast<QDialog *>(dialog)->accept();
        }});
        for (QAction *entry : m_window->findChild<QMenu *>(text("menuEdit"))->actions()) {
            if (entry->text().contains(text("Comparison")))
                entry->trigger();
        }
        QVERIFY(script.isDone());
        QCOMPARE(curves().points(2), measured);
        constexpr double peak = 8.195; // of the patch
        QVERIFY(qAbs(curves().points(3).at(7).y() - measured.at(7).y() - (15.0 - peak + 1.25)) <
                1e-9);
        const QString inputs = curves().record(3).notes.last();
        for (const QString &part :
             {curves().name(1), text("15 dBi"), text("1.5 dB"), text("0.25 dB")})
            QVERIFY2(inputs.contains(part), qPrintable(inputs));
    }

    void measuresInTheChamber()
    {
        SimulatorProcess chamber;
        QVERIFY(
            chamber.start({text("--pattern"), samplePath("horn.csv"), text("--rotator"), text("0"),
                           text("--rotator-speed"), text("60"), text("--noise"), text("0")}));
        m_workbench->rememberFolder(file("any.csv"));
        const QString address = text("127.0.0.1:%1");
        QVector<QDoubleSpinBox *> angles; // from, to, step, zero
        QVector<QPushButton *> buttons;   // check, start
        const auto open = [&] {
            m_window->measuring().measurePattern(address.arg(chamber.port()),
                                                 address.arg(chamber.rotatorPort()));
            auto *dialog = m_window->findChild<MeasureDialog *>();
            angles = dialog->findChildren<QDoubleSpinBox *>().toVector();
            buttons =
                dialog->findChild<QDialogButtonBox *>()->findChildren<QPushButton *>().toVector();
            for (QSpinBox *field : dialog->findChildren<QSpinBox *>())
                field->setValue(0); // settling, readings: as few as there may be
            QVERIFY(!buttons.at(1)->isEnabled());
            buttons.at(0)->click();
            QTRY_VERIFY(buttons.at(1)->isEnabled());
        };
        open();
        struct Plan
        {
            QVector<double> angles;
            bool possible;
        };
        for (const Plan &plan : {Plan{{-180, 181, 5, 0}, false}, Plan{{-180, 180, 5, 300}, false},
                                 Plan{{-180, 180, 5, 450}, true}, Plan{{0, 4, 2, 0}, true}}) {
            for (int i = 0; i < plan.angles.size(); ++i)
                angles.at(i)->setValue(plan.angles.at(i));
            QCOMPARE(buttons.at(1)->isEnabled(), plan.possible);
        }
        buttons.at(1)->click();
        const QVector<QPointF> expected{{0, 20.87}, {2, 20.71}, {4, 20.22}};
        QTRY_COMPARE_WITH_TIMEOUT(curves().points(1), expected, 20000);
        QTRY_VERIFY(!m_window->findChild<MeasureStrip *>());
        QVERIFY(curves().record(1).isSaved);
        QVERIFY(QFile::remove(curves().record(1).file)); // the run beside it is no room either
        open();
        angles.at(0)->setValue(90);
        angles.at(1)->setValue(0);
        buttons.at(1)->click();
        QVERIFY(!chamber.notes().contains(text("rotator P 90.0000 0.0000")));
        QTRY_VERIFY(chamber.notes().contains(text("rotator P 90.0000 0.0000")));
        m_window->close();
        QTRY_COMPARE(chamber.notes().filter(text("rotator")).last(), text("rotator S"));
    }

    void unsavedCurvesAreAskedFor()
    {
        m_window->opening().openFiles({samplePath("patch.csv")});
        QVERIFY(m_window->saving().mayClose());
        curves().rename(1, text("Mine"));
        QVERIFY(told([&] { QVERIFY(!m_window->saving().mayClose()); }).contains(text("Mine")));
        curves().select(1);
        QVERIFY(m_window->saving().saveCurve(file("mine.csv")));
        QVERIFY(m_window->saving().mayClose());
        curves().rename(1, text("Other"));
        emit m_window->form().polarChart().curveExported(1, file("other.csv"));
        QVERIFY(m_window->saving().mayClose());
        QCOMPARE(withSuffix(text("/a/b"), {{{}, {text("html")}}, {{}, {text("pdf")}}},
                            {{}, {text("pdf")}}),
                 std::optional(text("/a/b.pdf")));
        QVERIFY(withSuffix(text("/a/b.HTML"), {{{}, {text("html")}}}, {{}, {text("html")}}));
        QVERIFY(!withSuffix(text("/a/b.doc"), {{{}, {text("html")}}}, {{}, {text("html")}}));
    }

    void closedWindowIsGone()
    {
        const QPointer<PatternWindow> other = m_workbench->openWindow();
        other->opening().openFiles({samplePath("horn.csv")});
        other->close();
        QTRY_VERIFY(other.isNull());
        m_workbench->setLanguage(text("cn"));
        m_workbench->setLanguage(text("en"));
        QCOMPARE(curves().ids().size(), 0);
    }

    void signalKeepsThePlaceOfTheWindow()
    {
        if (QSysInfo::productType() == text("windows"))
            QSKIP("there are no signals on this system");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(text("XDG_CONFIG_HOME"), m_folder->path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-patterns"), {samplePath("horn.csv")});
        const WorkbenchSettings settings(file("mz6218/mz6218-patterns.json"));
        QTRY_VERIFY_WITH_TIMEOUT(!settings.recentFiles().isEmpty(), 30000);
        QVERIFY(settings.windowGeometry().isEmpty());
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(int(program.exitStatus()), int(QProcess::NormalExit));
        QVERIFY(!settings.windowGeometry().isEmpty());
    }

private:
    QString file(const char *name) const { return m_folder->filePath(text(name)); }
    QString write(const char *name, const QByteArray &bytes) const
    {
        return ::write(file(name), bytes);
    }

    QAction &action(const char *name) const { return *m_window->findChild<QAction *>(text(name)); }
    CurveSet &curves() const { return m_window->form().curves(); }
    /// Runs \a act, during which the window has to show one message, and returns that.
    template<typename Act>
    QString told(Act act) const
    {
        QString message;
        const ModalScript script({[&message](QWidget *box) {
            message = qobject_cast<QMessageBox *>(box)->text();
            box->close();
        }});
        act();
        return script.isDone() ? message : text("not one message");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
    PatternWindow *m_window = nullptr;
};

MZ_TEST(TestPatternWindow)

#include "tst_patternwindow.moc"
