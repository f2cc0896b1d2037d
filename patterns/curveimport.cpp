#include "patterns/curveimport.h"

#include "2d/form/listchart.h"
#include "patterns/curvefilereader.h"
#include "patterns/cutdialog.h"

#include <QFileInfo>
#include <QProgressDialog>

CurveRecord recordOf(const ReadCurve &curve)
{
    CurveRecord record;
    record.file = curve.file;
    record.title = curve.title;
    record.frequency = curve.frequency;
    const QString notes = PatternFormats::describe(curve.details);
    if (!notes.isEmpty())
        record.notes = notes.split(QLatin1Char('\n'));
    return record;
}

CurveImport importCurves(ListChart &form, const QStringList &files, int patience)
{
    CurveFileReader reader;
    QProgressDialog progress(&form);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(CurveFileReader::tr("Opening curves"));
    progress.setRange(0, 1000);
    progress.setMinimumDuration(patience);

    reader.setChooser([&](const QString &file, const PatternFormats::PatternFile &pattern) {
        progress.reset();
        return CutDialog::ask(&form, QFileInfo(file).fileName(), pattern);
    });

    CurveImport result;
    result.cancelled = !reader.read(files, [&progress](const QString &file, int perMille) {
        progress.setLabelText(CurveFileReader::tr("Reading %1...").arg(QFileInfo(file).fileName()));
        progress.setValue(qMin(perMille, 999));
        return !progress.wasCanceled();
    });
    progress.reset();

    result.failures = reader.failures();
    result.remarks = reader.remarks();
    const QVector<ReadCurve> &curves = reader.curves();
    for (const ReadCurve &curve : curves) {
        // Nobody is asked for the names of cuts, of which a file may hold many alike.
        const QString name = curve.isCut ? form.curves().freeName(curve.name) : curve.name;
        if (form.addCurve(name, curve.points, recordOf(curve)) != 0)
            result.opened.append(curve.file);
    }
    return result;
}
