#include "2d/scene/curvedrag.h"
#include "2d/view/pathinfo.h"
#include "chartprobe.h"
#include "testmain.h"

#include <QChart>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>

using namespace ChartProbe;

namespace {

const Points somePoints{{0, -3.5}, {90, 12}};

/// Reads a status box and closes it.
ModalScript::Step read(const char *message)
{
    return [message](QWidget *box) {
        const auto *label = box->findChild<QLabel *>(text("reminderLabel"));
        QCOMPARE(label ? label->text() : box->windowTitle(), text(message));
        box->close();
    };
}

/// Chooses \a file in a file dialog, and takes it away at once if \a vanishes is set.
ModalScript::Step choose(const QString &file, bool vanishes = false)
{
    return [file, vanishes](QWidget *window) {
        auto *dialog = qobject_cast<QFileDialog *>(window);
        QVERIFY(dialog);
        dialog->setDirectory(QFileInfo(file).path());
        // Selecting the file would leave a text alone that has the focus already.
        dialog->findChild<QLineEdit *>()->setText(QFileInfo(file).fileName());
        static_cast<QDialog *>(dialog)->accept();
        if (vanishes)
            QFile::remove(file);
    };
}

} // namespace

/// Curves and pictures on their way into and out of a view.
class TestCurveExchange : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_folder = std::make_unique<QTemporaryDir>();
        m_view = std::make_unique<GraphicsBase>(0);
        m_view->resize(600, 400);
        m_view->chart()->setTitle(text("T"));
        QGuiApplication::clipboard()->clear();
    }

    void givesAwaySelectedCurve()
    {
        m_view->addCurve(text("other"), {{1, 1}});
        selectCurve("F1");
        runWith("copySlot", {});
        QCOMPARE(QGuiApplication::clipboard()->text(), text("F1\nAngle,Power\n0,-3.5\n90,12\n"));
        const QString path = file("曲线.csv");
        const QSignalSpy exported(m_view.get(), &GraphicsBase::curveExported);
        runWith("exportGraphicsDataSlot", {choose(path), read("Export csv successfully")});
        QCOMPARE(exported.size(), 1);
        QCOMPARE(contentOf(path), QByteArray("T\nF1\nAngle,Power\n0,-3.5\n90,12\n"));
        QVERIFY(remembersFolder());
    }

    void needsSelectedCurve()
    {
        m_view->addCurve(text("F1"), somePoints);
        for (const char *slot : {"copySlot", "exportGraphicsDataSlot"}) {
            QTest::ignoreMessage(QtWarningMsg, "No selected graphics can be exported");
            runWith(slot, {read("No selected graphics can be exported")});
        }
        QVERIFY(QGuiApplication::clipboard()->text().isEmpty());
    }

    void importsCurve()
    {
        m_view->addCurve(text("there already"), {{1, 1}});
        const QString path = write("F1.csv", "\xEF\xBB\xBFT\r\nF1\r\nAngle,Power\r\n"
                                             "0,-3.5\r\nx\r\n1,nan\r\n90,12");
        runWith("importGraphicsDataSlot", {choose(path)});
        QCOMPARE(names(*m_view), text("there already|F1"));
        QCOMPARE(m_view->paths()[2]->points(), somePoints);
        QCOMPARE(m_view->seriesName(), text("F1"));
        QVERIFY(remembersFolder());
    }

    void importRefusesFiles()
    {
        const QString gone = write("gone.csv", "T\nF1\nAngle,Power\n");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^open file error: .+")));
        runWith("importGraphicsDataSlot", {choose(gone, true)});
        QCOMPARE(m_view->defaultDirectory(), text("./"));
        const QString bad = write("bad.csv", "T\nF1\nangle,power\n0,-3.5\n");
        runWith("importGraphicsDataSlot", {choose(bad), read("Incorrect file format")});
        QVERIFY(m_view->paths().isEmpty());
    }

    void pastesText_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<Steps>("answers");
        QTest::addColumn<QString>("expected");
        const Steps none;
        const Steps cancelled{rename(nullptr)};
        QTest::newRow("a copied curve") << "F2\nAngle,Power\n0,-3.5\n90,12\n" << none << "F1|F2";
        QTest::newRow("two columns of a spreadsheet") << "Angle\tPower\n0\t-3,5\n90\t12\n"
                                                      << none << "F1|Pasted curve";
        QTest::newRow("name taken, cancelled") << "F1\nAngle,Power\n1,2\n" << cancelled << "F1";
    }

    /// By the clipboard and by drag and drop.
    void pastesText()
    {
        QFETCH(const QString, clipboard);
        QFETCH(const Steps, answers);
        QMimeData data;
        data.setText(clipboard);
        QGuiApplication::clipboard()->setText(clipboard);
        for (const bool dropped : {false, true}) {
            m_view->clearChart();
            m_view->addCurve(text("F1"), {{1, 1}});
            const ModalScript script(answers);
            if (answers.isEmpty())
                QTest::ignoreMessage(QtDebugMsg,
                                     QRegularExpression(text("^pointList = .*-3.5.*90")));
            if (dropped)
                dropOn(*m_view->viewport(), data);
            else
                run(*m_view, "pasteSlot");
            QVERIFY(script.isDone());
            QTEST(names(*m_view), "expected");
            if (answers.isEmpty())
                QCOMPARE(m_view->paths()[2]->points(), somePoints);
        }
    }

    void dragsIntoAnotherView()
    {
        for (const int kind : {0, 1}) {
            const std::unique_ptr<QMimeData> data(curveDragData(text("F1"), somePoints));
            const QImage picture = curveDragPixmap(kind, Qt::blue, somePoints).toImage();
            QVERIFY(picture != curveDragPixmap(kind, Qt::blue, {}).toImage());
            GraphicsBase target(kind);
            dropOn(*target.viewport(), *data);
            QCOMPARE(names(target), text("F1"));
            // A curve is not dropped on its own chart.
            emit target.paths()[1]->setAcceptDropsStatus(false);
            QVERIFY(!target.acceptDrops());
            emit target.paths()[1]->setAcceptDropsStatus(true);
            QVERIFY(target.acceptDrops());
            QCOMPARE(target.paths()[1]->points(), somePoints);
        }
    }

    void picturesAlwaysSucceed()
    {
        const auto exportTo = [this](const QString &path) {
            runWith("exportGraphicsImageSlot", {choose(path), read("Export image successfully")});
        };
        selectCurve("F1"); // what shows a selection belongs to no picture
        exportTo(file("chart.png"));
        run(*m_view, "clearSelectionSlot");
        QCOMPARE(QImage(file("chart.png")).convertToFormat(QImage::Format_RGB32),
                 m_view->grab()
                     .scaled(800, 800, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                     .toImage()
                     .convertToFormat(QImage::Format_RGB32));
        QCOMPARE(QImage(file("chart.png")).size(), QSize(800, 533));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^the image was not saved: ")));
        exportTo(file("chart.nonsense"));
        QVERIFY(!QFile::exists(file("chart.nonsense")));
    }

    void cleanup() { m_view.reset(); }

private:
    /// Runs a slot of the view, which has to ask what \a steps answer.
    void runWith(const char *slot, const Steps &steps)
    {
        const ModalScript script(steps);
        run(*m_view, slot);
        QVERIFY(script.isDone());
    }
    QString file(const char *name) const { return m_folder->filePath(text(name)); }
    QString write(const char *name, const QByteArray &bytes) const
    {
        return ::write(file(name), bytes);
    }
    void selectCurve(const char *name)
    {
        m_view->addCurve(text(name), somePoints)->setSelected(true);
    }
    /// Whether the next file dialog starts where the files of this test are.
    bool remembersFolder() const
    {
        return QDir(m_view->defaultDirectory()) == QDir(m_folder->path());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<GraphicsBase> m_view;
};

MZ_TEST(TestCurveExchange)

#include "tst_curveexchange.moc"
