#include "patterns/openactions.h"
#include "ui_patternwindow.h"

#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/curveimport.h"
#include "patterns/filenames.h"
#include "patterns/windowcontext.h"
#include "sweep/runfile.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

OpenActions::OpenActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_desk(desk)
{
    WindowContext *context = &m_desk.context();
    connect(m_ui.actionNewWindow, &QAction::triggered, context, &WindowContext::openFurtherWindow);
    connect(m_ui.actionOpen, &QAction::triggered, this, &OpenActions::ask);
    connect(m_ui.actionOpenSamples, &QAction::triggered, this, &OpenActions::openSamples);
    connect(m_ui.listChart, &ListChart::filesDropped, this, &OpenActions::openFiles);
    connect(context, &WindowContext::recentFilesChanged, this, &OpenActions::showRecentFiles);
    showRecentFiles();
}

void OpenActions::showRecentFiles()
{
    WindowContext *context = &m_desk.context();
    m_ui.menuRecent->clear();
    const QStringList files = context->recentFiles();
    for (const QString &file : files) {
        // An ampersand in a name is no mnemonic.
        QString shown = QDir::toNativeSeparators(file);
        shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
        m_ui.menuRecent->addAction(shown, this, [this, context, file] {
            if (!QFileInfo::exists(file))
                context->removeRecentFile(file);
            openFiles({file});
        });
    }
    m_ui.menuRecent->addSeparator();
    m_ui.menuRecent->addAction(tr("&Clear List"), context, &WindowContext::clearRecentFiles);
    m_ui.menuRecent->setEnabled(!files.isEmpty());
}

void OpenActions::openFiles(const QStringList &wanted)
{
    QStringList files;
    for (const QString &file : wanted) {
        if (RunText::isRunFileAt(file))
            m_desk.openRun(file);
        else
            files.append(file);
    }
    if (files.isEmpty())
        return;
    m_desk.context().rememberFolder(files.first());
    const CurveHistory::Step noStep(m_desk.history(), {}, CurveHistory::Kind::Final);
    const CurveImport result = importCurves(m_desk.form(), files);
    for (const QString &file : result.opened)
        m_desk.context().addRecentFile(file);
    if (result.cancelled)
        m_desk.tell(tr("Opening was cancelled; the charts are as they were."));
    else
        m_desk.tell(tr("Curves opened: %1.").arg(result.opened.size()));
    if (m_desk.context().isStopping())
        return;
    const QString failed = tr("These files could not be opened:");
    if (result.remarks.isEmpty() && !result.failures.isEmpty())
        m_desk.warn(failed, result.failures);
    else if (result.failures.isEmpty() && !result.remarks.isEmpty())
        m_desk.warn(tr("The files were opened. Please look at these points:"), result.remarks);
    else if (!result.failures.isEmpty())
        m_desk.warn(failed + QLatin1Char('\n') + result.failures.join(QLatin1Char('\n')) +
                        QStringLiteral("\n\n") +
                        tr("Others were opened. Please look at these points:"),
                    result.remarks);
}

void OpenActions::ask()
{
    openFiles(QFileDialog::getOpenFileNames(
        m_desk.dialogParent(), tr("Open Curves"), m_desk.context().folder(),
        tr("Curves and patterns (*.csv *.msi *.pln *.adf *.out *.txt);;All files (*)")));
}

void OpenActions::openSamples()
{
    const QStringList files = sampleFiles(QCoreApplication::applicationDirPath());
    if (files.isEmpty())
        m_desk.warn(tr("The sample patterns are not installed."));
    openFiles(files);
}
