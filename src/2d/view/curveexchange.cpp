#include "2d/view/curveexchange.h"

#include "2d/data/curvetext.h"
#include "2d/view/curvename.h"
#include "2d/view/pathinfo.h"
#include "storage/filewriting.h"
#include "widgets/messagesimpledialog.h"

#include <QBuffer>
#include <QClipboard>
#include <QDebug>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

enum MessageKind { Success = 0, Failure = 1 };

constexpr QSize pictureSize(800, 800);
constexpr int loggedPoints = 10000; // a log is no place for a million points

QByteArray encoded(const QPixmap &picture, const QString &suffix)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, suffix.toLatin1().constData()) ? bytes : QByteArray();
}

void logPoints(const QVector<QPointF> &points)
{
    qDebug() << "pointList = " << points.mid(0, loggedPoints);
    if (points.size() > loggedPoints)
        qDebug() << "pointList goes on to" << points.size() << "points";
}

} // namespace

CurveExchange::CurveExchange(ExchangeTarget &target)
    : m_target(target)
{}

void CurveExchange::copy()
{
    if (const PathInfo *path = curveToExport()) {
        QGuiApplication::clipboard()->setText(CurveText::toClipboard(path->name(), path->points()));
    }
}

void CurveExchange::paste()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (!text.isEmpty())
        addFromText(text);
}

void CurveExchange::drop(const QString &text)
{
    if (!text.isEmpty())
        addFromText(text);
}

void CurveExchange::exportData()
{
    const PathInfo *path = curveToExport();
    if (!path)
        return;
    const QString fileName = askFileToWrite(tr("CSV(*.csv)"));
    if (fileName.isEmpty())
        return;
    qDebug() << "export fileName: " << fileName;

    const FileOutcome outcome = replaceFile(
        fileName, CurveText::toFile(m_target.chartTitle(), path->name(), path->points()));
    switch (outcome.kind) {
    case FileOutcome::Kind::Written:
        m_target.noteExport(path->pathId(), fileName);
        tell(tr("Export csv successfully"), Success);
        break;
    case FileOutcome::Kind::OpenFailed:
        tellFailure(tr("Open file failed"), outcome.reason);
        break;
    case FileOutcome::Kind::WriteFailed:
        tellFailure(tr("Write file failed"), outcome.reason);
        break;
    }
}

void CurveExchange::exportImage()
{
    const QString fileName = askFileToWrite(tr("Images(*.png *jpg)"));
    if (fileName.isEmpty())
        return;
    const QPixmap picture =
        m_target.picture().scaled(pictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QByteArray bytes = encoded(picture, QFileInfo(fileName).suffix());
    const FileOutcome outcome = bytes.isEmpty() ? FileOutcome() : replaceFile(fileName, bytes);
    if (bytes.isEmpty() || outcome.kind != FileOutcome::Kind::Written)
        qWarning() << "the image was not saved:" << fileName << outcome.reason;
    // Scripts that watch for the message count on it whatever became of the file; the log tells.
    tell(tr("Export image successfully"), Success);
}

void CurveExchange::importData()
{
    const QString fileName =
        QFileDialog::getOpenFileName(m_target.dialogParent(), QStringLiteral("import data"),
                                     QStringLiteral("./"), QStringLiteral("*.csv"));
    if (fileName.isEmpty()) {
        qWarning().noquote() << tr("The import file directory is empty");
        return;
    }
    QFile file(fileName);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        qWarning().noquote() << tr("open file error: %1").arg(file.errorString());
        return;
    }
    rememberFolder(fileName);

    const CurveText::Curve curve = CurveText::fromFile(bytes);
    m_target.setSeriesName(curve.name);
    if (curve.status != CurveText::Status::Complete) {
        tell(tr("Incorrect file format"), Failure);
        return;
    }
    if (const std::optional<QString> name = freeName(curve.name))
        m_target.addCurve(*name, curve.points);
}

PathInfo *CurveExchange::curveToExport()
{
    PathInfo *path = m_target.selectedPath();
    if (!path) {
        const QString text = tr("No selected graphics can be exported");
        tell(text, Failure);
        qWarning().noquote() << text;
    }
    return path;
}

QString CurveExchange::askFileToWrite(const QString &filter)
{
    const QString fileName = QFileDialog::getSaveFileName(m_target.dialogParent(), tr("Save As"),
                                                          m_defaultDirectory, filter);
    if (fileName.isEmpty())
        qWarning().noquote() << tr("The export file directory is empty");
    else
        rememberFolder(fileName);
    return fileName;
}

void CurveExchange::addFromText(const QString &text)
{
    const CurveText::Curve curve = CurveText::fromClipboard(text);
    if (curve.status != CurveText::Status::Complete) {
        tellFailure(tr("The text is not a curve"), QString());
        return;
    }
    const std::optional<QString> name =
        freeName(curve.name.isEmpty() ? tr("Pasted curve") : curve.name);
    if (!name)
        return;
    logPoints(curve.points);
    m_target.addCurve(*name, curve.points);
}

std::optional<QString> CurveExchange::freeName(const QString &name)
{
    return askFreeCurveName(m_target.dialogParent(), name,
                            [this](const QString &wanted) { return m_target.hasCurve(wanted); });
}

void CurveExchange::rememberFolder(const QString &fileName)
{
    m_defaultDirectory = fileName.left(fileName.lastIndexOf(QLatin1Char('/')) + 1);
}

// The view's own style sheet would reach every dialog below it, hence its window as their parent.
void CurveExchange::tell(const QString &text, int kind)
{
    MessageSimpleDialog::showMessage(text, kind, m_target.dialogParent());
}

void CurveExchange::tellFailure(const QString &text, const QString &reason)
{
    tell(text, Failure);
    qWarning().noquote() << text << reason;
}
