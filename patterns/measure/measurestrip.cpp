#include "patterns/measure/measurestrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

QString number(double value, int places)
{
    return QString::number(value, 'f', places);
}

/// The time as minutes and seconds, with hours where there are some.
QString duration(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 999) / 1000;
    const auto part = [](qint64 value) {
        return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
    };
    const QString rest = part(seconds / 60 % 60) + QLatin1Char(':') + part(seconds % 60);
    return seconds < 3600 ? rest : QString::number(seconds / 3600) + QLatin1Char(':') + rest;
}

} // namespace

MeasureStrip::MeasureStrip(QWidget *parent)
    : QWidget(parent)
    , m_angle(new QLabel)
    , m_level(new QLabel)
    , m_spread(new QLabel)
    , m_time(new QLabel)
    , m_state(new QLabel)
    , m_done(new QProgressBar)
    , m_pause(new QPushButton)
    , m_resume(new QPushButton)
    , m_stop(new QPushButton)
{
    auto *layout = new QHBoxLayout(this);
    // Figures that change must not push each other about.
    const int width = fontMetrics().averageCharWidth();
    for (QLabel *label : {m_angle, m_level, m_spread, m_time}) {
        label->setMinimumWidth(20 * width);
        layout->addWidget(label);
    }
    m_done->setFixedWidth(34 * width);
    layout->addWidget(m_done);
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    layout->addWidget(m_state, 1);
    for (QPushButton *button : {m_pause, m_resume, m_stop})
        layout->addWidget(button);
    connect(m_pause, &QPushButton::clicked, this, &MeasureStrip::pauseWished);
    connect(m_resume, &QPushButton::clicked, this, &MeasureStrip::resumeWished);
    connect(m_stop, &QPushButton::clicked, this, &MeasureStrip::stopWished);
    retranslate();
}

void MeasureStrip::retranslate()
{
    m_pause->setText(tr("Pa&use"));
    m_resume->setText(tr("&Resume"));
    m_stop->setText(tr("Sto&p"));
    m_angle->setAccessibleName(tr("Angle"));
    m_level->setAccessibleName(tr("Level"));
    m_spread->setAccessibleName(tr("Spread"));
    m_time->setAccessibleName(tr("Remaining time"));
    m_state->setAccessibleName(tr("State of the measurement"));
    m_done->setAccessibleName(tr("Points"));
    m_done->setFormat(tr("%v of %m points"));
    showAgain();
}

void MeasureStrip::show(const SweepProgress &progress, const QString &message)
{
    m_progress = progress;
    m_message = message;
    showAgain();
}

void MeasureStrip::showAgain()
{
    const SweepProgress &now = m_progress;
    const bool isPaused = now.state == SweepRun::State::Paused;
    m_angle->setText(tr("Angle %1°").arg(number(now.theta, 2)));
    m_angle->setToolTip(tr("The table reads %1°").arg(number(now.azimuth, 2)));
    m_level->setText(
        tr("Level %1")
            .arg(now.level ? number(*now.level, 2) + QStringLiteral(" dBm") : QStringLiteral("-")));
    m_spread->setText(
        tr("Spread %1")
            .arg(now.sigma ? number(*now.sigma, 3) + QStringLiteral(" dB") : QStringLiteral("-")));
    m_time->setText(
        tr("Remaining %1").arg(now.remaining < 0 ? QStringLiteral("-") : duration(now.remaining)));
    m_done->setRange(0, qMax(1, now.all));
    m_done->setValue(now.done);
    QString state = m_message;
    if (state.isEmpty() && isPaused)
        state = tr("Paused");
    else if (state.isEmpty() && now.state == SweepRun::State::Returning)
        state = tr("The table turns back");
    m_state->setText(state);
    QPushButton *next = isPaused ? m_resume : m_pause;
    QPushButton *other = isPaused ? m_pause : m_resume;
    next->setEnabled(now.state != SweepRun::State::Returning);
    // A button that is disabled would hand the keyboard on to Stop.
    if (other->hasFocus())
        next->setFocus();
    other->setEnabled(false);
}

void MeasureStrip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}
