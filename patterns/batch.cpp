#include "patterns/batch.h"

#include "2d/data/curvefrequency.h"
#include "2d/data/curvetext.h"
#include "patterns/figuretable.h"
#include "patterns/filenames.h"
#include "patterns/formats/patternfile.h"
#include "storage/filewriting.h"

#include <QCoreApplication>
#include <QDir>
#include <QSet>

#include <algorithm>

namespace {

struct BatchText
{
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

/// \a name, or with the first number from 2 on that makes it differ from all that were taken.
class FreeNames
{
public:
    explicit FreeNames(Qt::CaseSensitivity sensitivity)
        : m_sensitivity(sensitivity)
    {}

    QString take(const QString &name)
    {
        QString free = name;
        for (int number = 2; m_taken.contains(keyOf(free)); ++number)
            free = QStringLiteral("%1 (%2)").arg(name).arg(number);
        m_taken.insert(keyOf(free));
        return free;
    }

private:
    QString keyOf(const QString &name) const
    {
        return m_sensitivity == Qt::CaseSensitive ? name : name.toCaseFolded();
    }

    Qt::CaseSensitivity m_sensitivity;
    QSet<QString> m_taken;
};

bool printFigures(const QVector<ReadCurve> &curves, QIODevice &results, QTextStream &messages)
{
    QByteArray table = FigureTable::header();
    for (const ReadCurve &curve : curves)
        table += FigureTable::row(curve.given, curve.name, curve.frequency, curve.points);
    const bool written = results.write(table) == table.size();
    if (!written)
        messages << BatchText::tr("The results cannot be written: %1").arg(results.errorString())
                 << '\n';
    return written;
}

bool exportCurves(const QVector<ReadCurve> &curves, const QString &folder, QTextStream &messages)
{
    if (!QDir().mkpath(folder)) {
        messages << BatchText::tr("The folder cannot be made: %1").arg(folder) << '\n';
        return false;
    }
    FreeNames names(Qt::CaseInsensitive); // as some file systems are
    bool written = true;
    for (const ReadCurve &curve : curves) {
        const QString name = names.take(fileNameFrom(curve.name, QStringLiteral("curve")));
        const QString path = QDir(folder).filePath(name + QStringLiteral(".csv"));
        const QByteArray content = CurveText::toFile(curve.title, curve.name, curve.points);
        written = Batch::write(path, content, messages) && written;
    }
    return written;
}

const ReadCurve *curveNamed(const QVector<ReadCurve> &curves, const QString &name,
                            QTextStream &messages)
{
    const auto found = std::find_if(curves.begin(), curves.end(),
                                    [&name](const ReadCurve &curve) { return curve.name == name; });
    if (found != curves.end())
        return &*found;
    QStringList names;
    for (const ReadCurve &curve : curves)
        names.append(curve.name);
    messages << BatchText::tr("There is no curve \"%1\" among these: %2")
                    .arg(name, names.join(QStringLiteral(", ")))
             << '\n';
    return nullptr;
}

PatternFormats::Cut cutOf(const ReadCurve &curve)
{
    PatternFormats::Cut cut;
    cut.name = curve.name;
    cut.frequency = curve.frequency;
    cut.points = curve.points;
    cut.details = curve.details;
    return cut;
}

bool exportMsi(const QVector<ReadCurve> &curves, const BatchTask &task, QTextStream &messages)
{
    const ReadCurve *horizontal = curveNamed(curves, task.horizontal, messages);
    const ReadCurve *vertical = curveNamed(curves, task.vertical, messages);
    if (horizontal == nullptr || vertical == nullptr)
        return false;
    const PatternFormats::Written msi =
        PatternFormats::write(PatternFormats::Format::Msi, cutOf(*horizontal), cutOf(*vertical));
    if (msi.problem.isEmpty())
        return Batch::write(task.output, msi.bytes, messages);
    messages << QStringLiteral("%1: %2").arg(task.output, msi.problem) << '\n';
    return false;
}

} // namespace

namespace Batch {

Curves read(const QStringList &files, QTextStream &messages)
{
    CurveFileReader reader(CurveFileReader::Naming::AsGiven);
    reader.read(files);
    for (const QString &line : reader.failures() + reader.remarks())
        messages << line << '\n';
    Curves result;
    result.curves = reader.curves();
    result.complete = reader.failures().isEmpty();
    FreeNames names(Qt::CaseSensitive);
    for (ReadCurve &curve : result.curves) {
        if (curve.frequency.isEmpty())
            curve.frequency = frequencyInName(curve.name);
        curve.name = names.take(curve.name);
    }
    return result;
}

bool write(const QString &path, const QByteArray &content, QTextStream &messages)
{
    const FileOutcome outcome = replaceFile(path, content);
    if (outcome.kind == FileOutcome::Kind::Written)
        return true;
    messages << BatchText::tr("The file could not be written, what was there is unchanged: %1: %2")
                    .arg(path, outcome.reason)
             << '\n';
    return false;
}

ExitStatus run(const BatchTask &task, const QStringList &files, QIODevice &results,
               QTextStream &messages)
{
    const Curves read = Batch::read(files, messages);
    bool done = false;
    switch (task.kind) {
    case BatchTask::Kind::Figures:
        done = printFigures(read.curves, results, messages);
        break;
    case BatchTask::Kind::Export:
        done = exportCurves(read.curves, task.output, messages);
        break;
    case BatchTask::Kind::ExportMsi:
        done = exportMsi(read.curves, task, messages);
        break;
    default:
        break;
    }
    return done && read.complete ? Done : Failed;
}

} // namespace Batch
