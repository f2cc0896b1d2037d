#include "patterns/samples/samples.h"
#include "storage/filewriting.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

namespace {

bool write(const QString &path, const QByteArray &content)
{
    const FileOutcome outcome = replaceFile(path, content);
    if (outcome.kind == FileOutcome::Kind::Written)
        return true;
    QTextStream(stderr) << path << ": " << outcome.reason << '\n';
    return false;
}

bool writeAll(const QDir &folder)
{
    const QVector<SampleCurve> curves = sampleCurves();
    for (const SampleCurve &curve : curves) {
        if (!write(folder.filePath(curve.fileName), curveFile(curve)))
            return false;
    }
    return write(folder.filePath(QStringLiteral("panel.msi")), samplePanelMsi()) &&
           write(folder.filePath(QStringLiteral("panel.adf")), samplePanelNsma()) &&
           write(folder.filePath(QStringLiteral("loss-table.csv")), sampleLossTable());
}

} // namespace

/// Writes the computed samples into the folder named on the command line.
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: mz_samples FOLDER\n";
        return 2;
    }
    return writeAll(QDir(arguments.at(1))) ? 0 : 1;
}
