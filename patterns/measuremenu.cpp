#include "patterns/measuremenu.h"

#include "2d/form/listchart.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/measure/measuredialog.h"
#include "patterns/measure/measurement.h"
#include "patterns/windowcontext.h"

#include <QDir>
#include <QFile>
#include <QMenu>

MeasureMenu::MeasureMenu(QMenu &menu, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
    , m_desk(desk)
    , m_pattern(m_menu.addAction({}, this, [this] { measurePattern(); }))
{
    m_menu.menuAction()->setVisible(!m_menu.isEmpty());
    retranslate();
}

MeasureMenu::~MeasureMenu() = default;

void MeasureMenu::retranslate()
{
    m_pattern->setText(tr("Measure &Pattern..."));
    m_pattern->setToolTip(tr("Measures a pattern with the power meter and a turntable"));
    m_pattern->setStatusTip(m_pattern->toolTip());
}

void MeasureMenu::measurePattern(const QString &meter, const QString &rotator)
{
    MeasureInputs inputs = MeasureInputs::fromJson(m_desk.context().measuring());
    if (!meter.isEmpty()) {
        inputs.isSerial = false;
        inputs.meter = meter;
    }
    if (!rotator.isEmpty())
        inputs.rotator = rotator;
    const QDir folder(m_desk.context().folder());
    const QString name = tr("pattern");
    QString file = folder.filePath(name + QStringLiteral(".csv"));
    for (int i = 2; QFile::exists(file) || QFile::exists(RunText::pathBeside(file)); ++i)
        file = folder.filePath(QStringLiteral("%1-%2.csv").arg(name).arg(i));
    inputs.file = file;
    ask(inputs, false);
}

void MeasureMenu::openRun(const QString &path)
{
    QFile file(path);
    std::optional<RunFile> run;
    if (file.open(QIODevice::ReadOnly))
        run = RunText::read(file.readAll());
    if (!run) {
        m_desk.warn(
            tr("This is no run file that can be resumed: %1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    const QString curve = RunText::curveBeside(path);
    if (run->isComplete(layOut(run->header.plan, run->header.limits).points)) {
        const CurveHistory::Step noStep(m_desk.history(), {}, CurveHistory::Kind::Final);
        m_desk.form().addCurve(run->header.curve, run->curve(), recordOfRun(*run, curve));
        return;
    }
    MeasureInputs inputs = MeasureInputs::fromJson(m_desk.context().measuring());
    inputs.header = run->header;
    inputs.rotator = run->header.rotator.section(QLatin1Char(' '), 0, 0);
    inputs.file = curve;
    ask(inputs, true);
}

void MeasureMenu::ask(const MeasureInputs &inputs, bool resumes)
{
    if (m_measurement) {
        m_desk.warn(tr("A pattern is being measured in this window already."));
        return;
    }
    auto *dialog = new MeasureDialog(inputs, resumes, m_desk.dialogParent());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { begin(*dialog); });
    dialog->open();
}

void MeasureMenu::begin(MeasureDialog &dialog)
{
    m_desk.context().rememberMeasuring(dialog.inputs().toJson());
    m_desk.context().rememberFolder(dialog.inputs().file);
    m_measurement =
        std::make_unique<Measurement>(m_desk, dialog.takeDevices(), dialog.takeSession());
    m_pattern->setEnabled(false);
    connect(m_measurement.get(), &Measurement::ended, this, [this] {
        m_measurement.release()->deleteLater();
        m_pattern->setEnabled(true);
    });
}
