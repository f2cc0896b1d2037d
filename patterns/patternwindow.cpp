#include "patterns/patternwindow.h"
#include "ui_patternwindow.h"

#include "frame/manual.h"
#include "patterns/curvehistory.h"
#include "patterns/editactions.h"
#include "patterns/lossactions.h"
#include "patterns/measuremenu.h"
#include "patterns/openactions.h"
#include "patterns/saveactions.h"
#include "patterns/viewactions.h"
#include "patterns/windowcontext.h"
#include "storage/filewriting.h"

#include <QCloseEvent>
#include <QDir>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>

namespace {

constexpr int messageTime = 10000; // milliseconds

} // namespace

PatternWindow::PatternWindow(WindowContext &context, QWidget *parent)
    : QMainWindow(parent)
    , m_context(context)
    , ui(std::make_unique<Ui::PatternWindow>())
{
    ui->setupUi(this);
    takeInitialSize();
    m_history = std::make_unique<CurveHistory>(form().curves());
    // As when curves came, which fitted the charts to them.
    connect(m_history.get(), &CurveHistory::tookBack, &form(), &ListChart::fit);
    m_open = std::make_unique<OpenActions>(*ui, *this);
    m_save = std::make_unique<SaveActions>(*ui, *this);
    m_edit = std::make_unique<EditActions>(*ui, *this);
    m_view = std::make_unique<ViewActions>(*ui, *this);
    m_loss = std::make_unique<LossActions>(*ui, *this);
    m_measure = std::make_unique<MeasureMenu>(*ui->menuMeasure, *this);
    for (QAction *action : {ui->actionRemoveCurve, ui->actionCopyCurve, ui->actionSaveCurve})
        ui->listChart->addCurveAction(action);
    // In the list alone: in the charts the key is the markers'.
    ui->actionRemoveCurve->setShortcut(QKeySequence::Delete);
    ui->actionRemoveCurve->setShortcutContext(Qt::WidgetShortcut);
    ui->actionRedo->setShortcuts(
        {ui->actionRedo->shortcut(), QKeySequence(QStringLiteral("Ctrl+Y"))});
    connect(ui->actionClose, &QAction::triggered, this, &QWidget::close);
    connect(ui->actionQuit, &QAction::triggered, qApp, &QApplication::closeAllWindows);
    connect(ui->actionAboutQt, &QAction::triggered, qApp, &QApplication::aboutQt);
    connect(ui->actionManual, &QAction::triggered, this, [this] { Manual::open(this); });
    connect(ui->listChart, &ListChart::titleChanged, this, &PatternWindow::updateActions);
    connect(ui->listChart, &ListChart::message, this, &PatternWindow::tell);
    connect(&form().curves(), &CurveSet::changed, this, &PatternWindow::updateActions);
    connect(&form().curves(), &CurveSet::selectionChanged, this, &PatternWindow::updateActions);
    updateActions();
}

PatternWindow::~PatternWindow()
{
    // The form goes last, and says so of every curve.
    form().curves().disconnect(this);
}

ListChart &PatternWindow::form() const
{
    return *ui->listChart;
}

/// All enabled states follow from what is there and what is selected.
void PatternWindow::updateActions()
{
    m_save->update();
    m_edit->update();
    m_view->update();
    m_loss->update();
    const QString name = form().title();
    const QString program = tr("Antenna Pattern Workbench");
    // "[*]" would stand for the mark of a changed document.
    setWindowTitle(
        name.isEmpty()
            ? program
            : tr("%1 - %2").arg(
                  QString(name).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")), program));
}

void PatternWindow::takeInitialSize()
{
    if (restoreGeometry(m_context.windowGeometry()))
        return;
    // Room for frame and title bar, on whatever screen there is.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    constexpr QSize usual(1280, 760);
    resize(usual.boundedTo(screen.size() - QSize(16, 48)));
}

bool PatternWindow::save(const QString &file, const QByteArray &content)
{
    const FileOutcome outcome = replaceFile(file, content);
    if (outcome.kind != FileOutcome::Kind::Written) {
        warn(tr("The file could not be written, what was there is unchanged: %1\n%2")
                 .arg(QDir::toNativeSeparators(file), outcome.reason));
        return false;
    }
    m_context.rememberFolder(file);
    tell(tr("Written: %1").arg(QDir::toNativeSeparators(file)));
    return true;
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

void PatternWindow::addStrip(QWidget *strip)
{
    ui->centralLayout->addWidget(strip);
}

void PatternWindow::openRun(const QString &file)
{
    m_measure->openRun(file);
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
        m_open->showRecentFiles();
        m_edit->retranslate();
        m_measure->retranslate();
        updateActions();
    }
}

void PatternWindow::closeEvent(QCloseEvent *event)
{
    if (!m_context.isStopping() && !m_save->mayClose()) {
        event->ignore();
        return;
    }
    m_context.rememberGeometry(saveGeometry());
    event->accept();
}
