#include "appinit.h"
#include "appstyle.h"
#include "language.h"
#include "testmain.h"
#include "widgets/loadingdialog.h"

#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QMovie>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

/// A frameless window as the filter expects it: title bar, in a central widget, in the window.
struct Frameless
{
    Frameless()
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.setProperty("resize", true);
        title->setProperty("canMove", true);
        window.setGeometry(200, 100, 400, 300);
        window.show();
    }

    QPoint send(QWidget *receiver, QEvent::Type type, const QPoint &cursor,
                Qt::MouseButtons held) const
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, receiver->mapFromGlobal(cursor), cursor, button, held,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(receiver, &event);
        return window.pos();
    }

    QWidget window;
    QWidget *central = new QWidget(&window);
    QWidget *title = new QWidget(central);
};

} // namespace

/// What all windows of the programs share: moving and resizing without a frame, look and language.
class TestAppFrame : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { AppInit::Instance()->start(); }

    void titleBarMovesItsWindow();
    void doubleClickMaximises();
    void onlyMarkedWidgetsMove_data();
    void onlyMarkedWidgetsMove();
    void edgeResizesTheWindow_data();
    void edgeResizesTheWindow();
    void onlyMarkedWindowsResize();
    void styleSheetGivesThePalette();
    void fontIsTwelvePixelsHigh();
    void languageReplacesTheOther();
    void waitDialogShowsTaskAndSeconds();
};

void TestAppFrame::titleBarMovesItsWindow()
{
    const Frameless frame;
    const QPoint start = frame.window.pos();
    const QPoint cursor = start + QPoint(200, 150);
    frame.send(frame.title, QEvent::MouseButtonPress, cursor, Qt::LeftButton);
    QCOMPARE(frame.send(frame.title, QEvent::MouseMove, cursor + QPoint(30, -20), Qt::LeftButton),
             start + QPoint(30, -20));
    // Without the button the pointer only passes.
    QCOMPARE(frame.send(frame.title, QEvent::MouseMove, cursor, Qt::NoButton),
             start + QPoint(30, -20));
    frame.send(frame.title, QEvent::MouseButtonRelease, cursor, Qt::NoButton);
    QCOMPARE(frame.send(frame.title, QEvent::MouseMove, cursor, Qt::LeftButton),
             start + QPoint(30, -20));
}

void TestAppFrame::doubleClickMaximises()
{
    const Frameless frame;
    const QPoint cursor = frame.window.pos() + QPoint(200, 150);
    frame.send(frame.title, QEvent::MouseButtonDblClick, cursor, Qt::LeftButton);
    QVERIFY(frame.window.isMaximized());
    frame.send(frame.title, QEvent::MouseButtonDblClick, cursor, Qt::LeftButton);
    QVERIFY(!frame.window.isMaximized());
    frame.send(frame.title, QEvent::MouseButtonRelease, cursor, Qt::NoButton);
}

void TestAppFrame::onlyMarkedWidgetsMove_data()
{
    QTest::addColumn<QString>("receiver");

    QTest::newRow("no mark") << "no mark";
    QTest::newRow("no grandparent") << "no grandparent";
    QTest::newRow("no parent") << "no parent";
}

void TestAppFrame::onlyMarkedWidgetsMove()
{
    QFETCH(QString, receiver);
    Frameless frame;
    QWidget *widget = frame.title;
    if (receiver == QStringLiteral("no grandparent"))
        widget = frame.central;
    else if (receiver == QStringLiteral("no parent"))
        widget = &frame.window;
    widget->setProperty("canMove", receiver != QStringLiteral("no mark"));
    frame.window.setProperty("resize", false);

    const QPoint start = frame.window.pos();
    const QPoint cursor = start + QPoint(200, 150);
    frame.send(widget, QEvent::MouseButtonPress, cursor, Qt::LeftButton);
    QCOMPARE(frame.send(widget, QEvent::MouseMove, cursor + QPoint(9, 9), Qt::LeftButton), start);
    frame.send(frame.title, QEvent::MouseButtonRelease, cursor, Qt::NoButton);
}

void TestAppFrame::edgeResizesTheWindow_data()
{
    QTest::addColumn<QPoint>("grip"); // from the window's top left corner
    QTest::addColumn<int>("shape");
    QTest::addColumn<QRect>("change"); // of left, top, width and height

    QTest::newRow("left") << QPoint(18, 150) << int(Qt::SizeHorCursor) << QRect(-10, 0, 10, 0);
    QTest::newRow("top") << QPoint(200, 18) << int(Qt::SizeVerCursor) << QRect(0, -5, 0, 5);
    QTest::newRow("bottom right") << QPoint(381, 281) << int(Qt::SizeFDiagCursor)
                                  << QRect(0, 0, -10, -5);
    QTest::newRow("bottom left") << QPoint(18, 281) << int(Qt::SizeBDiagCursor)
                                 << QRect(-10, 0, 10, -5);
    QTest::newRow("inside") << QPoint(200, 150) << int(Qt::ArrowCursor) << QRect(0, 0, 0, 0);
}

void TestAppFrame::edgeResizesTheWindow()
{
    QFETCH(QPoint, grip);
    QFETCH(int, shape);
    QFETCH(QRect, change);
    Frameless frame;
    frame.title->setProperty("canMove", false);
    const QRect before = frame.window.geometry();
    const QPoint cursor = before.topLeft() + grip;
    frame.send(frame.central, QEvent::MouseMove, cursor, Qt::NoButton);
    QCOMPARE(int(frame.window.cursor().shape()), shape);
    frame.send(frame.central, QEvent::MouseMove, cursor + QPoint(-10, -5), Qt::LeftButton);
    QCOMPARE(frame.window.geometry(),
             QRect(before.topLeft() + change.topLeft(),
                   before.size() + QSize(change.width(), change.height())));
    // Back to no edge, which the next window would inherit.
    frame.send(frame.central, QEvent::MouseMove, frame.window.geometry().center(), Qt::NoButton);
    QCOMPARE(int(frame.window.cursor().shape()), int(Qt::ArrowCursor));
}

void TestAppFrame::onlyMarkedWindowsResize()
{
    Frameless frame;
    frame.window.setProperty("resize", QVariant());
    const QRect before = frame.window.geometry();
    const QPoint cursor = before.topLeft() + QPoint(18, 150);
    frame.send(frame.central, QEvent::MouseMove, cursor, Qt::NoButton);
    frame.send(frame.central, QEvent::MouseMove, cursor - QPoint(50, 0), Qt::LeftButton);
    QCOMPARE(frame.window.geometry(), before);
}

void TestAppFrame::styleSheetGivesThePalette()
{
    AppStyle::applyStyleSheet();
    QFile sheet(QStringLiteral(":/qss/psblack.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(qApp->styleSheet().toLatin1(), sheet.readAll());
    QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(Qt::white));
    qApp->setStyleSheet({});
}

void TestAppFrame::fontIsTwelvePixelsHigh()
{
    QCOMPARE(AppStyle::applicationFont().pixelSize(), 12);
}

void TestAppFrame::languageReplacesTheOther()
{
    const auto title = [] {
        return QCoreApplication::translate("MainWindow", "Frequency(1KHz~40GHz)");
    };
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    const QString english = title();
    {
        Language language;
        language.set(QStringLiteral("cn"));
        QVERIFY(title() != english);
        QTranslator qtTexts;
        if (!qtTexts.load(QStringLiteral("qtbase_zh_CN"),
                          QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
            qInfo("Qt's own Chinese texts are not installed here");
        else
            QVERIFY(cancel() != QStringLiteral("Cancel"));
        language.set(QStringLiteral("en"));
        QCOMPARE(language.code(), QStringLiteral("en"));
        QCOMPARE(title(), english);
        QCOMPARE(cancel(), QStringLiteral("Cancel"));
        language.set(QStringLiteral("cn"));
    }
    QCOMPARE(title(), english);
}

void TestAppFrame::waitDialogShowsTaskAndSeconds()
{
    LoadingDialog dialog;
    QCOMPARE(int(dialog.windowFlags() & Qt::WindowType_Mask), int(Qt::SplashScreen));
    dialog.setTaskLabelText(QStringLiteral("Calibration %2"));
    dialog.setLabelText(7);
    QCOMPARE(dialog.taskLabelText(), QStringLiteral("Calibration %2"));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("labelText"))->text(),
             QStringLiteral("Calibration %2,waiting...7 s"));
    const QMovie *movie = dialog.findChild<QLabel *>(QStringLiteral("labelMovie"))->movie();
    QVERIFY(movie->isValid() && movie->state() == QMovie::Running && movie->frameCount() > 1);
    // Behind a dialog that is not shown it would keep the processor busy for days.
    QTRY_COMPARE(movie->state(), QMovie::Paused);

    dialog.show();
    QCOMPARE(movie->state(), QMovie::Running);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QTRY_COMPARE(movie->state(), QMovie::Paused);
}

MZ_TEST_MAIN(TestAppFrame)
#include "tst_appframe.moc"
