#include "console/settingboxes.h"

#include "Logic/frequencyunit.h"
#include "Logic/seriallogic.h"
#include "frame/appstyle.h"
#include "ui_mainwindow.h"

#include <QSignalBlocker>
#include <QVariant>

#include <cmath>
#include <utility>

namespace {

constexpr char markProperty[] = "unsent";
constexpr char usualToolTip[] = "usualToolTip";

constexpr LinkSession::Setting allSettings[]{
    LinkSession::Setting::Frequency, LinkSession::Setting::Offset,
    LinkSession::Setting::AverageCount, LinkSession::Setting::RelativeState,
    LinkSession::Setting::PowerUnit};

/// Checks \a button without telling the instrument what it has just told us.
void checkSilently(QRadioButton *button)
{
    const QSignalBlocker blocker(button);
    button->setChecked(true);
}

void setMark(QWidget *widget, bool isMarked, const QString &toolTip)
{
    if (widget->property(markProperty).toBool() != isMarked) {
        if (isMarked)
            widget->setProperty(usualToolTip, widget->toolTip());
        widget->setProperty(markProperty, isMarked);
        AppStyle::restyle(widget);
        if (!isMarked)
            widget->setToolTip(widget->property(usualToolTip).toString());
    }
    if (isMarked)
        widget->setToolTip(toolTip);
    widget->setAccessibleDescription(isMarked ? toolTip : QString());
}

} // namespace

SettingBoxes::SettingBoxes(Ui::MainWindow *form, QObject *parent)
    : QObject(parent)
    , m_ui(form)
{
    {
        // The box shows kHz from its first text on, while the value is in GHz until it is set.
        const QSignalBlocker blocker(m_ui->comboBoxUnit);
        fillFrequencyUnits();
    }
    const auto changed = [this] { markAll(); };
    const auto valueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    connect(m_ui->doubleSpinBoxFreq, valueChanged, this, changed);
    connect(m_ui->doubleSpinBoxOffset, valueChanged, this, changed);
    connect(m_ui->spinBoxAverageCount, QOverload<int>::of(&QSpinBox::valueChanged), this, changed);
    watchButton(m_ui->radioButtonRelativeON, Setting::RelativeState);
    watchButton(m_ui->radioButtonRelativeOFF, Setting::RelativeState);
    watchButton(m_ui->radioButtondBm, Setting::PowerUnit);
    watchButton(m_ui->radioButtonW, Setting::PowerUnit);
}

void SettingBoxes::watchButton(QRadioButton *button, Setting setting)
{
    connect(button, &QRadioButton::toggled, this, [this] {
        m_isToggled = true;
        markAll();
    });
    connect(button, &QRadioButton::clicked, this, [this, button, setting] {
        // A change sends by itself, and a click on ON always does, for a new reference.
        if (!std::exchange(m_isToggled, false) && button != m_ui->radioButtonRelativeON &&
            (isUnsent(setting) || isUntold(setting)))
            emit wantedAgain(setting);
    });
}

void SettingBoxes::retranslate()
{
    // The form has put its own tool tips back.
    for (const Setting setting : allSettings) {
        for (QWidget *widget : widgetsOf(setting))
            widget->setProperty(usualToolTip, widget->toolTip());
    }
    fillFrequencyUnits();
    markAll();
}

void SettingBoxes::fillFrequencyUnits()
{
    m_ui->comboBoxUnit->clear();
    m_ui->comboBoxUnit->addItems(FrequencyUnit::names());
}

// --- What the instrument tells

void SettingBoxes::showFrequency(double value, const QString &unit)
{
    m_ui->comboBoxUnit->setCurrentText(unit);
    m_ui->doubleSpinBoxFreq->setValue(value);
    hold(Setting::Frequency, value * m_frequencyFactor);
}

void SettingBoxes::showOffset(double decibels)
{
    m_ui->doubleSpinBoxOffset->setValue(decibels);
    hold(Setting::Offset, decibels);
}

void SettingBoxes::showAverageCount(int count)
{
    m_ui->spinBoxAverageCount->setValue(count);
    hold(Setting::AverageCount, count);
}

void SettingBoxes::showPowerUnit(const QString &unit)
{
    const bool dBm = unit == QStringLiteral("dBm") || unit == QStringLiteral("DBM");
    checkSilently(dBm ? m_ui->radioButtondBm : m_ui->radioButtonW);
    hold(Setting::PowerUnit, dBm ? 1.0 : 0.0);
}

void SettingBoxes::showRelativeState(const QString &state)
{
    const bool on = state == QStringLiteral("ON");
    checkSilently(on ? m_ui->radioButtonRelativeON : m_ui->radioButtonRelativeOFF);
    m_ui->groupBoxUnit->setEnabled(!on);
    hold(Setting::RelativeState, on ? 1.0 : 0.0);
}

void SettingBoxes::noteOutcome(const QByteArray & /*command*/, const QString & /*line*/,
                               Outcome outcome)
{
    m_outcome = outcome;
}

void SettingBoxes::hold(Setting setting, double value)
{
    // A question that was not answered shows as nothing or zero, which nobody has measured.
    const bool isAnswered = std::exchange(m_outcome, Outcome::Ok) == Outcome::Ok;
    Held &held = m_held[setting];
    held.value = isAnswered ? std::optional<double>(value) : std::nullopt;
    held.isUntold = !isAnswered;
    mark(setting);
}

void SettingBoxes::forget()
{
    m_held.clear();
    markAll();
}

// --- What the user enters

void SettingBoxes::changeFrequencyUnit(const QString &name)
{
    const double value = m_ui->doubleSpinBoxFreq->value(); // before the new range clamps it
    const auto unit = FrequencyUnit::find(name);
    if (!unit)
        return;
    {
        // On the way the value and its unit do not belong together.
        const QSignalBlocker blocker(m_ui->doubleSpinBoxFreq);
        m_ui->doubleSpinBoxFreq->setRange(unit->minimum, unit->maximum);
        m_ui->doubleSpinBoxFreq->setDecimals(unit->decimals);
        m_ui->doubleSpinBoxFreq->setValue(value * m_frequencyFactor / unit->factor);
        m_frequencyFactor = unit->factor;
    }
    mark(Setting::Frequency);
}

QString SettingBoxes::frequency() const
{
    return frequencyText(m_ui->doubleSpinBoxFreq->value(), m_frequencyFactor);
}

void SettingBoxes::ask(Setting setting)
{
    // What was typed may not have been taken over yet.
    m_ui->doubleSpinBoxFreq->interpretText();
    m_ui->doubleSpinBoxOffset->interpretText();
    m_ui->spinBoxAverageCount->interpretText();
    m_held[setting].asked = shown(setting);
}

void SettingBoxes::send(Setting setting, SerialLogic &link) const
{
    switch (setting) {
    case Setting::Frequency:
        link.setFrequency(frequency(), m_ui->comboBoxUnit->currentText());
        break;
    case Setting::Offset:
        link.setOffset(m_ui->doubleSpinBoxOffset->value());
        break;
    case Setting::AverageCount:
        link.setAverageCount(m_ui->spinBoxAverageCount->value());
        break;
    case Setting::RelativeState:
        link.setMeasureState(textOf(setting, shown(setting)));
        break;
    case Setting::PowerUnit:
        link.setPowerUnit(textOf(setting, shown(setting)));
        break;
    }
}

double SettingBoxes::shown(Setting setting) const
{
    switch (setting) {
    case Setting::Frequency:
        return m_ui->doubleSpinBoxFreq->value() * m_frequencyFactor;
    case Setting::Offset:
        return m_ui->doubleSpinBoxOffset->value();
    case Setting::AverageCount:
        return m_ui->spinBoxAverageCount->value();
    case Setting::RelativeState:
        return m_ui->radioButtonRelativeON->isChecked() ? 1.0 : 0.0;
    case Setting::PowerUnit:
        return m_ui->radioButtondBm->isChecked() ? 1.0 : 0.0;
    }
    return 0.0;
}

QString SettingBoxes::textOf(Setting setting, double value) const
{
    switch (setting) {
    case Setting::Frequency:
        return frequencyText(value / m_frequencyFactor, m_frequencyFactor) + QLatin1Char(' ') +
               m_ui->comboBoxUnit->currentText();
    case Setting::Offset:
        return QString::number(value, 'f', 2) + QStringLiteral(" dB");
    case Setting::AverageCount:
        return QString::number(int(value));
    case Setting::RelativeState:
        return value > 0.0 ? QStringLiteral("ON") : QStringLiteral("OFF");
    case Setting::PowerUnit:
        return value > 0.0 ? QStringLiteral("dBm") : QStringLiteral("W");
    }
    return {};
}

QString SettingBoxes::nameOf(Setting setting)
{
    switch (setting) {
    case Setting::Frequency:
        return tr("Frequency");
    case Setting::Offset:
        return tr("Offset");
    case Setting::AverageCount:
        return tr("Average count");
    case Setting::RelativeState:
        return tr("Relative state");
    case Setting::PowerUnit:
        return tr("Power unit");
    }
    return {};
}

// --- The difference between the two

bool SettingBoxes::differ(Setting setting, double a, double b) const
{
    // The box shows whole kHz and hundredths of a dB; what is finer is no difference to the user.
    const double step = setting == Setting::Frequency ? 1.0 : 0.01;
    return std::abs(a - b) > 0.6 * step;
}

bool SettingBoxes::isUnsent(Setting setting) const
{
    const auto held = m_held.find(setting);
    return held != m_held.end() && held->second.value &&
           differ(setting, shown(setting), *held->second.value);
}

bool SettingBoxes::isUntold(Setting setting) const
{
    const auto held = m_held.find(setting);
    return held != m_held.end() && held->second.isUntold;
}

QString SettingBoxes::disagreement(Setting setting) const
{
    const auto found = m_held.find(setting);
    if (found == m_held.end() || !found->second.asked)
        return {};
    if (!found->second.value)
        return tr("%1 was confirmed, but could not be read back.").arg(nameOf(setting));
    if (!differ(setting, *found->second.asked, *found->second.value))
        return {};
    return tr("%1: asked for %2, the instrument holds %3.")
        .arg(nameOf(setting), textOf(setting, *found->second.asked),
             textOf(setting, *found->second.value));
}

bool SettingBoxes::putBack(const QObject *box)
{
    for (const Setting setting : {Setting::Frequency, Setting::Offset, Setting::AverageCount}) {
        if (widgetsOf(setting).constFirst() != box)
            continue;
        const auto held = m_held.find(setting);
        if (held == m_held.end() || !held->second.value)
            return true;
        const double value = *held->second.value;
        if (setting == Setting::Frequency)
            m_ui->doubleSpinBoxFreq->setValue(value / m_frequencyFactor);
        else if (setting == Setting::Offset)
            m_ui->doubleSpinBoxOffset->setValue(value);
        else
            m_ui->spinBoxAverageCount->setValue(int(value));
        return true;
    }
    return false;
}

QVector<QWidget *> SettingBoxes::widgetsOf(Setting setting) const
{
    switch (setting) {
    case Setting::Frequency:
        return {m_ui->doubleSpinBoxFreq};
    case Setting::Offset:
        return {m_ui->doubleSpinBoxOffset};
    case Setting::AverageCount:
        return {m_ui->spinBoxAverageCount};
    case Setting::RelativeState:
        return {m_ui->radioButtonRelativeON, m_ui->radioButtonRelativeOFF};
    case Setting::PowerUnit:
        return {m_ui->radioButtondBm, m_ui->radioButtonW};
    }
    return {};
}

void SettingBoxes::mark(Setting setting)
{
    const bool isUnsentNow = isUnsent(setting);
    const bool isUntoldNow = isUntold(setting);
    const QString held = isUnsentNow ? textOf(setting, *m_held.at(setting).value) : QString();
    for (QWidget *widget : widgetsOf(setting)) {
        const auto *button = qobject_cast<const QRadioButton *>(widget);
        const bool isShown = button == nullptr || button->isChecked();
        QString toolTip;
        if (isUntoldNow)
            toolTip = tr("Not known: the instrument did not tell what it holds.");
        else if (button != nullptr)
            toolTip = tr("Not confirmed: the instrument holds %1.").arg(held);
        else
            toolTip = tr("Not sent: the instrument holds %1. Esc puts that back.").arg(held);
        setMark(widget, isShown && (isUnsentNow || isUntoldNow), toolTip);
    }
}

void SettingBoxes::markAll()
{
    for (const Setting setting : allSettings)
        mark(setting);
}
