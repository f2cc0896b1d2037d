#pragma once

#include "patterns/measure/measureinputs.h"

#include <QDialog>

#include <memory>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// Asks for what a measurement needs. *Check* talks to both devices and says what it found; before
/// that nothing can be started, so nothing moves. Emits `accepted` when a run has begun.
class MeasureDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a resumes: the plan is that of a run file, and stays as it is.
    MeasureDialog(const MeasureInputs &inputs, bool resumes, QWidget *parent = nullptr);
    ~MeasureDialog() override;

    MeasureInputs inputs() const;

    /// The devices and the run that *Start* has begun; to be called once, after `accepted`.
    std::unique_ptr<SweepDevices> takeDevices();
    std::unique_ptr<SweepSession> takeSession();

private:
    void buildDevices(QFormLayout &form);
    void buildPlan(QFormLayout &form);
    void buildReading(QFormLayout &form);
    void buildFile(QFormLayout &form);
    QDoubleSpinBox *angleField(QFormLayout &form, const QString &label, double min, double max);
    void show(const MeasureInputs &inputs);
    void connectFields();

    void check();
    void dropDevices();
    void focusButton(QPushButton &button);
    void tellFindings();
    void tellPlan();
    void tellFarField();
    void start();
    std::optional<RunStore::Mode> askMode();
    void browse();

    bool m_resumes;
    double m_foundFrequency = 0.0; ///< Hz; 0 before the check
    bool m_isChecked = false;
    std::unique_ptr<SweepDevices> m_devices;
    std::unique_ptr<SweepSession> m_session;

    QComboBox *m_link;
    QLineEdit *m_meter;
    QLineEdit *m_rotator;
    QDoubleSpinBox *m_from;
    QDoubleSpinBox *m_to;
    QDoubleSpinBox *m_step;
    QDoubleSpinBox *m_zero;
    QComboBox *m_sense;
    QDoubleSpinBox *m_tolerance;
    QSpinBox *m_settle;
    QSpinBox *m_readings;
    QCheckBox *m_hasFloor;
    QDoubleSpinBox *m_floor;
    QCheckBox *m_returns;
    QDoubleSpinBox *m_diameter;
    QLineEdit *m_title;
    QLineEdit *m_name;
    QLineEdit *m_file;
    QLabel *m_farField;
    QLabel *m_planText;
    QLabel *m_found;
    QPushButton *m_check;
    QPushButton *m_start;
};
