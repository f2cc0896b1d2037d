#include "console/powerdisplay.h"

#include "measure/reading.h"

#include <QFontMetrics>
#include <QLabel>
#include <QStyle>
#include <QVariant>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int smallest = 30;
constexpr int largest = 300;

constexpr double usualWidth = 8.35;  // of the texts beside each other, in heights of the reading
constexpr double leastFilled = 0.95; // of the room, by a first guess

// The three sizes hang together: the unit and the instrument's text are parts of the reading's.
constexpr double unitShare = 0.4;
constexpr double textShare = 0.45;

QFont sized(const QLabel *label, int pixels)
{
    QFont font = label->font();
    font.setBold(true);
    font.setPixelSize(pixels);
    return font;
}

/// The width of the widest reading, \a unit and instrument's text beside each other, with the
/// reading in \a font. The other two are not measured at their own sizes: the system takes long to
/// find a font.
double widthOf(const QFont &font, const QString &unit)
{
    const QFontMetricsF metrics(font);
    return metrics.horizontalAdvance(QStringLiteral("-100.00")) +
           metrics.horizontalAdvance(unit) * unitShare +
           metrics.horizontalAdvance(QStringLiteral("-100.00dBm")) * textShare;
}

/// The largest font for the reading that \a room has place for, as a rule the first that is tried.
QFont fitting(const QLabel *label, const QString &unit, const QSize &room)
{
    const int tallest = std::clamp(room.height() / 8, smallest, largest);
    const QFont guess = sized(label, std::clamp(int(room.width() / usualWidth), smallest, tallest));
    const double width = widthOf(guess, unit);
    const bool isTallest = guess.pixelSize() == tallest;
    if (width <= room.width() && (isTallest || width > leastFilled * room.width()))
        return guess;
    const int fitting = int(guess.pixelSize() * room.width() / width);
    return sized(label, std::clamp(fitting, smallest, tallest));
}

/// The name by which the style sheet knows \a state.
QString nameOf(PowerDisplay::State state)
{
    switch (state) {
    case PowerDisplay::State::NotConnected:
        return QStringLiteral("off");
    case PowerDisplay::State::NoReading:
        return QStringLiteral("none");
    case PowerDisplay::State::Live:
        return QStringLiteral("live");
    case PowerDisplay::State::Stale:
        return QStringLiteral("stale");
    }
    return {};
}

/// A shape for each state, since colours alone do not tell everyone.
QString shapeOf(PowerDisplay::State state)
{
    switch (state) {
    case PowerDisplay::State::NotConnected:
        return QStringLiteral("\u25a1"); // an empty square
    case PowerDisplay::State::NoReading:
        return QStringLiteral("\u25cb"); // an empty circle
    case PowerDisplay::State::Live:
        return QStringLiteral("\u25cf"); // a full circle
    case PowerDisplay::State::Stale:
        return QStringLiteral("\u25b2"); // a full triangle
    }
    return {};
}

void setLook(QLabel *label, const QString &state)
{
    constexpr char look[] = "reading";
    if (label->property(look) == state)
        return;
    label->setProperty(look, state);
    const QFont font = label->font(); // which the style would take away
    label->style()->unpolish(label);  // the style sheet looks at properties only then
    label->style()->polish(label);
    label->setFont(font);
}

} // namespace

PowerDisplay::PowerDisplay(const Labels &labels)
    : m_labels(labels)
{}

QString PowerDisplay::figures(const Reading &reading)
{
    if (reading.state == Reading::State::None)
        return QStringLiteral("--.--");
    const QString text = QString::number(reading.level, 'f', 2);
    return text == QStringLiteral("-0.00") ? text.mid(1) : text;
}

QString PowerDisplay::describe(const Reading &reading, State state, int age)
{
    switch (state) {
    case State::NotConnected:
        return tr("Not connected");
    case State::NoReading:
        return reading.text.isEmpty()
                   ? tr("No reading")
                   : tr("No reading: the instrument says \"%1\"").arg(reading.text);
    case State::Live:
        return tr("Live");
    case State::Stale:
        return tr("Stale: %1 s old").arg(age);
    }
    return {};
}

void PowerDisplay::show(const Reading &reading, State state, int age)
{
    const QString power = figures(reading);
    const QString words = describe(reading, state, age);
    m_labels.power->setText(power);
    m_labels.text->setText(reading.text);
    m_labels.state->setText(shapeOf(state) + QLatin1Char(' ') + words);
    m_labels.state->setAccessibleName(words);
    // A name that only said what the label is for would hide the number from a screen reader.
    m_labels.power->setAccessibleName(
        tr("Power: %1 %2, %3").arg(power, m_labels.unit->text(), words));
    m_labels.text->setAccessibleName(tr("In the instrument's unit: %1").arg(reading.text));
    for (QLabel *label : {m_labels.power, m_labels.unit, m_labels.text, m_labels.state})
        setLook(label, nameOf(state));
}

void PowerDisplay::fit(const QSize &room)
{
    const QFont font = fitting(m_labels.power, m_labels.unit->text(), room);
    const QFontMetricsF metrics(font);
    m_labels.power->setFont(font);
    m_labels.unit->setFont(sized(m_labels.power, int(font.pixelSize() * unitShare)));
    m_labels.text->setFont(sized(m_labels.power, int(font.pixelSize() * textShare)));
    // Neither the digits nor the line they stand on are to move from one reading to the next.
    m_labels.power->setMinimumWidth(qCeil(metrics.horizontalAdvance(QStringLiteral("-100.00"))));
    m_labels.unit->setContentsMargins(0, 0, 0, qRound(metrics.descent() * (1 - unitShare)));
    m_labels.text->setContentsMargins(0, 0, 0, qRound(metrics.descent() * (1 - textShare)));
}
