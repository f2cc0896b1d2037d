#include "patterns/measure/measuredialog.h"

#include "2d/data/curvetext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

namespace {

QGroupBox *group(const QString &title, QFormLayout *&form)
{
    auto *box = new QGroupBox(title);
    form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    return box;
}

/// Puts \a field into \a form behind a label that also names it to those who cannot see it.
template<typename Field>
Field *add(QFormLayout &form, const QString &label, Field *field, const QString &tip = {})
{
    form.addRow(label, field);
    QString name = label;
    field->setAccessibleName(name.remove(QLatin1Char('&')));
    field->setToolTip(tip);
    return field;
}

QString hertz(double frequency)
{
    return CurveText::number(frequency / megahertz) + QStringLiteral(" MHz");
}

} // namespace

MeasureDialog::MeasureDialog(const MeasureInputs &inputs, bool resumes, QWidget *parent)
    : QDialog(parent)
    , m_resumes(resumes)
{
    setWindowTitle(resumes ? tr("Resume Measuring a Pattern") : tr("Measure Pattern"));
    setLocale(QLocale::c()); // a decimal point, whatever the system's locale
    QFormLayout *devices = nullptr;
    QFormLayout *plan = nullptr;
    QFormLayout *reading = nullptr;
    QFormLayout *file = nullptr;
    auto *grid = new QGridLayout;
    grid->addWidget(group(tr("Devices"), devices), 0, 0);
    grid->addWidget(group(tr("Angles"), plan), 0, 1, 2, 1);
    grid->addWidget(group(tr("Readings"), reading), 1, 0);
    grid->addWidget(group(tr("Curve"), file), 2, 0, 1, 2);
    buildDevices(*devices);
    buildPlan(*plan);
    buildReading(*reading);
    buildFile(*file);

    m_found = new QLabel(tr("Check first: nothing moves before both devices have answered."));
    m_found->setWordWrap(true);
    m_found->setMinimumHeight(4 * fontMetrics().height());
    m_found->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_found->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_found->setAccessibleName(tr("What the devices told"));

    auto *buttons = new QDialogButtonBox;
    m_check = buttons->addButton(tr("Chec&k"), QDialogButtonBox::ActionRole);
    m_start =
        buttons->addButton(resumes ? tr("Res&ume") : tr("&Start"), QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    m_start->setEnabled(false);
    m_check->setDefault(true);
    connect(m_check, &QPushButton::clicked, this, &MeasureDialog::check);
    connect(m_start, &QPushButton::clicked, this, &MeasureDialog::start);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(m_found);
    layout->addWidget(buttons);
    show(inputs);
    connectFields();
    tellPlan();
    tellFarField();
}

MeasureDialog::~MeasureDialog() = default;

void MeasureDialog::buildDevices(QFormLayout &form)
{
    m_link = add(form, tr("Meter b&y:"), new QComboBox);
    m_link->addItems({tr("LAN"), tr("Serial port")});
    m_meter = add(form, tr("&Meter:"), new QLineEdit,
                  tr("HOST or HOST:PORT; with a serial port PORT or PORT:BAUD"));
    m_rotator = add(form, tr("&Rotator:"), new QLineEdit,
                    tr("HOST or HOST:PORT of rotctld, port 4533 unless given"));
}

QDoubleSpinBox *MeasureDialog::angleField(QFormLayout &form, const QString &label, double min,
                                          double max)
{
    QDoubleSpinBox *field = add(form, label, new QDoubleSpinBox);
    field->setRange(min, max);
    field->setDecimals(2);
    field->setSuffix(QStringLiteral("°"));
    return field;
}

void MeasureDialog::buildPlan(QFormLayout &form)
{
    m_from = angleField(form, tr("&From:"), -360.0, 360.0);
    m_to = angleField(form, tr("&To:"), -360.0, 360.0);
    m_step = angleField(form, tr("Ste&p:"), 0.01, 360.0);
    m_zero = angleField(form, tr("&Zero at:"), -360.0, 720.0);
    m_zero->setToolTip(tr("The table's angle at which the antenna's front looks at the source"));
    m_sense = add(form, tr("S&ense:"), new QComboBox,
                  tr("Whether the curve's angle grows as the table's does"));
    m_sense->addItems({tr("As the table"), tr("Opposite")});
    m_tolerance = angleField(form, tr("Toleran&ce:"), 0.01, 45.0);
    m_returns = new QCheckBox(tr("Turn &back at the end"));
    form.addRow(m_returns);
    m_planText = new QLabel;
    m_planText->setWordWrap(true);
    form.addRow(m_planText);
    for (QWidget *field : QVector<QWidget *>{m_from, m_to, m_step, m_zero, m_sense, m_tolerance})
        field->setEnabled(!m_resumes);
}

void MeasureDialog::buildReading(QFormLayout &form)
{
    m_settle = add(form, tr("Settlin&g:"), new QSpinBox,
                   tr("From the table's arrival to the first reading"));
    m_settle->setRange(0, 3600000);
    m_settle->setSingleStep(100);
    m_settle->setSuffix(QStringLiteral(" ms"));
    m_readings = add(form, tr("Rea&dings a point:"), new QSpinBox,
                     tr("Their mean is taken in milliwatts; one more is thrown away first"));
    m_readings->setRange(1, 10000);
    m_hasFloor = new QCheckBox(tr("Fl&oor:"));
    m_floor = new QDoubleSpinBox;
    m_floor->setRange(-200.0, 100.0);
    m_floor->setValue(-60.0);
    m_floor->setSuffix(QStringLiteral(" dBm"));
    m_floor->setAccessibleName(tr("Level with the source off"));
    m_floor->setToolTip(tr("Level with the source off; points within 10 dB of it are marked"));
    m_floor->setEnabled(false);
    form.addRow(m_hasFloor, m_floor);
    for (QWidget *field : QVector<QWidget *>{m_settle, m_readings, m_hasFloor})
        field->setEnabled(!m_resumes);
}

void MeasureDialog::buildFile(QFormLayout &form)
{
    m_title = add(form, tr("T&itle:"), new QLineEdit);
    m_name = add(form, tr("&Name:"), new QLineEdit, tr("The name of the curve"));
    auto *row = new QHBoxLayout;
    m_file = new QLineEdit;
    m_file->setAccessibleName(tr("Curve file"));
    m_file->setToolTip(tr("Every point is kept at once in NAME.run.csv beside it"));
    auto *browse = new QPushButton(tr("Bro&wse..."));
    connect(browse, &QPushButton::clicked, this, &MeasureDialog::browse);
    row->addWidget(m_file);
    row->addWidget(browse);
    auto *label = new QLabel(tr("Fi&le:"));
    label->setBuddy(m_file);
    form.addRow(label, row);
    m_diameter = add(form, tr("&Antenna size:"), new QDoubleSpinBox,
                     tr("Its largest dimension, for the hint on the distance"));
    m_diameter->setRange(0.0, 100.0);
    m_diameter->setDecimals(3);
    m_diameter->setSingleStep(0.05);
    m_diameter->setSuffix(QStringLiteral(" m"));
    m_farField = new QLabel;
    form.addRow(m_farField);
    for (QWidget *field : QVector<QWidget *>{m_title, m_name, m_file, browse})
        field->setEnabled(!m_resumes);
}

void MeasureDialog::show(const MeasureInputs &inputs)
{
    const RunHeader &header = inputs.header;
    m_link->setCurrentIndex(inputs.isSerial ? 1 : 0);
    m_meter->setText(inputs.meter);
    m_rotator->setText(inputs.rotator);
    m_from->setValue(header.plan.from);
    m_to->setValue(header.plan.to);
    m_step->setValue(header.plan.step);
    m_zero->setValue(header.plan.zero);
    m_sense->setCurrentIndex(header.plan.sense < 0 ? 1 : 0);
    m_tolerance->setValue(header.tolerance);
    m_settle->setValue(header.settle);
    m_readings->setValue(header.readings);
    m_hasFloor->setChecked(header.floor.has_value());
    if (header.floor)
        m_floor->setValue(*header.floor);
    m_floor->setEnabled(m_hasFloor->isChecked() && !m_resumes);
    m_returns->setChecked(inputs.returns);
    m_diameter->setValue(inputs.diameter);
    m_title->setText(header.title);
    m_name->setText(header.curve);
    m_file->setText(QDir::toNativeSeparators(inputs.file));
}

MeasureInputs MeasureDialog::inputs() const
{
    MeasureInputs inputs;
    inputs.isSerial = m_link->currentIndex() == 1;
    inputs.meter = m_meter->text().trimmed();
    inputs.rotator = m_rotator->text().trimmed();
    RunHeader &header = inputs.header;
    header.plan = {m_from->value(), m_to->value(), m_step->value(), m_zero->value(),
                   m_sense->currentIndex() == 1 ? -1 : 1};
    header.tolerance = m_tolerance->value();
    header.settle = m_settle->value();
    header.readings = m_readings->value();
    if (m_hasFloor->isChecked())
        header.floor = m_floor->value();
    inputs.returns = m_returns->isChecked();
    inputs.diameter = m_diameter->value();
    inputs.file = QDir::fromNativeSeparators(m_file->text().trimmed());
    const QString base = QFileInfo(inputs.file).completeBaseName();
    header.title = m_title->text().trimmed().isEmpty() ? base : m_title->text();
    header.curve = m_name->text().trimmed().isEmpty() ? base : m_name->text();
    return inputs;
}

void MeasureDialog::connectFields()
{
    const auto spins = QVector<QDoubleSpinBox *>{m_from, m_to, m_step, m_zero};
    for (QDoubleSpinBox *field : spins)
        connect(field, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &MeasureDialog::tellPlan);
    connect(m_sense, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &MeasureDialog::tellPlan);
    connect(m_diameter, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &MeasureDialog::tellFarField);
    connect(m_hasFloor, &QCheckBox::toggled, m_floor, &QWidget::setEnabled);
    connect(m_link, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &MeasureDialog::dropDevices);
    for (QLineEdit *field : {m_meter, m_rotator})
        connect(field, &QLineEdit::textChanged, this, &MeasureDialog::dropDevices);
}

void MeasureDialog::dropDevices()
{
    m_session.reset();
    m_devices.reset();
    m_isChecked = false;
    m_foundFrequency = 0.0;
    m_check->setEnabled(true);
    m_found->setText(tr("Check first: nothing moves before both devices have answered."));
    tellPlan();
    tellFarField();
}

void MeasureDialog::check()
{
    dropDevices();
    const std::optional<SweepAddresses> addresses = inputs().addresses();
    if (!addresses) {
        m_found->setText(tr("The address of the meter or of the rotator is none."));
        return;
    }
    m_found->setText(tr("Asking both devices..."));
    m_check->setEnabled(false);
    m_devices = std::make_unique<SweepDevices>(*addresses);
    connect(m_devices.get(), &SweepDevices::checked, this, [this] {
        m_isChecked = true;
        m_check->setEnabled(true);
        tellFindings();
        tellPlan();
        tellFarField();
        focusButton(m_start->isEnabled() ? *m_start : *m_check);
    });
    connect(m_devices.get(), &SweepDevices::absent, this,
            [this](SweepDevices::Device device, const QString &reason) {
                const bool isMeter = device == SweepDevices::Device::Meter;
                m_found->setText(isMeter ? tr("The meter does not answer: %1").arg(reason)
                                         : tr("The rotator does not answer: %1").arg(reason));
                m_check->setEnabled(true);
                focusButton(*m_check);
            });
    m_devices->check();
}

/// Makes \a button the one that Enter presses: the next step, not the one that ends it all.
void MeasureDialog::focusButton(QPushButton &button)
{
    button.setDefault(true);
    if (qobject_cast<QPushButton *>(focusWidget()))
        button.setFocus();
}

void MeasureDialog::tellFindings()
{
    const SweepFindings &found = m_devices->findings();
    const MeterSettings &settings = found.meter.settings;
    m_foundFrequency = settings.frequencyHz().value_or(0.0);
    const QString level = found.reading.reading.isValid()
                              ? QStringLiteral("%1 dBm").arg(found.reading.reading.level, 0, 'f', 2)
                              : tr("no reading");
    QStringList lines;
    lines << tr("Meter: %1, %2, now %3").arg(found.meter.identity, hertz(m_foundFrequency), level);
    const QString model =
        found.table.model.isEmpty() ? m_devices->addresses().rotator() : found.table.model;
    lines << (found.table.limits ? tr("Rotator: %1, turns from %2° to %3°, stands at %4°")
                                       .arg(model, CurveText::number(found.table.limits->min),
                                            CurveText::number(found.table.limits->max),
                                            CurveText::number(found.azimuth))
                                 : tr("Rotator: %1, limits not told, stands at %2°")
                                       .arg(model, CurveText::number(found.azimuth)));
    if (settings.isRelative.value_or(false))
        lines << tr("The meter measures relative to a reference; turn that off first.");
    m_found->setText(lines.join(QLatin1Char('\n')));
}

void MeasureDialog::tellPlan()
{
    std::optional<TableLimits> limits;
    if (m_isChecked)
        limits = m_devices->findings().table.limits;
    const PlanLayout layout = layOut(inputs().header.plan, limits);
    const bool isPossible = layout.problem == PlanLayout::Problem::None;
    m_planText->setText(isPossible ? tr("%1 points").arg(layout.points.size())
                                   : PlanText::problem(layout.problem, limits));
    m_start->setEnabled(m_isChecked && isPossible);
}

void MeasureDialog::tellFarField()
{
    const double distance = farFieldDistance(m_diameter->value(), m_foundFrequency);
    if (distance > 0.0)
        m_farField->setText(tr("Far field from 2D²/λ = %1 m on, at %2.")
                                .arg(distance, 0, 'f', 2)
                                .arg(hertz(m_foundFrequency)));
    else
        m_farField->setText(
            tr("With the antenna's size, Check tells the far-field distance 2D²/λ."));
}

std::optional<RunStore::Mode> MeasureDialog::askMode()
{
    const MeasureInputs given = inputs();
    const bool hasRun = QFileInfo::exists(RunText::pathBeside(given.file));
    if (m_resumes)
        return RunStore::Mode::Resume;
    if (!hasRun && !QFileInfo::exists(given.file))
        return RunStore::Mode::New;
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    hasRun
                        ? tr("A run into this file was begun before. Go on with it, or begin anew?")
                        : tr("The file exists already. Replace it at the end?"),
                    QMessageBox::Cancel, this);
    const QPushButton *resume =
        hasRun ? box.addButton(tr("&Go On"), QMessageBox::AcceptRole) : nullptr;
    const QPushButton *replace =
        box.addButton(hasRun ? tr("&Begin Anew") : tr("&Replace"), QMessageBox::DestructiveRole);
    box.exec();
    if (resume && box.clickedButton() == resume)
        return RunStore::Mode::Resume;
    if (box.clickedButton() == replace)
        return RunStore::Mode::Overwrite;
    return std::nullopt;
}

void MeasureDialog::start()
{
    const MeasureInputs given = inputs();
    if (given.file.isEmpty()) {
        browse();
        return;
    }
    const std::optional<RunStore::Mode> mode = askMode();
    // A link may have been lost while the question stood there.
    if (!mode || !m_isChecked)
        return;
    m_session =
        std::make_unique<SweepSession>(SweepJob{given.header, given.file, *mode, given.returns});
    SweepSession::Refusal refusal = m_session->prepare();
    if (refusal == SweepSession::Refusal::None && m_session->isComplete()) {
        m_found->setText(tr("This run is complete; open its curve instead."));
        m_session.reset();
        return;
    }
    if (refusal == SweepSession::Refusal::None)
        refusal = m_session->start(*m_devices);
    if (refusal == SweepSession::Refusal::None) {
        // The meter may have been set otherwise since the check.
        m_devices->meter().describe();
        accept();
        return;
    }
    m_found->setText(m_session->refusalText(refusal));
    m_session.reset();
}

void MeasureDialog::browse()
{
    QString file = QFileDialog::getSaveFileName(this, tr("Curve File"), m_file->text(),
                                                tr("Curve files (*.csv)"), nullptr,
                                                QFileDialog::DontConfirmOverwrite);
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += QStringLiteral(".csv");
    m_file->setText(QDir::toNativeSeparators(file));
}

std::unique_ptr<SweepDevices> MeasureDialog::takeDevices()
{
    return std::move(m_devices);
}

std::unique_ptr<SweepSession> MeasureDialog::takeSession()
{
    return std::move(m_session);
}
