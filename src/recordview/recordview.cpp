#include "recordview/recordview.h"

#include "recorddata/recordreader.h"
#include "recordview/recordchart.h"
#include "recordview/recordloader.h"
#include "recordview/recordtables.h"
#include "storage/filewriting.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QSaveFile>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int followPeriod = 1000; // ms
constexpr int wholeProgress = 1000;

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

RecordView::RecordView(QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_chart(new RecordChart)
    , m_tables(new RecordTables)
    , m_state(new QLabel)
    , m_progress(new QProgressBar)
    , m_cancel(new QToolButton)
    , m_followTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("recordView"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_chart->setAcceptDrops(false); // files dropped on it are the window's
    constexpr QSize frame(8, 40);
    resize(QSize(1200, 700).boundedTo(QGuiApplication::primaryScreen()->availableSize() - frame));
    auto *splitter = new QSplitter(this);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_tables);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({860, 340});
    setCentralWidget(splitter);
    createMenus();
    createStatusBar();
    connect(m_chart, &RecordChart::cursorsMoved, this, &RecordView::showCursors);
    connect(m_chart, &RecordChart::fitsLevelChanged, m_fitLevel, &QAction::setChecked);
    connect(m_fitLevel, &QAction::toggled, m_chart, &RecordChart::setFitsLevel);
    connect(m_followTimer, &QTimer::timeout, this, &RecordView::follow);
    connect(m_follow, &QAction::toggled, this,
            [this](bool on) { on ? m_followTimer->start(followPeriod) : m_followTimer->stop(); });
    m_follow->setChecked(true);
    retranslate();
    m_chart->setFocus();
}

RecordView::~RecordView()
{
    m_chart->setData(nullptr, false); // the reader goes first
}

void RecordView::createMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_open = m_fileMenu->addAction(
        QString(), this, [this] { askAndOpen(false); }, QKeySequence::Open);
    m_add = m_fileMenu->addAction(QString(), this, [this] { askAndOpen(true); });
    m_fileMenu->addSeparator();
    m_savePicture = m_fileMenu->addAction(QString(), this, &RecordView::askAndSavePicture,
                                          QKeySequence(Qt::CTRL + Qt::Key_P));
    m_saveRows =
        m_fileMenu->addAction(QString(), this, &RecordView::askAndSaveRows, QKeySequence::Save);
    m_copy = m_fileMenu->addAction(
        QString(), this, [this] { QApplication::clipboard()->setText(m_tables->text()); },
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C));
    m_fileMenu->addSeparator();
    m_close =
        m_fileMenu->addAction(QString(), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_W));
    m_viewMenu = menuBar()->addMenu(QString());
    m_showAll = m_viewMenu->addAction(QString(), m_chart, &RecordChart::showAll,
                                      QKeySequence(Qt::CTRL + Qt::Key_0));
    // With Ctrl they are the chart's, for the level.
    m_zoomIn = m_viewMenu->addAction(QString(), m_chart, &RecordChart::zoomIn, Qt::Key_Plus);
    m_zoomOut = m_viewMenu->addAction(QString(), m_chart, &RecordChart::zoomOut, Qt::Key_Minus);
    m_viewMenu->addSeparator();
    m_fitLevel = m_viewMenu->addAction(QString());
    m_follow = m_viewMenu->addAction(QString());
    m_fitLevel->setCheckable(true);
    m_fitLevel->setChecked(true);
    m_follow->setCheckable(true);
}

void RecordView::createStatusBar()
{
    m_progress->setRange(0, wholeProgress);
    m_progress->setFixedWidth(240);
    statusBar()->addWidget(m_state, 1);
    statusBar()->addPermanentWidget(m_progress);
    statusBar()->addPermanentWidget(m_cancel);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        if (m_loader)
            m_loader->cancel();
    });
    m_progress->hide();
    m_cancel->hide();
}

void RecordView::retranslate()
{
    m_fileMenu->setTitle(tr("&File"));
    m_viewMenu->setTitle(tr("&View"));
    m_open->setText(tr("&Open Record…"));
    m_add->setText(tr("&Add Files…"));
    m_savePicture->setText(tr("Save &Picture…"));
    m_saveRows->setText(tr("&Save Rows from A to B…"));
    m_copy->setText(tr("&Copy Figures"));
    m_close->setText(tr("&Close"));
    m_showAll->setText(tr("Show &All"));
    m_zoomIn->setText(tr("Zoom &In"));
    m_zoomOut->setText(tr("Zoom &Out"));
    m_fitLevel->setText(tr("&Fit Level"));
    m_follow->setText(tr("&Go on with Files That Grow"));
    m_cancel->setText(tr("Cancel"));
    m_progress->setAccessibleName(tr("Reading the record"));
    m_chart->retranslate();
    m_tables->retranslate();
    showCursors();
    showState();
}

void RecordView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

// --- Reading

void RecordView::open(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    delete m_loader; // waits for its end
    m_loader = new RecordLoader(paths, this);
    connect(m_loader, &RecordLoader::progressed, m_progress, &QProgressBar::setValue);
    connect(m_loader, &QThread::finished, this, &RecordView::finishLoading);
    m_progress->setValue(0);
    m_progress->show();
    m_cancel->show();
    m_loader->start();
}

void RecordView::finishLoading()
{
    RecordLoader *loader = m_loader;
    if (!loader || sender() != loader)
        return;
    m_loader = nullptr;
    loader->deleteLater();
    m_progress->hide();
    m_cancel->hide();
    if (loader->outcome() != RecordReader::Outcome::Read && !m_followTimer->isActive())
        m_follow->setChecked(false); // else it would be read again every second
    switch (loader->outcome()) {
    case RecordReader::Outcome::Cancelled:
        return;
    case RecordReader::Outcome::Failed:
        warn(loader->error());
        return;
    default:
        break;
    }
    std::unique_ptr<RecordReader> before = std::move(m_reader);
    m_reader = loader->takeReader();
    const bool isSame = before && before->paths() == m_reader->paths();
    m_chart->setData(&m_reader->data(), isSame);
    if (m_follow->isChecked())
        m_followTimer->start(followPeriod);
    showState();
}

void RecordView::follow()
{
    if (!m_reader || m_loader)
        return;
    const double endBefore = m_reader->data().isEmpty() ? 0.0 : m_reader->data().end();
    const bool wasEmpty = m_reader->data().isEmpty();
    switch (m_reader->follow()) {
    case RecordReader::Outcome::Replaced:
        m_followTimer->stop(); // until it has been read again
        open(m_reader->paths());
        return;
    case RecordReader::Outcome::Read:
        break;
    default:
        return;
    }
    const ViewRange shown = m_chart->shownRange();
    if (wasEmpty)
        m_chart->setData(&m_reader->data(), false);
    else if (shown.xMin <= m_reader->data().begin() && shown.xMax >= endBefore)
        m_chart->showAll(); // who looks at all of it goes on looking at all of it
    else
        m_chart->refresh();
    showCursors();
    showState();
}

void RecordView::showCursors()
{
    if (m_reader && !m_reader->data().isEmpty())
        m_tables->show(*m_reader, m_chart->cursor(RecordChart::A), m_chart->cursor(RecordChart::B));
    else
        m_tables->clear();
}

void RecordView::showState()
{
    const bool hasData = m_reader && !m_reader->data().isEmpty();
    m_savePicture->setEnabled(hasData);
    m_saveRows->setEnabled(hasData);
    m_add->setEnabled(m_reader != nullptr);
    if (!m_reader) {
        setWindowTitle(tr("Record"));
        m_state->clear();
        return;
    }
    const QStringList paths = m_reader->paths();
    const QString first = QFileInfo(paths.constFirst()).fileName();
    setWindowTitle(paths.size() == 1
                       ? tr("Record - %1").arg(first)
                       : tr("Record - %1 and %2 more").arg(first).arg(paths.size() - 1));
    const RecordData &record = m_reader->data();
    QString text = tr("Rows with a level: %1, gaps: %2")
                       .arg(record.size())
                       .arg(record.gaps({0, record.size() - 1}));
    if (m_reader->linesLeftOut() > 0)
        text += tr(", lines not understood: %1").arg(m_reader->linesLeftOut());
    m_state->setText(text);
}

// --- Files

QStringList RecordView::askForFiles(QWidget *parent, const QString &folder)
{
    return QFileDialog::getOpenFileNames(parent, tr("Open Record"), folder,
                                         tr("Records (*.csv *.jsonl);;All files (*)"));
}

void RecordView::askAndOpen(bool add)
{
    const QStringList before = m_reader ? m_reader->paths() : QStringList();
    const QString folder =
        before.isEmpty() ? QString() : QFileInfo(before.constLast()).absolutePath();
    QStringList paths = askForFiles(this, folder);
    if (paths.isEmpty())
        return;
    if (add)
        paths += before;
    paths.removeDuplicates();
    open(paths);
}

void RecordView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void RecordView::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    open(localFiles(event->mimeData()));
}

bool RecordView::warn(const QString &text)
{
    QMessageBox::warning(this, tr("Note"), text);
    return false;
}

void RecordView::askAndSavePicture()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Picture"), QString(), tr("Pictures (*.png)"));
    if (!path.isEmpty())
        savePicture(path);
}

bool RecordView::savePicture(const QString &path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    m_chart->grab().save(&buffer, "PNG");
    const FileOutcome outcome = replaceFile(path, bytes);
    if (outcome.kind == FileOutcome::Kind::Written)
        return true;
    return warn(tr("%1 cannot be written: %2").arg(path, outcome.reason));
}

void RecordView::askAndSaveRows()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Rows"), QString(),
                                                      tr("Records (*.csv *.jsonl);;All files (*)"));
    if (!path.isEmpty())
        saveRows(path);
}

std::vector<PointRange> RecordView::chosenRanges() const
{
    const RecordData &record = m_reader->data();
    const int a = m_chart->cursor(RecordChart::A);
    const int b = m_chart->cursor(RecordChart::B);
    if (a == RecordChart::noPoint || b == RecordChart::noPoint)
        return record.between(m_chart->shownRange().xMin, m_chart->shownRange().xMax);
    const auto [from, to] = std::minmax({record.time(a), record.time(b)});
    return record.between(from, to);
}

bool RecordView::saveRows(const QString &path)
{
    const QStringList sources = m_reader->paths();
    for (const QString &source : sources) {
        if (QFileInfo(source) == QFileInfo(path))
            return warn(tr("%1 is a file of this record: choose another name.").arg(path));
    }
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           m_reader->copyRows(chosenRanges(), file) && file.commit();
    return isWritten || warn(tr("%1 cannot be written: %2").arg(path, file.errorString()));
}
