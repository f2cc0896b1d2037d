#include "modalscript.h"
#include "testfiles.h"
#include "testmain.h"
#include "widgets/loadingdialog.h"
#include "widgets/messagedialog.h"
#include "widgets/messagesimpledialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <qtestspontaneevent.h>

namespace {

/// The text of a label or button, in brackets when the user does not see it.
QString shown(const QWidget &dialog, const char *name)
{
    const auto *widget = dialog.findChild<QWidget *>(text(name));
    const QString words = widget->property("text").toString();
    return widget->isVisible() ? words : QLatin1Char('(') + words + QLatin1Char(')');
}

QLabel *label(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QLabel *>(text(name));
}

/// Sends a mouse event with the left button and returns whether it was taken.
bool sendMouse(QWidget &target, QEvent::Type type, const QPoint &global)
{
    const bool moves = type == QEvent::MouseMove;
    const bool released = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, target.mapFromGlobal(global), global,
                      moves ? Qt::NoButton : Qt::LeftButton,
                      released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    return event.isAccepted();
}

} // namespace

class TestMessageDialogs : public QObject
{
    Q_OBJECT

private slots:
    void questionKeepsDefaults()
    {
        const auto seen = [](const char *given) {
            const QStringList part = text(given).split(QLatin1Char('|'));
            MessageDialog dialog(part[0], part[1], part[2], part[3], part[4], nullptr);
            dialog.show();
            QStringList texts(dialog.windowTitle());
            for (const char *name : {"label_MainInfo", "label_OtherInfo", "okBtn", "cancelBtn"})
                texts.append(shown(dialog, name));
            if (dialog.findChild<QWidget *>(text("currentFreq"))->isVisible())
                texts.append(text("asks for a value"));
            return texts.join(QLatin1Char('|'));
        };
        QCOMPARE(seen("T|main|other|Yes|No"), text("T|main|other|Yes|No"));
        QCOMPARE(seen("||||"), text("Message|Main Information|(Other Information)|OK|(Cancel)"));
    }

    void questionAsksForValue()
    {
        MessageDialog dialog(text("T"), text("main"), QString(), QString(), text("No"), nullptr);
        dialog.setFrequencyRowVisible(true);
        dialog.setRawFrequency(text("2450"));
        dialog.setCurrentFrequency(text("2450"));
        dialog.show();
        QCOMPARE(shown(dialog, "rawFreq"), text("2450"));
        QCOMPARE(shown(dialog, "toLabel"), text("to"));
        // The old value is selected, so typing replaces it.
        QTest::keyClicks(dialog.findChild<QLineEdit *>(text("currentFreq")), text("900"));
        QCOMPARE(dialog.currentFrequency(), text("900"));
    }

    void questionIsAnswered()
    {
        const auto answered = [](const ModalScript::Step &answer) {
            MessageDialog dialog(text("T"), text("main"), {}, text("OK"), text("Cancel"), nullptr);
            const ModalScript script({answer});
            return dialog.exec();
        };
        const auto click = [](const char *button) {
            return [button](QWidget *dialog) {
                QTest::mouseClick(dialog->findChild<QPushButton *>(text(button)), Qt::LeftButton);
            };
        };
        const auto enter = [](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Return); };
        QCOMPARE(answered(click("okBtn")), int(QDialog::Accepted));
        QCOMPARE(answered(click("cancelBtn")), int(QDialog::Rejected));
        QCOMPARE(answered(enter), int(QDialog::Accepted));
    }

    void statusShowsPictures()
    {
        MessageSimpleDialog dialog(nullptr);
        dialog.show();
        const auto pictureOf = [&dialog](const char *message, int kind) {
            dialog.setMessage(text(message), kind);
            return label(dialog, "pictureLabel")->pixmap(Qt::ReturnByValue).toImage();
        };
        const QImage good = pictureOf("good", 0);
        QCOMPARE(good.size(), QSize(40, 40));
        QCOMPARE(shown(dialog, "reminderLabel"), text("good"));
        const QImage bad = pictureOf("bad", 1);
        QCOMPARE(bad.size(), QSize(40, 40));
        QVERIFY(bad != good);
        QVERIFY(pictureOf("neither", 7).isNull());
        QCOMPARE(shown(dialog, "reminderLabel"), text("neither"));
        QCOMPARE(shown(dialog, "generalpopupOkBtn"), text("OK"));
    }

    void statusWorksWithoutBeingDismissed()
    {
        MessageSimpleDialog dialog(nullptr);
        dialog.show();
        dialog.setMessage(text("working"), 2);
        const QMovie *movie = label(dialog, "pictureLabel")->movie();
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
        QVERIFY(!label(dialog, "pictureLabel")->movie());

        dialog.setMessage(text("working"), 2);
        dialog.close(); // the caller may
        QVERIFY(!dialog.isVisible());
    }

    void statusIsDraggedByItsBody()
    {
        MessageSimpleDialog dialog(nullptr);
        dialog.setMessage(text("here"), 0);
        dialog.move(100, 100);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QWidget &body = *label(dialog, "reminderLabel");
        const QPoint grip = body.mapToGlobal(QPoint(5, 5));
        const QPoint goal = dialog.pos() + QPoint(30, -20);
        QVERIFY(!sendMouse(body, QEvent::MouseButtonPress, grip));
        sendMouse(body, QEvent::MouseMove, grip + QPoint(30, -20));
        QCOMPARE(dialog.pos(), goal);
        sendMouse(body, QEvent::MouseButtonRelease, grip + QPoint(30, -20));
        sendMouse(body, QEvent::MouseMove, grip + QPoint(90, 90));
        QCOMPARE(dialog.pos(), goal);
    }

    void waitDialogShowsTaskAndSeconds()
    {
        LoadingDialog dialog;
        QCOMPARE(int(dialog.windowFlags() & Qt::WindowType_Mask), int(Qt::SplashScreen));
        dialog.setTaskLabelText(text("Calibration %2"));
        dialog.setLabelText(7);
        QCOMPARE(dialog.taskLabelText(), text("Calibration %2"));
        QCOMPARE(label(dialog, "labelText")->text(), text("Calibration %2,waiting...7 s"));
        const QMovie *movie = label(dialog, "labelMovie")->movie();
        QVERIFY(movie->isValid() && movie->state() == QMovie::Running);
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
};

MZ_TEST(TestMessageDialogs)

#include "tst_messagedialogs.moc"
