#pragma once

#include "sweep/sweepsession.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/// The strip below the charts while a pattern is measured: where the run stands, and the buttons
/// that pause, resume and stop it.
class MeasureStrip : public QWidget
{
    Q_OBJECT

public:
    explicit MeasureStrip(QWidget *parent = nullptr);

    /// Shows where the run stands; \a message says why it does not go on, if so.
    void show(const SweepProgress &progress, const QString &message);

signals:
    void pauseWished();
    void resumeWished();
    void stopWished();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showAgain();

    SweepProgress m_progress;
    QString m_message;
    QLabel *m_angle;
    QLabel *m_level;
    QLabel *m_spread;
    QLabel *m_time;
    QLabel *m_state;
    QProgressBar *m_done;
    QPushButton *m_pause;
    QPushButton *m_resume;
    QPushButton *m_stop;
};
