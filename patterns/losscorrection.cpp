#include "patterns/losscorrection.h"

#include "module/formulacalc.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

/// Columns of a loss table before the first frequency.
constexpr int descriptiveColumns = 4;

struct CorrectionText
{
    Q_DECLARE_TR_FUNCTIONS(LossCorrection)
};

QString &loadedName()
{
    static QString name;
    return name;
}

bool isHeader(const QStringList &fields)
{
    return fields.size() > descriptiveColumns &&
           fields.contains(QStringLiteral("category"), Qt::CaseInsensitive);
}

/// Why \a path is no loss table, or an empty text. The loader itself takes any file that opens, and
/// forgets the former table for it.
QString problemOf(const QString &path)
{
    if (QFileInfo(path).isDir())
        return CorrectionText::tr("This is a folder.");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return CorrectionText::tr("The file cannot be opened: %1").arg(file.errorString());
    QTextStream stream(&file);
    bool header = false;
    QString line;
    while (stream.readLineInto(&line)) {
        const QStringList fields = line.split(QLatin1Char(','));
        if (isHeader(fields))
            header = true;
        else if (header && fields.size() > descriptiveColumns &&
                 (line.contains(QStringLiteral("upside"), Qt::CaseInsensitive) ||
                  line.contains(QStringLiteral("downside"), Qt::CaseInsensitive)))
            return {};
    }
    return header ? CorrectionText::tr("The table has no \"upside\" and no \"downside\" row.")
                  : CorrectionText::tr(
                        "This is no loss table: it has no header row with \"category\".");
}

} // namespace

namespace LossCorrection {

QString load(const QString &file)
{
    const QString problem = problemOf(file);
    if (problem.isEmpty()) {
        FormulaCalc::Instance()->queryLossCompensationFromFile(file);
        loadedName() = QFileInfo(file).fileName();
    }
    return problem;
}

QString tableName()
{
    return loadedName();
}

std::optional<Loss> at(Link link, double frequency)
{
    const FormulaCalc *table = FormulaCalc::Instance();
    const QMap<double, double> &map = link == Link::Up ? table->upsideMap() : table->downsideMap();
    if (map.isEmpty() || (map.size() == 1 && !map.contains(frequency)))
        return std::nullopt;
    Loss loss;
    loss.value = table->getValueFromMap(frequency, map);
    loss.extrapolated = frequency < map.firstKey() || frequency > map.lastKey();
    return loss;
}

QVector<QPointF> corrected(const QVector<QPointF> &points, const Loss &loss)
{
    QVector<QPointF> result = points;
    for (QPointF &point : result)
        point.ry() += loss.value;
    return result;
}

} // namespace LossCorrection
