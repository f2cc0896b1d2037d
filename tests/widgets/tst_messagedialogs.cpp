#include "modalscript.h"
#include "testmain.h"
#include "widgets/messagedialog.h"
#include "widgets/messagesimpledialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <qtestspontaneevent.h>

namespace {

template<typename Widget>
Widget *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Widget *>(QString::fromLatin1(name));
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// The text of a label or button, in brackets when the operator does not see it.
QString shown(const QWidget &dialog, const char *name)
{
    const auto *widget = child<QWidget>(dialog, name);
    const QString words = widget->property("text").toString();
    return widget->isVisible() ? words : QLatin1Char('(') + words + QLatin1Char(')');
}

void click(QWidget *dialog, const char *button)
{
    QTest::mouseClick(child<QPushButton>(*dialog, button), Qt::LeftButton);
}

void sendMouse(QWidget &target, QEvent::Type type, const QPoint &global, bool *accepted = nullptr)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, target.mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    if (accepted)
        *accepted = event.isAccepted();
}

} // namespace

class TestMessageDialogs : public QObject
{
    Q_OBJECT

private slots:
    void questionKeepsDefaults_data();
    void questionKeepsDefaults();
    void questionAsksForValue();
    void questionIsAnswered();
    void statusShowsPictures();
    void statusWorksWithoutBeingDismissed();
    void statusIsDraggedByItsBody();
};

void TestMessageDialogs::questionKeepsDefaults_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("seen");
    const auto row = [](const char *name, const char *given, const char *seen) {
        QTest::newRow(name) << text(given).split(QLatin1Char('|'))
                            << text(seen).split(QLatin1Char('|'));
    };
    row("all texts", "T|main|other|Yes|No", "T|main|other|Yes|No");
    row("no texts", "||||", "Message|Main Information|(Other Information)|OK|(Cancel)");
}

void TestMessageDialogs::questionKeepsDefaults()
{
    QFETCH(const QStringList, given);
    MessageDialog dialog(given[0], given[1], given[2], given[3], given[4], nullptr);
    dialog.show();
    const QStringList seen{dialog.windowTitle(), shown(dialog, "label_MainInfo"),
                           shown(dialog, "label_OtherInfo"), shown(dialog, "okBtn"),
                           shown(dialog, "cancelBtn")};
    QTEST(seen, "seen");
    for (const char *name : {"rawFreq", "toLabel", "currentFreq"})
        QVERIFY(!child<QWidget>(dialog, name)->isVisible());
}

void TestMessageDialogs::questionAsksForValue()
{
    MessageDialog dialog(text("T"), text("main"), QString(), QString(), text("No"), nullptr);
    dialog.setFrequencyRowVisible(true);
    dialog.setRawFrequency(text("2450"));
    dialog.setCurrentFrequency(text("2450"));
    dialog.show();
    QCOMPARE(shown(dialog, "rawFreq"), text("2450"));
    QCOMPARE(shown(dialog, "toLabel"), text("to"));
    auto *edit = child<QLineEdit>(dialog, "currentFreq");
    QTest::keyClicks(edit, text("900")); // the old value is selected, so typing replaces it
    QCOMPARE(dialog.currentFrequency(), text("900"));
}

void TestMessageDialogs::questionIsAnswered()
{
    const auto answered = [](const ModalScript::Step &answer) {
        MessageDialog dialog(text("T"), text("main"), {}, text("OK"), text("Cancel"), nullptr);
        const ModalScript script({answer});
        return dialog.exec();
    };
    QCOMPARE(answered([](QWidget *w) { click(w, "okBtn"); }), int(QDialog::Accepted));
    QCOMPARE(answered([](QWidget *w) { click(w, "cancelBtn"); }), int(QDialog::Rejected));
    QCOMPARE(answered([](QWidget *w) { QTest::keyClick(w, Qt::Key_Return); }),
             int(QDialog::Accepted));
}

void TestMessageDialogs::statusShowsPictures()
{
    MessageSimpleDialog dialog(nullptr);
    dialog.show();
    const auto *picture = child<QLabel>(dialog, "pictureLabel");

    dialog.setMessage(text("good"), 0);
    const QPixmap good = picture->pixmap(Qt::ReturnByValue);
    QCOMPARE(good.size(), QSize(40, 40));
    QCOMPARE(shown(dialog, "reminderLabel"), text("good"));

    dialog.setMessage(text("bad"), 1);
    const QPixmap bad = picture->pixmap(Qt::ReturnByValue);
    QCOMPARE(bad.size(), QSize(40, 40));
    QVERIFY(bad.toImage() != good.toImage());

    dialog.setMessage(text("neither"), 7);
    QVERIFY(picture->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(shown(dialog, "reminderLabel"), text("neither"));
    QCOMPARE(shown(dialog, "generalpopupOkBtn"), text("OK"));
}

void TestMessageDialogs::statusWorksWithoutBeingDismissed()
{
    MessageSimpleDialog dialog(nullptr);
    dialog.show();
    dialog.setMessage(text("working"), 2);
    QMovie *movie = child<QLabel>(dialog, "pictureLabel")->movie();
    QVERIFY(movie && movie->state() == QMovie::Running);
    QCOMPARE(shown(dialog, "generalpopupOkBtn"), text("(OK)"));

    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCloseEvent byWindowSystem;
    QSpontaneKeyEvent::setSpontaneous(&byWindowSystem);
    qApp->notify(&dialog, &byWindowSystem);
    QVERIFY(!byWindowSystem.isAccepted());
    QVERIFY(dialog.isVisible());

    dialog.setMessage(text("done"), 0);
    QCOMPARE(shown(dialog, "generalpopupOkBtn"), text("OK"));
    QVERIFY(!child<QLabel>(dialog, "pictureLabel")->movie());

    dialog.setMessage(text("working"), 2);
    dialog.close(); // the caller may
    QVERIFY(!dialog.isVisible());
}

void TestMessageDialogs::statusIsDraggedByItsBody()
{
    MessageSimpleDialog dialog(nullptr);
    dialog.setMessage(text("here"), 0);
    dialog.move(100, 100);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *body = child<QWidget>(dialog, "reminderLabel");
    const QPoint grip = body->mapToGlobal(QPoint(5, 5));
    const QPoint start = dialog.pos();
    bool accepted = true;
    sendMouse(*body, QEvent::MouseButtonPress, grip, &accepted);
    QVERIFY(!accepted);
    sendMouse(*body, QEvent::MouseMove, grip + QPoint(30, -20));
    QCOMPARE(dialog.pos(), start + QPoint(30, -20));
    sendMouse(*body, QEvent::MouseButtonRelease, grip + QPoint(30, -20));
    sendMouse(*body, QEvent::MouseMove, grip + QPoint(90, 90));
    QCOMPARE(dialog.pos(), start + QPoint(30, -20));
}

MZ_TEST_MAIN(TestMessageDialogs)
#include "tst_messagedialogs.moc"
