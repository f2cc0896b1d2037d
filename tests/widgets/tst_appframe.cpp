#include "appinit.h"
#include "frame/appstyle.h"
#include "frame/language.h"
#include "testmain.h"

#include <QFile>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QTranslator>

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

    /// Sends a mouse event at \a place, counted from where the window was at first.
    void send(QWidget *receiver, QEvent::Type type, const QPoint &place,
              Qt::MouseButtons held = Qt::LeftButton) const
    {
        const QPoint cursor = QPoint(200, 100) + place;
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, receiver->mapFromGlobal(cursor), cursor, button, held,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(receiver, &event);
    }

    /// How far the window has moved.
    QPoint way() const { return window.pos() - QPoint(200, 100); }

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

    void titleBarMovesItsWindow()
    {
        const Frameless frame;
        frame.send(frame.title, QEvent::MouseButtonPress, {200, 150});
        frame.send(frame.title, QEvent::MouseMove, {230, 130});
        QCOMPARE(frame.way(), QPoint(30, -20));
        // Without the button the pointer only passes.
        frame.send(frame.title, QEvent::MouseMove, {200, 150}, Qt::NoButton);
        frame.send(frame.title, QEvent::MouseButtonRelease, {200, 150}, Qt::NoButton);
        frame.send(frame.title, QEvent::MouseMove, {200, 150});
        QCOMPARE(frame.way(), QPoint(30, -20));
    }

    /// Neither without the mark, nor without a grandparent to move, nor without any parent.
    void onlyMarkedWidgetsMove()
    {
        for (int receiver = 0; receiver < 3; ++receiver) {
            Frameless frame;
            QWidget *widget =
                QList<QWidget *>{frame.title, frame.central, &frame.window}.at(receiver);
            widget->setProperty("canMove", receiver != 0);
            frame.window.setProperty("resize", false);
            frame.send(widget, QEvent::MouseButtonPress, {200, 150});
            frame.send(widget, QEvent::MouseMove, {209, 159});
            QCOMPARE(frame.way(), QPoint());
            frame.send(frame.title, QEvent::MouseButtonRelease, {209, 159}, Qt::NoButton);
        }
    }

    void edgeResizesTheWindow_data()
    {
        QTest::addColumn<QPoint>("grip"); // from the window's top left corner
        QTest::addColumn<int>("shape");
        QTest::addColumn<QRect>("geometry"); // after a drag by -10, -5
        const int falling = int(Qt::SizeFDiagCursor);
        const int rising = int(Qt::SizeBDiagCursor);
        QTest::newRow("left") << QPoint(18, 150) << int(Qt::SizeHorCursor)
                              << QRect(190, 100, 410, 300);
        QTest::newRow("top") << QPoint(200, 18) << int(Qt::SizeVerCursor)
                             << QRect(200, 95, 400, 305);
        QTest::newRow("bottom right") << QPoint(381, 281) << falling << QRect(200, 100, 390, 295);
        QTest::newRow("bottom left") << QPoint(18, 281) << rising << QRect(190, 100, 410, 295);
        QTest::newRow("inside") << QPoint(200, 150) << int(Qt::ArrowCursor)
                                << QRect(200, 100, 400, 300);
    }

    void edgeResizesTheWindow()
    {
        QFETCH(QPoint, grip);
        Frameless frame;
        frame.title->setProperty("canMove", false);
        // Not without the mark.
        frame.window.setProperty("resize", false);
        frame.send(frame.central, QEvent::MouseMove, grip, Qt::NoButton);
        frame.send(frame.central, QEvent::MouseMove, grip - QPoint(10, 5));
        QCOMPARE(frame.window.geometry(), QRect(200, 100, 400, 300));
        frame.window.setProperty("resize", true);
        frame.send(frame.central, QEvent::MouseMove, grip, Qt::NoButton);
        QTEST(int(frame.window.cursor().shape()), "shape");
        frame.send(frame.central, QEvent::MouseMove, grip - QPoint(10, 5));
        QTEST(frame.window.geometry(), "geometry");
        // Back to no edge, which the next window would inherit.
        frame.send(frame.central, QEvent::MouseMove, {200, 150}, Qt::NoButton);
        QCOMPARE(int(frame.window.cursor().shape()), int(Qt::ArrowCursor));
    }

    void styleSheetGivesThePalette()
    {
        AppStyle::applyStyleSheet();
        QFile sheet(QStringLiteral(":/qss/psblack.css"));
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        QCOMPARE(qApp->styleSheet().toLatin1(), sheet.readAll());
        QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(Qt::white));
        qApp->setStyleSheet({});
    }

    void languageReplacesTheOther()
    {
        const auto title = [] {
            return QCoreApplication::translate("MainWindow", "Frequency(1KHz~40GHz)");
        };
        const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
        const QString english = title();
        {
            Language language;
            for (int round = 0; round < 2; ++round) {
                language.set(QStringLiteral("en"));
                QCOMPARE(title(), english);
                QCOMPARE(cancel(), QStringLiteral("Cancel"));
                language.set(QStringLiteral("cn"));
                QVERIFY(title() != english);
                QTranslator qtTexts;
                if (qtTexts.load(QStringLiteral("qtbase_zh_CN"),
                                 QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
                    QVERIFY(cancel() != QStringLiteral("Cancel"));
            }
        }
        QCOMPARE(title(), english);
    }
};

MZ_TEST(TestAppFrame)

#include "tst_appframe.moc"
