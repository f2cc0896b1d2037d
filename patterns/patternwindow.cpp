#include "patterns/patternwindow.h"
#include "ui_patternwindow.h"

#include "2d/data/curvetext.h"
#include "2d/view/graphicsbase.h"
#include "patterns/chartpicture.h"
#include "patterns/curveimport.h"
#include "patterns/filenames.h"
#include "patterns/reportpage.h"
#include "patterns/workbench.h"
#include "storage/filewriting.h"

#include <QActionGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>

namespace {

constexpr int messageTime = 10000; // milliseconds
constexpr qreal pictureScale = 2.0;

} // namespace

PatternWindow::PatternWindow(Workbench &workbench, QWidget *parent)
    : QMainWindow(parent)
    , m_workbench(workbench)
    , ui(std::make_unique<Ui::PatternWindow>())
{
    ui->setupUi(this);
    restoreGeometry(m_workbench.settings().windowGeometry());
    ui->listChart->addCurveAction(ui->actionRemoveCurve);
    ui->listChart->addCurveAction(ui->actionCopyCurve);
    ui->listChart->addCurveAction(ui->actionSaveCurve);
    setUpLanguages();
    connectActions();
    showRecentFiles();
    updateActions();
}

PatternWindow::~PatternWindow() = default;

ListChart &PatternWindow::form() const
{
    return *ui->listChart;
}

void PatternWindow::connectActions()
{
    connect(ui->actionClose, &QAction::triggered, this, &QWidget::close);
    connect(ui->actionQuit, &QAction::triggered, qApp, &QApplication::closeAllWindows);
    connect(ui->actionAboutQt, &QAction::triggered, qApp, &QApplication::aboutQt);
    connect(ui->actionFit, &QAction::triggered, ui->listChart, &ListChart::fitToData);
    connect(ui->actionSymmetry, &QAction::triggered, ui->listChart,
            [this] { ui->listChart->setSymmetry(true); });
    connect(ui->actionUndoSymmetry, &QAction::triggered, ui->listChart,
            [this] { ui->listChart->setSymmetry(false); });
    connect(ui->actionParameterLines, &QAction::toggled, ui->listChart,
            &ListChart::setParameterLines);
    connect(ui->actionManageCurves, &QAction::triggered, ui->listChart, &ListChart::manageCurves);
    connect(ui->actionApplyUplink, &QAction::triggered, this,
            [this] { applyLoss(LossCorrection::Link::Up); });
    connect(ui->actionApplyDownlink, &QAction::triggered, this,
            [this] { applyLoss(LossCorrection::Link::Down); });
    connect(ui->listChart, &ListChart::filesDropped, this, &PatternWindow::openFiles);
    connect(ui->listChart, &ListChart::message, this, &PatternWindow::tell);
    connect(&form().curves(), &CurveSet::changed, this, &PatternWindow::updateActions);
    connect(&form().curves(), &CurveSet::selectionChanged, this, &PatternWindow::updateActions);
    connect(&m_workbench, &Workbench::recentFilesChanged, this, &PatternWindow::showRecentFiles);
    connect(ui->menuLoss, &QMenu::aboutToShow, this, &PatternWindow::updateActions);
}

void PatternWindow::setUpLanguages()
{
    auto *group = new QActionGroup(this);
    group->addAction(ui->actionEnglish);
    group->addAction(ui->actionChinese);
    const auto showLanguage = [this] {
        const bool chinese = m_workbench.language() == QStringLiteral("cn");
        (chinese ? ui->actionChinese : ui->actionEnglish)->setChecked(true);
    };
    connect(&m_workbench, &Workbench::languageChanged, this, showLanguage);
    connect(ui->actionEnglish, &QAction::triggered, &m_workbench,
            [this] { m_workbench.setLanguage(QStringLiteral("en")); });
    connect(ui->actionChinese, &QAction::triggered, &m_workbench,
            [this] { m_workbench.setLanguage(QStringLiteral("cn")); });
    showLanguage();
}

void PatternWindow::showRecentFiles()
{
    ui->menuRecent->clear();
    const QStringList &files = m_workbench.recentFiles();
    for (const QString &file : files) {
        ui->menuRecent->addAction(QDir::toNativeSeparators(file), this, [this, file] {
            if (!QFileInfo::exists(file))
                m_workbench.removeRecentFile(file);
            openFiles({file});
        });
    }
    ui->menuRecent->addSeparator();
    ui->menuRecent->addAction(tr("&Clear List"), &m_workbench, &Workbench::clearRecentFiles);
    ui->menuRecent->setEnabled(!files.isEmpty());
}

/// All enabled states follow from what is there and what is selected.
void PatternWindow::updateActions()
{
    const bool any = !form().curves().ids().isEmpty();
    const bool selected = form().curves().selected() != 0;
    const bool losses = selected && !LossCorrection::tableName().isEmpty();
    for (QAction *action :
         {ui->actionSavePicture, ui->actionSaveReport, ui->actionPrint, ui->actionCopyParameters,
          ui->actionSymmetry, ui->actionUndoSymmetry, ui->actionManageCurves})
        action->setEnabled(any);
    for (QAction *action : {ui->actionSaveCurve, ui->actionCopyCurve, ui->actionRemoveCurve})
        action->setEnabled(selected);
    ui->actionApplyUplink->setEnabled(losses);
    ui->actionApplyDownlink->setEnabled(losses);
}

void PatternWindow::openFiles(const QStringList &files)
{
    if (files.isEmpty())
        return;
    m_workbench.rememberFolder(files.first());
    const CurveImport result = importCurves(form(), files);
    for (const QString &file : result.opened)
        m_workbench.addRecentFile(file);
    if (result.cancelled)
        tell(tr("Opening was cancelled; the charts are as they were."));
    else
        tell(tr("Curves opened: %1.").arg(result.opened.size()));
    if (!result.failures.isEmpty())
        warn(tr("These files could not be opened:"), result.failures + result.remarks);
    else if (!result.remarks.isEmpty())
        warn(tr("The files were opened. Please look at these points:"), result.remarks);
}

bool PatternWindow::saveCurve(const QString &file)
{
    const CurveSet &curves = form().curves();
    const int id = curves.selected();
    return id != 0 &&
           save(file, CurveText::toFile(form().title(), curves.name(id), curves.points(id)));
}

bool PatternWindow::savePicture(const QString &file)
{
    const QByteArray content =
        ChartPicture::encode(ChartPicture::paint(form(), pictureScale), file);
    if (content.isEmpty()) {
        warn(tr("\"%1\" is no format for pictures: use png or jpg.").arg(QFileInfo(file).suffix()));
        return false;
    }
    return save(file, content);
}

bool PatternWindow::saveReport(const QString &file)
{
    const bool isPdf =
        QFileInfo(file).suffix().compare(QStringLiteral("pdf"), Qt::CaseInsensitive) == 0;
    return save(file, isPdf ? ReportPage::pdf(form()) : ReportPage::html(form()));
}

bool PatternWindow::save(const QString &file, const QByteArray &content)
{
    const FileOutcome outcome = replaceFile(file, content);
    if (outcome.kind != FileOutcome::Kind::Written) {
        warn(tr("The file could not be written, what was there is unchanged: %1\n%2")
                 .arg(QDir::toNativeSeparators(file), outcome.reason));
        return false;
    }
    m_workbench.rememberFolder(file);
    tell(tr("Written: %1").arg(QDir::toNativeSeparators(file)));
    return true;
}

bool PatternWindow::loadLossTable(const QString &file)
{
    const QString problem = LossCorrection::load(file);
    if (!problem.isEmpty()) {
        warn(tr("The loss table could not be loaded: %1\n%2")
                 .arg(QDir::toNativeSeparators(file), problem));
        return false;
    }
    m_workbench.rememberFolder(file);
    tell(tr("Loss table loaded: %1").arg(LossCorrection::tableName()));
    updateActions();
    return true;
}

void PatternWindow::applyLoss(LossCorrection::Link link)
{
    const CurveSet &curves = form().curves();
    const int id = curves.selected();
    if (id == 0)
        return;
    CurveRecord record = curves.record(id);
    bool known = false;
    const double frequency = record.frequency.toDouble(&known);
    if (!known) {
        warn(tr("Please enter the frequency of \"%1\" in the list of curves first.")
                 .arg(curves.name(id)));
        return;
    }
    const std::optional<LossCorrection::Loss> loss = LossCorrection::at(link, frequency);
    if (!loss) {
        warn(tr("The loss table cannot tell the loss at %1 MHz.").arg(record.frequency));
        return;
    }
    const bool up = link == LossCorrection::Link::Up;
    QString text = (up ? tr("up-link %1%2 dB") : tr("down-link %1%2 dB"))
                       .arg(loss->value < 0.0 ? QString() : QStringLiteral("+"))
                       .arg(loss->value, 0, 'f', 2);
    QString name = (up ? tr("%1, up-link") : tr("%1, down-link")).arg(curves.name(id));
    if (loss->extrapolated) {
        text = tr("%1 (extrapolated)").arg(text);
        name = tr("%1 (extrapolated)").arg(name);
    }
    record.correction += (record.correction.isEmpty() ? QString() : QStringLiteral("; ")) + text;
    record.extrapolated = record.extrapolated || loss->extrapolated;
    form().addCurve(name, LossCorrection::corrected(curves.points(id), *loss), record);
}

void PatternWindow::tell(const QString &text)
{
    statusBar()->showMessage(text, messageTime);
}

void PatternWindow::warn(const QString &text, const QStringList &details)
{
    constexpr int shownDetails = 8;
    QString full = text;
    for (const QString &detail : details.mid(0, shownDetails))
        full += QStringLiteral("\n\u2022 ") + detail;
    QMessageBox box(QMessageBox::Warning, windowTitle(), full, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    if (details.size() > shownDetails)
        box.setDetailedText(details.join(QLatin1Char('\n')));
    box.exec();
}

QString PatternWindow::askSaveName(const QString &caption, const QString &name,
                                   const QString &suffix, const QString &filters)
{
    const QString proposed = QDir(m_workbench.folder()).filePath(name + QLatin1Char('.') + suffix);
    QString file = QFileDialog::getSaveFileName(this, caption, proposed, filters);
    if (!file.isEmpty() && QFileInfo(file).suffix().isEmpty())
        file += QLatin1Char('.') + suffix;
    return file;
}

void PatternWindow::on_actionNewWindow_triggered()
{
    m_workbench.openWindow();
}

void PatternWindow::on_actionOpen_triggered()
{
    openFiles(QFileDialog::getOpenFileNames(this, tr("Open Curves"), m_workbench.folder(),
                                            tr("Curve files (*.csv);;All files (*)")));
}

void PatternWindow::on_actionOpenSamples_triggered()
{
    const QStringList files = sampleFiles(QCoreApplication::applicationDirPath());
    if (files.isEmpty())
        warn(tr("The sample patterns are not installed."));
    openFiles(files);
}

void PatternWindow::on_actionSaveCurve_triggered()
{
    const CurveSet &curves = form().curves();
    const QString name = fileNameFrom(curves.name(curves.selected()), tr("curve"));
    const QString file = askSaveName(tr("Save Curve"), name, QStringLiteral("csv"),
                                     tr("Curve files (*.csv);;All files (*)"));
    if (!file.isEmpty())
        saveCurve(file);
}

void PatternWindow::on_actionSavePicture_triggered()
{
    const QString file =
        askSaveName(tr("Save Picture"), fileNameFrom(form().title(), tr("patterns")),
                    QStringLiteral("png"), tr("Pictures (*.png *.jpg)"));
    if (!file.isEmpty())
        savePicture(file);
}

void PatternWindow::on_actionSaveReport_triggered()
{
    const QString file = askSaveName(tr("Save Report"), fileNameFrom(form().title(), tr("report")),
                                     QStringLiteral("html"), tr("Reports (*.html *.pdf)"));
    if (!file.isEmpty())
        saveReport(file);
}

void PatternWindow::on_actionPrint_triggered()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(form().title());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        ReportPage::print(form(), printer);
}

void PatternWindow::on_actionCopyCurve_triggered()
{
    const CurveSet &curves = form().curves();
    const int id = curves.selected();
    if (id != 0)
        QApplication::clipboard()->setText(
            CurveText::toClipboard(curves.name(id), curves.points(id)));
}

void PatternWindow::on_actionPasteCurve_triggered()
{
    const CurveText::Curve curve = CurveText::fromClipboard(QApplication::clipboard()->text());
    if (curve.status == CurveText::Status::Complete)
        form().addCurve(curve.name, curve.points);
    else
        tell(tr("There is no curve on the clipboard."));
}

void PatternWindow::on_actionCopyParameters_triggered()
{
    QApplication::clipboard()->setText(form().parameterText());
    tell(tr("The parameter table is on the clipboard."));
}

void PatternWindow::on_actionRemoveCurve_triggered()
{
    form().curves().remove(form().curves().selected());
}

void PatternWindow::on_actionLoadLoss_triggered()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Load Loss Table"), m_workbench.folder(),
                                     tr("Loss tables (*.csv);;All files (*)"));
    if (!file.isEmpty())
        loadLossTable(file);
}

void PatternWindow::on_actionAbout_triggered()
{
    QMessageBox::about(
        this, tr("About"),
        tr("<h3>Antenna Pattern Workbench</h3>"
           "<p>Version %1, with Qt %2</p>"
           "<p>Shows antenna patterns in a polar and a cartesian chart and tells gain, "
           "beam width, nulls and side lobes.</p>")
            .arg(QStringLiteral(MZ_VERSION), QString::fromLatin1(qVersion())));
}

void PatternWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showRecentFiles();
    }
}

void PatternWindow::closeEvent(QCloseEvent *event)
{
    m_workbench.rememberGeometry(saveGeometry());
    event->accept();
}
