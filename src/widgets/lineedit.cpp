#include "widgets/lineedit.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr double widestRange = 10000.0;

/// Whether \a text, as typed on a key, can begin a number.
bool beginsNumber(const QString &text)
{
    if (text.size() != 1)
        return false;
    const QChar character = text.front();
    return (character >= QLatin1Char('0') && character <= QLatin1Char('9')) ||
           character == QLatin1Char('-') || character == QLatin1Char('+') ||
           character == QLatin1Char('.') || character == QLatin1Char(',');
}

} // namespace

LineEdit::LineEdit(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(QStringLiteral("0.0"), this))
    , m_editor(new QDoubleSpinBox(this))
{
    setFrameShape(QFrame::StyledPanel);
    // Strong focus: by click as by the Tab key.
    setFocusPolicy(Qt::StrongFocus);

    m_label->setAlignment(Qt::AlignCenter);
    m_label->setFixedSize(90, 32);
    m_editor->setLocale(QLocale::c()); // a point, wherever the field is used
    m_editor->setDecimals(1);
    m_editor->setRange(-widestRange, widestRange);
    m_editor->setAlignment(Qt::AlignCenter);
    m_editor->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_editor->setFixedSize(90, 30);
    // A menu would take the focus and so end the editing that it is there for.
    m_editor->setContextMenuPolicy(Qt::NoContextMenu);
    m_editor->installEventFilter(this);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_editor);

    retranslate();
    connect(m_editor, &QDoubleSpinBox::editingFinished, this, &LineEdit::doubleSpinBoxEditFinished);
    connect(m_editor, &QDoubleSpinBox::editingFinished, this, &LineEdit::editingFinished);
    doubleSpinBoxEditFinished();
}

void LineEdit::setMaximum(double maximum)
{
    m_editor->setMaximum(maximum);
    showRange();
}

void LineEdit::setMinimum(double minimum)
{
    m_editor->setMinimum(minimum);
    showRange();
}

double LineEdit::maximum() const
{
    return m_editor->maximum();
}

double LineEdit::minimum() const
{
    return m_editor->minimum();
}

void LineEdit::setValue(double value)
{
    m_value = m_integers ? std::floor(value) : value;
    m_label->setText(QStringLiteral("%1").arg(value, 0, 'f', m_integers ? 0 : 1));
}

void LineEdit::setIntegerMode(const int &mode)
{
    if (mode != 1)
        return;
    m_label->setText(QStringLiteral("0"));
    m_editor->setDecimals(0);
    m_integers = true;
}

void LineEdit::doubleSpinBoxEditFinished()
{
    disconnect(m_editor, &QDoubleSpinBox::editingFinished, this,
               &LineEdit::doubleSpinBoxEditFinished);
    if (m_editor->value() != m_value) {
        setValue(m_editor->value());
        emit editingFinished();
    }
    showLabel();
    connect(m_editor, &QDoubleSpinBox::editingFinished, this, &LineEdit::doubleSpinBoxEditFinished);
}

void LineEdit::mousePressEvent(QMouseEvent *)
{
    startEditing();
}

void LineEdit::keyPressEvent(QKeyEvent *event)
{
    // Keys that the open editor has no use for come by here too, and must not start it again.
    const bool atRest = !m_editor->isVisibleTo(this);
    if (atRest && (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Space)) {
        startEditing();
    } else if (atRest && beginsNumber(event->text())) {
        startEditing();
        // The whole text is selected, so that the key begins a new number.
        QCoreApplication::sendEvent(m_editor, event);
    } else {
        QFrame::keyPressEvent(event);
    }
}

void LineEdit::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!hasFocus())
        return;
    // Not the style's focus frame: the application's style sheet turns that off.
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LineEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

bool LineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editor)
        return QFrame::eventFilter(watched, event);
    // Not when the editor loses the focus by being hidden.
    if (event->type() == QEvent::FocusOut && m_editor->isVisible())
        passFocusOn(static_cast<QFocusEvent *>(event)->reason());
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    auto *press = static_cast<QKeyEvent *>(event);
    if (event->type() == QEvent::KeyPress && press->text() == QStringLiteral(",")) {
        // Where a decimal comma is usual, nobody means a group separator by it.
        QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, press->modifiers(), QStringLiteral("."));
        QCoreApplication::sendEvent(m_editor, &point);
        return true;
    }
    if (press->key() != Qt::Key_Escape)
        return false;
    // Accepted, so that a dialog around the field does not close instead.
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        m_editor->setValue(m_value);
        showLabel();
    }
    return true;
}

void LineEdit::startEditing()
{
    disconnect(m_editor, &QDoubleSpinBox::editingFinished, this,
               &LineEdit::doubleSpinBoxEditFinished);
    m_editor->setAccessibleName(accessibleName());
    m_label->hide();
    m_editor->show();
    m_editor->setValue(m_value);
    m_editor->selectAll();
    m_editor->setFocus();
    connect(m_editor, &QDoubleSpinBox::editingFinished, this, &LineEdit::doubleSpinBoxEditFinished);
}

/// Closes the editor, committing nothing.
void LineEdit::showLabel()
{
    // An editor that has the focus reports once more when it is hidden.
    const QSignalBlocker blocker(m_editor);
    m_label->show();
    m_editor->hide();
    setFocus();
}

/// The end of editing puts the focus on this frame, also when the user is on the way to another
/// widget: once that is done, the focus follows there.
void LineEdit::passFocusOn(Qt::FocusReason reason)
{
    QWidget *target = QApplication::focusWidget();
    if (!target || target == m_editor)
        return;
    if (target == this && reason == Qt::BacktabFocusReason) {
        const auto stepBack = [this] { focusNextPrevChild(false); };
        QMetaObject::invokeMethod(this, stepBack, Qt::QueuedConnection);
        return;
    }
    const auto moveOn = [target, reason] { target->setFocus(reason); };
    QMetaObject::invokeMethod(target, moveOn, Qt::QueuedConnection);
}

void LineEdit::showRange()
{
    setToolTip(tr("Range:%1-%2").arg(m_editor->minimum()).arg(m_editor->maximum()));
}

void LineEdit::retranslate()
{
    showRange();
    if (accessibleName() != m_defaultName)
        return;
    m_defaultName = tr("Number");
    setAccessibleName(m_defaultName);
}
