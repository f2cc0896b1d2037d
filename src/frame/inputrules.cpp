#include "frame/inputrules.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>
#include <QValidator>

namespace {

/// The validator of a number box, with commas read as points.
class CommaValidator : public QValidator
{
public:
    CommaValidator(QAbstractSpinBox *box, QObject *parent)
        : QValidator(parent)
        , m_box(box)
    {}

    State validate(QString &input, int &pos) const override
    {
        const bool isDecimal =
            input.count(QLatin1Char(',')) == 1 && !input.contains(QLatin1Char('.'));
        if (isDecimal)
            input.replace(QLatin1Char(','), QLatin1Char('.'));
        m_wasComma = isDecimal || (m_wasComma && input.contains(QLatin1Char('.')));
        // The box itself would take other commas for group separators, which nobody can have meant.
        if (input.contains(QLatin1Char(',')))
            return Invalid;
        if (m_wasComma && qobject_cast<const QSpinBox *>(m_box))
            joinThousand(input, pos);
        const State state = m_box->validate(input, pos);
        return state == Invalid && isWholeButForFraction(input) ? Intermediate : state;
    }

    void fixup(QString &input) const override { m_box->fixup(input); }

private:
    /// A count has no fraction: three digits behind a comma can only be those of a thousand.
    static void joinThousand(QString &input, int &pos)
    {
        static const QRegularExpression thousand(
            QStringLiteral("^(\\D*[1-9]\\d{0,2})\\.(\\d{3}\\D*)$"));
        const int point = input.indexOf(QLatin1Char('.'));
        const int length = input.size();
        input.replace(thousand, QStringLiteral("\\1\\2"));
        if (input.size() < length && pos > point)
            --pos;
    }

    /// Whether \a input is a fraction in a box for whole numbers. Refusing its point alone would
    /// make ten times as much of it; as it is, the box goes back to the whole part when it is left.
    bool isWholeButForFraction(QString input) const
    {
        const auto *box = qobject_cast<const QDoubleSpinBox *>(m_box);
        const int point = input.indexOf(QLatin1Char('.'));
        if (point < 0 || (box && box->decimals() > 0))
            return false;
        int end = point + 1;
        while (end < input.size() && input.at(end).isDigit())
            ++end;
        input.remove(point, end - point);
        int pos = 0;
        return m_box->validate(input, pos) != Invalid;
    }

    QAbstractSpinBox *m_box;
    mutable bool m_wasComma = false; // what is a point now was typed as a comma
};

class Rules : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish)
            prepare(watched);
        else if (event->type() == QEvent::Wheel)
            return leavesAlone(watched, event);
        return false;
    }

private:
    static bool isBox(const QObject *object)
    {
        return qobject_cast<const QAbstractSpinBox *>(object) != nullptr ||
               qobject_cast<const QComboBox *>(object) != nullptr;
    }

    static void prepare(QObject *object)
    {
        if (!isBox(object))
            return;
        auto *box = static_cast<QWidget *>(object);
        if (box->focusPolicy() == Qt::WheelFocus)
            box->setFocusPolicy(Qt::StrongFocus);
        box->setLocale(QLocale()); // the parent may be older than the rules
        if (!qobject_cast<QDoubleSpinBox *>(object) && !qobject_cast<QSpinBox *>(object))
            return;
        auto *number = static_cast<QAbstractSpinBox *>(object);
        if (auto *editor = number->findChild<QLineEdit *>())
            editor->setValidator(new CommaValidator(number, editor));
    }

    static bool leavesAlone(QObject *object, QEvent *event)
    {
        // The editor inside a box hands the wheel on to the box, which has its focus.
        if (!isBox(object) || static_cast<QWidget *>(object)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

void InputRules::install()
{
    static QPointer<Rules> rules;
    if (rules)
        return;
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    QLocale::setDefault(plain);
    rules = new Rules(qApp);
    qApp->installEventFilter(rules);
}
