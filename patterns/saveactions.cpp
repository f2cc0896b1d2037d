#include "patterns/saveactions.h"
#include "ui_patternwindow.h"

#include "2d/data/curvetext.h"
#include "2d/form/listchart.h"
#include "2d/view/graphicsbase.h"
#include "patterns/chartpicture.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/exportdialog.h"
#include "patterns/filenames.h"
#include "patterns/formats/msiformat.h"
#include "patterns/formats/patternfile.h"
#include "patterns/reportpage.h"
#include "patterns/savequestion.h"
#include "patterns/windowcontext.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace {

SaveFormat curveFormat()
{
    return {SaveActions::tr("Curve files"), {QStringLiteral("csv")}};
}

/// What the curves of an export share, else the name of the first.
QString patternName(const CurveSet &curves, const PatternChoice &choice)
{
    const QString horizontal = curves.name(choice.horizontal);
    const QString vertical = curves.name(choice.vertical);
    return horizontal.isEmpty() ? vertical : MsiFormat::commonName(horizontal, vertical);
}

} // namespace

SaveActions::SaveActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_desk(desk)
{
    connect(m_ui.actionSaveCurve, &QAction::triggered, this, &SaveActions::askCurve);
    connect(m_ui.actionSaveAllCurves, &QAction::triggered, this,
            [this] { saveAll(m_desk.curves().ids()); });
    connect(m_ui.actionSavePicture, &QAction::triggered, this, &SaveActions::askPicture);
    connect(m_ui.actionSaveReport, &QAction::triggered, this, &SaveActions::askReport);
    connect(m_ui.actionExportPattern, &QAction::triggered, this, &SaveActions::askPattern);
    connect(m_ui.actionPrint, &QAction::triggered, this, &SaveActions::print);
    for (const GraphicsBase *view : {&m_desk.form().polarChart(), &m_desk.form().cartesianChart()})
        connect(view, &GraphicsBase::curveExported, this, &SaveActions::noteSaved);
}

void SaveActions::update()
{
    const bool any = !m_desk.curves().ids().isEmpty();
    for (QAction *action : {m_ui.actionSaveAllCurves, m_ui.actionSavePicture, m_ui.actionSaveReport,
                            m_ui.actionExportPattern, m_ui.actionPrint})
        action->setEnabled(any);
    m_ui.actionSaveCurve->setEnabled(m_desk.curves().selected() != 0);
}

QString SaveActions::ask(const QString &caption, const QString &name,
                         const QVector<SaveFormat> &formats)
{
    const QString file = name + QLatin1Char('.') + formats.first().suffixes.first();
    return askSaveFile(m_desk.dialogParent(), caption,
                       QDir(m_desk.context().folder()).filePath(file), formats);
}

void SaveActions::askCurve()
{
    const CurveSet &curves = m_desk.curves();
    const QString name = fileNameFrom(curves.name(curves.selected()), tr("curve"));
    const QString file = ask(tr("Save Curve"), name, {curveFormat()});
    if (!file.isEmpty())
        saveCurve(file);
}

void SaveActions::askPicture()
{
    const QString file =
        ask(tr("Save Picture"), fileNameFrom(m_desk.form().title(), tr("patterns")),
            {{tr("PNG picture"), {QStringLiteral("png")}},
             {tr("JPEG picture"), {QStringLiteral("jpg"), QStringLiteral("jpeg")}},
             {tr("SVG drawing"), {QStringLiteral("svg")}},
             {tr("PDF drawing"), {QStringLiteral("pdf")}}});
    if (!file.isEmpty())
        savePicture(file);
}

void SaveActions::askReport()
{
    const QString file = ask(tr("Save Report"), fileNameFrom(m_desk.form().title(), tr("report")),
                             {{tr("HTML report"), {QStringLiteral("html"), QStringLiteral("htm")}},
                              {tr("PDF report"), {QStringLiteral("pdf")}}});
    if (!file.isEmpty())
        saveReport(file);
}

void SaveActions::askPattern()
{
    using PatternFormats::Format;
    const std::optional<PatternChoice> choice =
        ExportDialog::ask(m_desk.dialogParent(), m_desk.curves());
    if (!choice)
        return;
    const QString name = patternName(m_desk.curves(), *choice);
    QVector<SaveFormat> formats{
        {tr("MSI pattern"), {QStringLiteral("msi"), QStringLiteral("pln")}}};
    if (choice->format == Format::Nsma)
        formats = {{tr("NSMA pattern"), {QStringLiteral("adf")}}};
    else if (choice->format == Format::Nec)
        formats = {{tr("NEC2 listing"), {QStringLiteral("out")}}};
    const QString file = ask(tr("Export Pattern"), fileNameFrom(name, tr("pattern")), formats);
    if (!file.isEmpty())
        savePattern(*choice, file);
}

bool SaveActions::savePattern(const PatternChoice &choice, const QString &file)
{
    const CurveSet &curves = m_desk.curves();
    const auto cut = [&](int id, PatternFormats::Plane plane) {
        std::optional<PatternFormats::Cut> made;
        if (id == 0)
            return made;
        const CurveRecord record = curves.record(id);
        made.emplace();
        made->title = patternName(curves, choice);
        made->name = curves.name(id);
        made->frequency = record.frequency;
        made->points = curves.points(id);
        made->plane = plane;
        for (const auto &[key, value] : record.facts)
            made->details.append({key, value});
        return made;
    };
    const PatternFormats::Written written = PatternFormats::write(
        choice.format, cut(choice.horizontal, PatternFormats::Plane::Horizontal),
        cut(choice.vertical, PatternFormats::Plane::Vertical));
    if (!written.problem.isEmpty()) {
        m_desk.warn(tr("The pattern cannot be written:"), {written.problem});
        return false;
    }
    return m_desk.save(file, written.bytes);
}

void SaveActions::print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_desk.form().title());
    QPrintDialog dialog(&printer, m_desk.dialogParent());
    if (dialog.exec() == QDialog::Accepted)
        ReportPage::print(m_desk.form(), printer);
}

bool SaveActions::saveCurve(const QString &file)
{
    const int id = m_desk.curves().selected();
    return id != 0 && saveOne(id, file);
}

bool SaveActions::saveOne(int id, const QString &file)
{
    const CurveSet &curves = m_desk.curves();
    if (!m_desk.save(file,
                     CurveText::toFile(m_desk.form().title(), curves.name(id), curves.points(id))))
        return false;
    noteSaved(id, file);
    return true;
}

void SaveActions::noteSaved(int id, const QString &file)
{
    const CurveHistory::Step noStep(m_desk.history(), {}, CurveHistory::Kind::Final);
    CurveRecord record = m_desk.curves().record(id);
    record.file = QFileInfo(file).absoluteFilePath();
    record.isSaved = true;
    m_desk.curves().setRecord(id, record);
}

bool SaveActions::savePicture(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    QByteArray content;
    if (suffix == QStringLiteral("svg"))
        content = ChartPicture::svg(m_desk.form());
    else if (suffix == QStringLiteral("pdf"))
        content = ReportPage::chartPdf(m_desk.form());
    else
        content = ChartPicture::encode(ChartPicture::paint(m_desk.form(), ChartPicture::savedScale),
                                       file);
    if (content.isEmpty()) {
        m_desk.warn(tr("\"%1\" is no format for pictures: use png, jpg, svg or pdf.")
                        .arg(QFileInfo(file).suffix()));
        return false;
    }
    return m_desk.save(file, content);
}

bool SaveActions::saveReport(const QString &file)
{
    return m_desk.save(file, ReportPage::document(m_desk.form(), file));
}

bool SaveActions::saveAll(const QList<int> &ids)
{
    const QString folder = QFileDialog::getExistingDirectory(
        m_desk.dialogParent(), tr("Folder for the Curves"), m_desk.context().folder());
    if (folder.isEmpty())
        return false;
    QStringList files;
    QStringList existing;
    for (const int id : ids) {
        const QString name = fileNameFrom(m_desk.curves().name(id), tr("curve"));
        QString file = QDir(folder).filePath(name + QStringLiteral(".csv"));
        for (int number = 2; files.contains(file, Qt::CaseInsensitive); ++number) {
            file = QDir(folder).filePath(QStringLiteral("%1 (%2).csv").arg(name).arg(number));
        }
        files.append(file);
        if (QFileInfo::exists(file))
            existing.append(file);
    }
    if (!existing.isEmpty() && !askReplace(m_desk.dialogParent(), existing))
        return false;
    for (int i = 0; i < ids.size(); ++i) {
        if (!saveOne(ids.at(i), files.at(i)))
            return false;
    }
    m_desk.tell(tr("Curves written: %1.").arg(ids.size()));
    return true;
}

bool SaveActions::mayClose()
{
    QList<int> unsaved = m_desk.curves().ids();
    const auto isSaved = [this](int id) { return m_desk.curves().record(id).isSaved; };
    unsaved.erase(std::remove_if(unsaved.begin(), unsaved.end(), isSaved), unsaved.end());
    if (unsaved.isEmpty())
        return true;
    QStringList names;
    for (const int id : qAsConst(unsaved))
        names.append(m_desk.curves().name(id));
    QMessageBox box(
        QMessageBox::Question, tr("Close"),
        tr("These curves are in no file:\n%1").arg(names.mid(0, 10).join(QLatin1Char('\n'))),
        QMessageBox::SaveAll | QMessageBox::Discard | QMessageBox::Cancel, m_desk.dialogParent());
    box.setTextFormat(Qt::PlainText);
    if (names.size() > 10)
        box.setDetailedText(names.join(QLatin1Char('\n')));
    box.setDefaultButton(QMessageBox::SaveAll);
    switch (box.exec()) {
    case QMessageBox::SaveAll:
        return saveAll(unsaved);
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}
