#pragma once

#include "measure/limits.h"

#include <QWidget>

class LimitWatch;
class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// Lets the user give limits and shows how the readings stand to them.
class LimitsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LimitsPanel(LimitWatch *watch, QWidget *parent = nullptr);

    /// What the boxes hold.
    Limits limits() const;
    /// Shows \a limits and gives them to the watch.
    void setLimits(const Limits &limits);
    /// Both levels as they stand in their boxes, whether they are watched or not: high, low in dBm.
    std::pair<double, double> levels() const;
    void setLevels(double high, double low);
    void retranslate();

private:
    void apply();
    void showState();

    LimitWatch *m_watch;
    QCheckBox *m_hasHigh;
    QDoubleSpinBox *m_high;
    QCheckBox *m_hasLow;
    QDoubleSpinBox *m_low;
    QLabel *m_hysteresisLabel;
    QDoubleSpinBox *m_hysteresis;
    QLabel *m_inARowLabel;
    QSpinBox *m_inARow;
    QCheckBox *m_latched;
    QPushButton *m_acknowledge;
    QLabel *m_state;
};
