#include "patterns/curvefilereader.h"

#include "patterns/formats/patternfile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 chunk = 1 << 20;
/// Reading takes about as long as parsing.
constexpr double readingShare = 0.5;

} // namespace

CutChoice principalCuts(const PatternFormats::PatternFile &file)
{
    CutChoice choice;
    for (int i = 0; i < file.cuts.size(); ++i) {
        if (file.cuts.at(i).principal)
            choice.cuts.append(i);
    }
    return choice;
}

bool CurveFileReader::read(const QStringList &files, const Progress &progress)
{
    clear();
    const double count = files.size();
    for (int i = 0; i < files.size(); ++i) {
        const QString &file = files.at(i);
        const auto step = [&](double share) {
            return !progress || progress(file, int(1000.0 * (i + share) / count));
        };
        if (!step(0.0) || readOne(file, step) == Step::GiveUp) {
            clear();
            return false;
        }
    }
    return true;
}

CurveFileReader::Step CurveFileReader::readOne(const QString &file,
                                               const std::function<bool(double)> &progress)
{
    const QString shown = m_naming == Naming::AsGiven ? file : QFileInfo(file).fileName();
    QByteArray bytes;
    QString problem;
    if (!readBytes(file, progress, bytes, problem)) {
        if (problem.isEmpty())
            return Step::GiveUp;
        m_failures.append(QStringLiteral("%1: %2").arg(shown, problem));
        return Step::Go;
    }
    QString encoding;
    bytes = CurveText::asUtf8(bytes, &encoding);
    const CurveText::Curve curve = CurveText::fromFile(bytes, [&](qint64 done, qint64 total) {
        const double share = total > 0 ? double(done) / double(total) : 1.0;
        return progress(readingShare + (1.0 - readingShare) * share);
    });
    if (curve.status == CurveText::Status::Cancelled)
        return Step::GiveUp;
    if (curve.status != CurveText::Status::Complete) {
        readPattern(file, shown, bytes);
        return Step::Go;
    }
    m_curves.append({QFileInfo(file).absoluteFilePath(),
                     file,
                     curve.title.trimmed(),
                     curve.name,
                     curve.points,
                     {},
                     {},
                     false});
    if (!encoding.isEmpty())
        m_remarks.append(tr("%1: The text is encoded as %2, not as UTF-8.").arg(shown, encoding));
    remark(shown, curve);
    return Step::Go;
}

/// False with an empty \a problem when the progress function gave up.
bool CurveFileReader::readBytes(const QString &path, const std::function<bool(double)> &progress,
                                QByteArray &bytes, QString &problem)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        problem = tr("This is a folder.");
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = tr("The file cannot be opened: %1").arg(file.errorString());
        return false;
    }
    const double size = double(qMax(qint64(1), file.size()));
    while (true) {
        const QByteArray part = file.read(chunk);
        if (part.isEmpty())
            break;
        bytes += part;
        if (!progress(readingShare * qMin(1.0, double(bytes.size()) / size)))
            return false;
    }
    if (file.error() != QFileDevice::NoError) {
        problem = tr("The file cannot be read: %1").arg(file.errorString());
        return false;
    }
    return true;
}

void CurveFileReader::readPattern(const QString &file, const QString &shown,
                                  const QByteArray &bytes)
{
    const PatternFormats::PatternFile pattern =
        PatternFormats::read(bytes, QFileInfo(file).completeBaseName());
    if (pattern.format == PatternFormats::Format::None) {
        const QString reason = bytes.isEmpty()
                                   ? tr("The file is empty.")
                                   : tr("The third line is not \"Angle,Power\", and it is no "
                                        "pattern file of MSI, NSMA or NEC2.");
        m_failures.append(tr("%1: Incorrect file format. %2").arg(shown, reason));
        return;
    }
    if (pattern.problem) {
        m_failures.append(QStringLiteral("%1: %2").arg(shown, pattern.problem->sentence()));
        return;
    }
    std::optional<CutChoice> choice = principalCuts(pattern);
    if (m_chooser && pattern.offersChoice())
        choice = m_chooser(file, pattern);
    if (!choice)
        return;
    for (const int i : qAsConst(choice->cuts)) {
        const PatternFormats::Cut &cut = pattern.cuts.at(i);
        const QVector<QPointF> &points = cut.of(choice->component);
        if (!points.isEmpty())
            m_curves.append({QFileInfo(file).absoluteFilePath(), file, cut.title,
                             cut.name + PatternFormats::suffixOf(choice->component), points,
                             cut.frequency, cut.details, true});
    }
    for (const QString &remark : pattern.remarks)
        m_remarks.append(QStringLiteral("%1: %2").arg(shown, remark));
}

void CurveFileReader::remark(const QString &file, const CurveText::Curve &curve)
{
    const CurveText::RowCounts &check = curve.rows;
    const auto tell = [&](qint64 rows, const QString &text) {
        if (rows > 0)
            m_remarks.append(QStringLiteral("%1: %2").arg(file, text.arg(rows)));
    };
    if (curve.points.isEmpty())
        m_remarks.append(tr("%1: The file holds no point.").arg(file));
    tell(check.moreFields,
         tr("rows with more than two fields, of which the first two were read: %1. "
            "Decimal commas need semicolons, tabs or blanks between the fields."));
    tell(check.noNumbers, tr("rows with a field that is no number and was read as 0: %1."));
    tell(check.notFinite, tr("rows left out because a value is not finite: %1."));
    tell(check.tooShort, tr("rows left out because they have fewer than two fields: %1."));
}

void CurveFileReader::clear()
{
    m_curves.clear();
    m_failures.clear();
    m_remarks.clear();
}
