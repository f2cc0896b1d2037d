#pragma once

#include <QLabel>

#include <memory>

class LimitWatch;

QT_BEGIN_NAMESPACE
class QSystemTrayIcon;
QT_END_NAMESPACE

/// Shows an alarm beside the power, by its text and a triangle that points to where the level went,
/// and tells of its begin once: by the desktop's notifications where there are any, and a sound.
class AlarmNotice : public QLabel
{
    Q_OBJECT

public:
    /// Hidden while there is no alarm and no reason for the limits to rest.
    AlarmNotice(LimitWatch *watch, QWidget *parent);
    ~AlarmNotice() override;

    void retranslate() { showState(); }

private:
    void showState();
    void notify(const QString &text);

    LimitWatch *m_watch;
    std::unique_ptr<QSystemTrayIcon> m_tray; // made with the first alarm
};
