#include "2d/curvedrag.h"
#include "2d/graphicsbase.h"
#include "2d/pathinfo.h"
#include "modalscript.h"
#include "testmain.h"

#include <QChart>
#include <QClipboard>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>

using Points = QVector<QPointF>;
using Steps = QVector<ModalScript::Step>;

Q_DECLARE_METATYPE(Steps)

namespace {

const Points somePoints{{0, -3.5}, {90, 12}};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Reads a status box and closes it.
ModalScript::Step read(const char *message)
{
    return [message](QWidget *box) {
        const auto *label = box->findChild<QLabel *>(text("reminderLabel"));
        QCOMPARE(label ? label->text() : box->windowTitle(), text(message));
        box->close();
    };
}

/// Chooses \a file in a file dialog.
ModalScript::Step choose(const QString &file)
{
    return [file](QWidget *window) {
        auto *dialog = qobject_cast<QFileDialog *>(window);
        QVERIFY(dialog);
        dialog->setDirectory(QFileInfo(file).path());
        dialog->selectFile(QFileInfo(file).fileName());
        static_cast<QDialog *>(dialog)->accept();
    };
}

/// Expects the question for another name and answers with \a name, or Cancel when it is null.
ModalScript::Step rename(const char *name)
{
    return [name](QWidget *question) {
        QCOMPARE(question->windowTitle(), text("Warning"));
        QCOMPARE(question->findChild<QLabel *>(text("label_MainInfo"))->text(),
                 text("Existing frequency!\n Please modify the name"));
        auto *edit = question->findChild<QLineEdit *>(text("currentFreq"));
        QVERIFY(edit->isVisible());
        QCOMPARE(edit->text(), question->findChild<QLineEdit *>(text("rawFreq"))->text());
        if (name)
            edit->setText(text(name));
        question->findChild<QPushButton *>(text(name ? "okBtn" : "cancelBtn"))->click();
    };
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void dropOn(GraphicsBase &view, const QMimeData &data)
{
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &event);
    QVERIFY(event.isAccepted());
}

QStringList namesIn(const GraphicsBase &view)
{
    QStringList names;
    for (const PathInfo *path : view.paths())
        names.append(path->name());
    return names;
}

} // namespace

class TestCurveExchange : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void copiesSelectedCurve();
    void exportsSelectedCurve();
    void needsSelectedCurve();
    void logsCancelledDialogs();
    void tellsFailedExport();
    void importsCurve();
    void importRefusesFile();
    void importLogsUnreadableFile();
    void importAsksForFreeName_data();
    void importAsksForFreeName();
    void pastesText_data();
    void pastesText();
    void dragsIntoAnotherView();
    void picturesAlwaysSucceed();

private:
    void run(const char *slot) { QVERIFY(QMetaObject::invokeMethod(m_view.get(), slot)); }
    QString file(const char *name) const { return m_folder->filePath(text(name)); }
    void selectCurve(const char *name)
    {
        m_view->addCurve(text(name), somePoints)->setSelected(true);
        QVERIFY(m_view->selectedPath());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<GraphicsBase> m_view;
};

void TestCurveExchange::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestCurveExchange::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_view = std::make_unique<GraphicsBase>(0);
    m_view->resize(600, 400);
    m_view->chart()->setTitle(text("T"));
    QGuiApplication::clipboard()->clear();
}

void TestCurveExchange::cleanup()
{
    m_view.reset();
}

void TestCurveExchange::copiesSelectedCurve()
{
    m_view->addCurve(text("other"), {{1, 1}});
    selectCurve("F1");
    const ModalScript nothingToAnswer({});
    run("copySlot");
    QCOMPARE(QGuiApplication::clipboard()->text(), text("F1\nAngle,Power\n0,-3.5\n90,12\n"));
    QVERIFY(nothingToAnswer.isDone());
}

void TestCurveExchange::exportsSelectedCurve()
{
    selectCurve("F1");
    const QString path = file("曲线.csv");
    const ModalScript script({choose(path), read("Export csv successfully")});
    run("exportGraphicsDataSlot");
    QVERIFY(script.isDone());
    QCOMPARE(contentOf(path), QByteArray("T\nF1\nAngle,Power\n0,-3.5\n90,12\n"));
    QCOMPARE(QDir(m_view->defaultDirectory()).absolutePath(), QFileInfo(path).absolutePath());
}

void TestCurveExchange::needsSelectedCurve()
{
    m_view->addCurve(text("F1"), somePoints);
    for (const char *slot : {"copySlot", "exportGraphicsDataSlot"}) {
        QTest::ignoreMessage(QtWarningMsg, "No selected graphics can be exported");
        const ModalScript script({read("No selected graphics can be exported")});
        run(slot);
        QVERIFY(script.isDone());
    }
    QVERIFY(QGuiApplication::clipboard()->text().isEmpty());
}

void TestCurveExchange::logsCancelledDialogs()
{
    selectCurve("F1");
    const auto cancelled = [this](const char *slot, const char *log) {
        QString caption;
        QTest::ignoreMessage(QtWarningMsg, log);
        const ModalScript script({[&caption](QWidget *dialog) {
            caption = dialog->windowTitle();
            static_cast<QDialog *>(dialog)->reject();
        }});
        run(slot);
        return script.isDone() ? caption : QString();
    };
    const char *const nothingWritten = "The export file directory is empty";
    QCOMPARE(cancelled("exportGraphicsDataSlot", nothingWritten), text("Save As"));
    QCOMPARE(cancelled("exportGraphicsImageSlot", nothingWritten), text("Save As"));
    QCOMPARE(cancelled("importGraphicsDataSlot", "The import file directory is empty"),
             text("import data"));
    QCOMPARE(m_view->defaultDirectory(), text("./"));
}

void TestCurveExchange::tellsFailedExport()
{
    selectCurve("F1");
    QVERIFY(QDir(m_folder->path()).mkdir(text("unplugged")));
    const QString path = file("unplugged/F1.csv");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^Open file failed .+")));
    const ModalScript script({[&](QWidget *dialog) {
                                  choose(path)(dialog);
                                  QDir(m_folder->path()).rmdir(text("unplugged"));
                              },
                              read("Open file failed")});
    run("exportGraphicsDataSlot");
    QVERIFY(script.isDone());
}

void TestCurveExchange::importsCurve()
{
    m_view->addCurve(text("there already"), {{1, 1}});
    write(file("F1.csv"), "\xEF\xBB\xBFT\r\nF1\r\nAngle,Power\r\n0,-3.5\r\nx\r\n1,nan\r\n90,12");
    const ModalScript script({choose(file("F1.csv"))});
    run("importGraphicsDataSlot");
    QVERIFY(script.isDone());
    QCOMPARE(namesIn(*m_view), QStringList({text("there already"), text("F1")}));
    QCOMPARE(m_view->paths()[2]->points(), somePoints);
    QCOMPARE(m_view->seriesName(), text("F1"));
    QCOMPARE(QDir(m_view->defaultDirectory()).absolutePath(),
             QDir(m_folder->path()).absolutePath());
}

void TestCurveExchange::importRefusesFile()
{
    write(file("bad.csv"), "T\nF1\nangle,power\n0,-3.5\n");
    const ModalScript script({choose(file("bad.csv")), read("Incorrect file format")});
    run("importGraphicsDataSlot");
    QVERIFY(script.isDone());
    QVERIFY(m_view->paths().isEmpty());
}

void TestCurveExchange::importLogsUnreadableFile()
{
    const QString path = file("gone.csv");
    write(path, "T\nF1\nAngle,Power\n");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^open file error: .+")));
    const ModalScript script({[&path](QWidget *dialog) {
        choose(path)(dialog);
        QFile::remove(path);
    }});
    run("importGraphicsDataSlot");
    QVERIFY(script.isDone());
    QVERIFY(m_view->paths().isEmpty());
    QCOMPARE(m_view->defaultDirectory(), text("./"));
}

void TestCurveExchange::importAsksForFreeName_data()
{
    QTest::addColumn<Steps>("answers");
    QTest::addColumn<QStringList>("names");
    const QStringList before{text("F1"), text("F2")};
    QTest::newRow("the same name asks again")
        << Steps{rename("F1"), rename("F3")} << before + QStringList(text("F3"));
    QTest::newRow("a third one's name asks again")
        << Steps{rename("F2"), rename("f1")} << before + QStringList(text("f1"));
    QTest::newRow("cancelled at the second question")
        << Steps{rename("F2"), rename(nullptr)} << before;
}

void TestCurveExchange::importAsksForFreeName()
{
    QFETCH(const Steps, answers);
    m_view->addCurve(text("F1"), {{1, 1}});
    m_view->addCurve(text("F2"), {{2, 2}});
    write(file("F1.csv"), "T\nF1\nAngle,Power\n0,-3.5\n90,12\n");
    const ModalScript script(Steps{choose(file("F1.csv"))} + answers);
    run("importGraphicsDataSlot");
    QVERIFY(script.isDone());
    QTEST(namesIn(*m_view), "names");
}

void TestCurveExchange::pastesText_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<Steps>("answers");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<Points>("points");
    QTest::newRow("a copied curve") << text("F2\nAngle,Power\n0,-3.5\n90,12\n") << Steps()
                                    << QStringList{text("F1"), text("F2")} << somePoints;
    QTest::newRow("two columns of a spreadsheet")
        << text("Angle\tPower\n0\t-3,5\n90\t12\n") << Steps()
        << QStringList{text("F1"), text("Pasted curve")} << somePoints;
    QTest::newRow("name taken, cancelled")
        << text("F1\nAngle,Power\n1,2\n") << Steps{rename(nullptr)} << QStringList{text("F1")}
        << Points();
}

/// By the clipboard and by drag and drop.
void TestCurveExchange::pastesText()
{
    QFETCH(const QString, clipboard);
    QFETCH(const Steps, answers);
    QFETCH(const QStringList, names);
    QMimeData data;
    data.setText(clipboard);
    QGuiApplication::clipboard()->setText(clipboard);
    for (const bool dropped : {false, true}) {
        m_view->clearChart();
        m_view->addCurve(text("F1"), {{1, 1}});
        const ModalScript script(answers);
        if (names.size() > 1)
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^pointList = .*-3.5.*90")));
        if (dropped)
            dropOn(*m_view, data);
        else
            run("pasteSlot");
        QVERIFY(script.isDone());
        QCOMPARE(namesIn(*m_view), names);
        if (names.size() > 1)
            QTEST(m_view->paths()[2]->points(), "points");
    }
}

void TestCurveExchange::dragsIntoAnotherView()
{
    for (const int kind : {0, 1}) {
        const std::unique_ptr<QMimeData> data(curveDragData(text("F1"), somePoints));
        QVERIFY(data->hasText());
        const QImage picture = curveDragPixmap(kind, Qt::blue, somePoints).toImage();
        QVERIFY(picture != curveDragPixmap(kind, Qt::blue, {}).toImage());
        GraphicsBase target(kind);
        dropOn(target, *data);
        QCOMPARE(namesIn(target), QStringList(text("F1")));
        QCOMPARE(target.paths()[1]->points(), somePoints);
    }
}

void TestCurveExchange::picturesAlwaysSucceed()
{
    const auto exportTo = [this](const QString &path) {
        const ModalScript script({choose(path), read("Export image successfully")});
        run("exportGraphicsImageSlot");
        QVERIFY(script.isDone());
    };
    exportTo(file("chart.png"));
    QCOMPARE(QImage(file("chart.png")).size(), QSize(800, 533));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^the image was not saved: ")));
    exportTo(file("chart.nonsense"));
    QVERIFY(!QFile::exists(file("chart.nonsense")));
}

MZ_TEST_MAIN(TestCurveExchange)
#include "tst_curveexchange.moc"
