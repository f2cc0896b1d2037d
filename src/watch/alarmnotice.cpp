#include "watch/alarmnotice.h"

#include "watch/limitwatch.h"

#include <QApplication>
#include <QSystemTrayIcon>

AlarmNotice::AlarmNotice(LimitWatch *watch, QWidget *parent)
    : QLabel(parent)
    , m_watch(watch)
{
    setObjectName(QStringLiteral("labelAlarm"));
    setTextFormat(Qt::PlainText);
    hide();
    connect(watch, &LimitWatch::changed, this, &AlarmNotice::showState);
    connect(watch, &LimitWatch::alarmBegan, this, &AlarmNotice::notify);
}

AlarmNotice::~AlarmNotice() = default;

void AlarmNotice::showState()
{
    const LimitWatch::State state = m_watch->state();
    // Its place is kept while limits are watched, so that nothing moves when an alarm begins.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(state != LimitWatch::State::Off);
    setSizePolicy(policy);
    setVisible(m_watch->isAlarm() || state == LimitWatch::State::Resting);
    if (state == LimitWatch::State::Off)
        return; // neither seen nor kept a place for
    if (m_watch->isAlarm()) {
        const QString shape = m_watch->isAlarm(LimitAlarm::High) ? QStringLiteral("\u25b2")
                                                                 : QStringLiteral("\u25bc");
        setText(QStringLiteral("%1 %2").arg(shape, tr("Alarm: %1").arg(m_watch->alarmText())));
        setStyleSheet(QStringLiteral("QLabel{border:2px solid #B3261E;border-radius:4px;"
                                     "padding:0px 8px;color:#B3261E;font-weight:bold;}"));
    } else {
        setText(tr("The limits rest"));
        setStyleSheet(QStringLiteral("QLabel{border:2px solid #BCC6CF;border-radius:4px;"
                                     "padding:0px 8px;color:#46535F;}"));
    }
    setAccessibleName(text());
}

void AlarmNotice::notify(const QString &text)
{
    QApplication::beep();
    QApplication::alert(window());
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return;
    if (!m_tray) {
        m_tray = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
        m_tray->show();
    }
    m_tray->showMessage(window()->windowTitle(), tr("Alarm: %1").arg(text),
                        QSystemTrayIcon::Warning);
}
