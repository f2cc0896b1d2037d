#include "widgets/lineedit.h"

#include "testmain.h"

#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QTranslator>
#include <QVBoxLayout>

#include <memory>

namespace {

/// Puts every text in brackets.
class Brackets : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German)); // the field has a point all the same
        m_form = std::make_unique<QDialog>();
        m_before = new QLineEdit(m_form.get());
        m_field = new LineEdit(m_form.get());
        m_after = new QLineEdit(m_form.get());
        auto *layout = new QVBoxLayout(m_form.get());
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(m_before);
        layout->addWidget(m_field);
        layout->addWidget(m_after);
        m_label = m_field->findChild<QLabel *>();
        m_editor = m_field->findChild<QDoubleSpinBox *>();
        m_form->show();
        QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
        m_before->setFocus();
    }

    void cleanup() { m_form.reset(); }
    void shownAndStoredValue()
    {
        QSignalSpy finished(m_field, &LineEdit::editingFinished);
        m_field->setValue(12.34);
        QCOMPARE(m_field->value(), 12.34);
        QCOMPARE(m_label->text(), QStringLiteral("12.3"));
        m_field->setIntegerMode(2); // only 1 means whole numbers ...
        QCOMPARE(m_label->text(), QStringLiteral("12.3"));
        m_field->setIntegerMode(1);
        QCOMPARE(m_label->text(), QStringLiteral("0"));
        m_field->setIntegerMode(0); // ... and there is no way back
        m_field->setValue(-3.4);
        QCOMPARE(m_field->value(), -4.0);
        QCOMPARE(m_label->text(), QStringLiteral("-3"));
        m_field->setValue(12.6);
        QCOMPARE(m_field->value(), 12.0);
        QCOMPARE(finished.count(), 0);

        press();
        QCOMPARE(m_editor->text(), QStringLiteral("12"));
        key(Qt::Key_Return);
        QCOMPARE(m_label->text(),
                 QStringLiteral("13")); // the same value keeps the text
    }

    void endOfEditing_data()
    {
        QTest::addColumn<int>("key"); // 0: the field loses the focus by a click elsewhere
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<double>>("reported");
        QTest::newRow("Enter, changed") << int(Qt::Key_Return) << "4,2" << QList<double>{1.5, 4.2};
        QTest::newRow("click elsewhere, changed") << 0 << "4.2" << QList<double>{1.5, 4.2};
        QTest::newRow("Escape") << int(Qt::Key_Escape) << "4.2" << QList<double>();
    }

    void endOfEditing()
    {
        QFETCH(int, key);
        QFETCH(QString, typed);
        QList<double> values;
        connect(m_field, &LineEdit::editingFinished, this, [&] { values << m_field->value(); });
        for (int round = 0; round < 2; ++round) {
            m_field->setValue(1.5);
            values.clear();
            press();
            QCOMPARE(m_editor->value(), 1.5);
            type(typed);
            if (key)
                this->key(Qt::Key(key));
            else
                QTest::mouseClick(m_after, Qt::LeftButton);
            QVERIFY(!editing());
            QVERIFY(m_label->isVisible());
            QTEST(values, "reported");
            QCoreApplication::processEvents();
            QCOMPARE(m_after->hasFocus(), key == 0 || key == Qt::Key_Tab);
        }
    }

    void escapeGoesBack()
    {
        m_field->setValue(20000); // the editor cannot hold it
        press();
        type(QStringLiteral("3"));
        key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(m_field->value(), 20000.0);
        QCOMPARE(m_label->text(), QStringLiteral("20000.0"));
        QVERIFY2(m_field->hasFocus(), "the focus stays on the field");
        QVERIFY2(m_form->isVisible(), "the form stays open");
        key(Qt::Key_Escape);
        QVERIFY2(!m_form->isVisible(), "at rest the key is the form's");
    }

    void keysThatStart_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text"); // of the editor; empty when editing does not start
        QTest::newRow("digit") << int(Qt::Key_7) << "7";
        QTest::newRow("minus") << int(Qt::Key_Minus) << "-";
        QTest::newRow("F2") << int(Qt::Key_F2) << "1.5";
        QTest::newRow("Space") << int(Qt::Key_Space) << "1.5";
        QTest::newRow("Enter is the form's") << int(Qt::Key_Return) << "";
    }

    void keysThatStart()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        m_field->setValue(1.5);
        this->key(Qt::Key_Tab);
        QVERIFY(m_field->hasFocus());
        this->key(Qt::Key(key));
        QCOMPARE(editing(), !text.isEmpty());
        if (editing())
            QCOMPARE(m_editor->text(), text);
        this->key(Qt::Key_F2); // starts at rest and must not start over while editing
        if (!text.isEmpty())
            QCOMPARE(m_editor->text(), text);
    }

    void tabKeyGoesThroughField()
    {
        key(Qt::Key_Tab);
        QVERIFY(m_field->hasFocus());
        key(Qt::Key_Tab);
        QVERIFY(m_after->hasFocus());

        key(Qt::Key_Backtab);
        type(QStringLiteral("5"));
        key(Qt::Key_Backtab);
        QCoreApplication::processEvents();
        QVERIFY2(m_before->hasFocus(), "out of the open editor");
        QCOMPARE(m_field->value(), 5.0);
    }

    void languageChange()
    {
        LineEdit named(nullptr);
        named.setAccessibleName(QStringLiteral("Lowest level"));
        m_field->setMaximum(50);
        const QString name = m_field->accessibleName();
        Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_field->toolTip(), QStringLiteral("[Range:-10000-50]"));
        QCOMPARE(m_field->accessibleName(), QStringLiteral("[%1]").arg(name));
        QCOMPARE(named.accessibleName(), QStringLiteral("Lowest level"));
    }

private:
    bool editing() const { return m_editor->isVisible(); }
    void press() { QTest::mouseClick(m_label, Qt::LeftButton); }
    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    std::unique_ptr<QDialog> m_form;
    LineEdit *m_field = nullptr;
    QLineEdit *m_before = nullptr;
    QLineEdit *m_after = nullptr;
    QLabel *m_label = nullptr;
    QDoubleSpinBox *m_editor = nullptr;
};

MZ_TEST(TestLineEdit)
#include "tst_lineedit.moc"
