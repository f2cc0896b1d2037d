#include "watch/limitspanel.h"

#include "watch/limitwatch.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

QDoubleSpinBox *levelBox(QWidget *parent, const char *name, double value)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setRange(-200.0, 200.0);
    box->setDecimals(2);
    box->setSuffix(QStringLiteral(" dBm"));
    box->setValue(value);
    box->setKeyboardTracking(false); // a level counts when it has been typed in full
    return box;
}

} // namespace

LimitsPanel::LimitsPanel(LimitWatch *watch, QWidget *parent)
    : QWidget(parent)
    , m_watch(watch)
    , m_hasHigh(new QCheckBox(this))
    , m_high(levelBox(this, "doubleSpinBoxHigh", 0.0))
    , m_hasLow(new QCheckBox(this))
    , m_low(levelBox(this, "doubleSpinBoxLow", -60.0))
    , m_hysteresisLabel(new QLabel(this))
    , m_hysteresis(levelBox(this, "doubleSpinBoxHysteresis", 0.2))
    , m_inARowLabel(new QLabel(this))
    , m_inARow(new QSpinBox(this))
    , m_latched(new QCheckBox(this))
    , m_acknowledge(new QPushButton(this))
    , m_state(new QLabel(this))
{
    m_hasHigh->setObjectName(QStringLiteral("checkBoxHigh"));
    m_hasLow->setObjectName(QStringLiteral("checkBoxLow"));
    m_hysteresis->setRange(0.0, 20.0);
    m_hysteresis->setSingleStep(0.1);
    m_hysteresis->setSuffix(QStringLiteral(" dB"));
    m_inARow->setObjectName(QStringLiteral("spinBoxInARow"));
    m_inARow->setRange(1, 1000);
    m_inARow->setKeyboardTracking(false);
    m_latched->setObjectName(QStringLiteral("checkBoxLatched"));
    m_acknowledge->setObjectName(QStringLiteral("btnAcknowledge"));
    m_state->setObjectName(QStringLiteral("labelLimitState"));
    m_state->setWordWrap(true);
    m_hysteresisLabel->setBuddy(m_hysteresis);
    m_inARowLabel->setBuddy(m_inARow);

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_hasHigh, 0, 0);
    layout->addWidget(m_high, 0, 1);
    layout->addWidget(m_hasLow, 1, 0);
    layout->addWidget(m_low, 1, 1);
    layout->addWidget(m_hysteresisLabel, 2, 0);
    layout->addWidget(m_hysteresis, 2, 1);
    layout->addWidget(m_inARowLabel, 3, 0);
    layout->addWidget(m_inARow, 3, 1);
    layout->addWidget(m_latched, 4, 0);
    layout->addWidget(m_acknowledge, 4, 1);
    layout->addWidget(m_state, 5, 0, 1, 2);
    layout->setRowStretch(6, 1);

    for (QCheckBox *box : {m_hasHigh, m_hasLow, m_latched})
        connect(box, &QCheckBox::toggled, this, &LimitsPanel::apply);
    for (QDoubleSpinBox *box : {m_high, m_low, m_hysteresis})
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &LimitsPanel::apply);
    connect(m_inARow, QOverload<int>::of(&QSpinBox::valueChanged), this, &LimitsPanel::apply);
    connect(m_acknowledge, &QPushButton::clicked, watch, &LimitWatch::acknowledge);
    connect(watch, &LimitWatch::changed, this, &LimitsPanel::showState);
    retranslate();
}

Limits LimitsPanel::limits() const
{
    Limits limits;
    if (m_hasHigh->isChecked())
        limits.high = m_high->value();
    if (m_hasLow->isChecked())
        limits.low = m_low->value();
    limits.hysteresis = m_hysteresis->value();
    limits.inARow = m_inARow->value();
    limits.latched = m_latched->isChecked();
    return limits;
}

void LimitsPanel::setLimits(const Limits &limits)
{
    {
        const QSignalBlocker high(m_hasHigh);
        const QSignalBlocker low(m_hasLow);
        const QSignalBlocker latched(m_latched);
        const QSignalBlocker hysteresis(m_hysteresis);
        const QSignalBlocker inARow(m_inARow);
        m_hasHigh->setChecked(limits.high.has_value());
        m_hasLow->setChecked(limits.low.has_value());
        m_latched->setChecked(limits.latched);
        m_hysteresis->setValue(limits.hysteresis);
        m_inARow->setValue(limits.inARow);
        setLevels(limits.high.value_or(m_high->value()), limits.low.value_or(m_low->value()));
    }
    apply();
}

std::pair<double, double> LimitsPanel::levels() const
{
    return {m_high->value(), m_low->value()};
}

void LimitsPanel::setLevels(double high, double low)
{
    const QSignalBlocker highBlocker(m_high);
    const QSignalBlocker lowBlocker(m_low);
    m_high->setValue(high);
    m_low->setValue(low);
}

void LimitsPanel::apply()
{
    const Limits wanted = limits();
    m_watch->setLimits(wanted.areUsable() ? wanted : Limits());
    showState();
}

void LimitsPanel::retranslate()
{
    m_hasHigh->setText(tr("&Upper limit"));
    m_hasLow->setText(tr("Lo&wer limit"));
    m_high->setAccessibleName(tr("Upper limit"));
    m_low->setAccessibleName(tr("Lower limit"));
    m_hysteresisLabel->setText(tr("Hys&teresis"));
    m_hysteresis->setToolTip(tr("An alarm ends once the level is back by as much"));
    m_inARowLabel->setText(tr("Readings i&n a row"));
    m_inARow->setToolTip(tr("So many readings beyond a limit, one after the other, are an alarm"));
    m_latched->setText(tr("L&atched"));
    m_latched->setToolTip(tr("An alarm stays until it is acknowledged"));
    m_acknowledge->setText(tr("Ac&knowledge"));
    showState();
}

void LimitsPanel::showState()
{
    QString text;
    switch (m_watch->state()) {
    case LimitWatch::State::Off:
        text = limits().areUsable() ? tr("No limits are watched.")
                                    : tr("The lower limit must lie below the upper one.");
        break;
    case LimitWatch::State::Resting:
        text = tr("The limits rest during the relative measurement.");
        break;
    case LimitWatch::State::Missing:
        text = tr("No reading.");
        break;
    case LimitWatch::State::Inside:
        text = tr("Inside the limits.");
        break;
    case LimitWatch::State::Above:
        text = tr("Above the upper limit.");
        break;
    case LimitWatch::State::Below:
        text = tr("Below the lower limit.");
        break;
    }
    if (m_watch->isAlarm())
        text += QLatin1Char('\n') + tr("Alarm: %1").arg(m_watch->alarmText());
    m_state->setText(text);
    m_acknowledge->setEnabled(m_watch->awaitsAcknowledgement());
}
