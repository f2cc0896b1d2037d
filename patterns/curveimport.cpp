#include "patterns/curveimport.h"

#include "2d/form/listchart.h"
#include "patterns/curvefilereader.h"
#include "patterns/cutdialog.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

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

namespace {

/// How names that are taken are dealt with.
enum class Clashes { Ask, Number, LeaveOut };

/// Asked once for all where there are several.
Clashes askAboutClashes(const ListChart &form, const QVector<ReadCurve> &curves)
{
    QStringList names;
    QStringList clashes;
    for (const ReadCurve &curve : curves) {
        if (!curve.isCut && (form.curves().hasName(curve.name) || names.contains(curve.name)))
            clashes.append(curve.name);
        names.append(curve.name);
    }
    if (clashes.size() < 2)
        return Clashes::Ask;
    QMessageBox box(QMessageBox::Question, CurveFileReader::tr("Names"),
                    CurveFileReader::tr("The names of %1 curves are taken:\n%2")
                        .arg(clashes.size())
                        .arg(clashes.mid(0, 10).join(QLatin1Char('\n'))),
                    QMessageBox::NoButton, form.window());
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton *number =
        box.addButton(CurveFileReader::tr("&Number All"), QMessageBox::AcceptRole);
    const QAbstractButton *each =
        box.addButton(CurveFileReader::tr("&Ask for Each"), QMessageBox::ActionRole);
    box.setEscapeButton(box.addButton(CurveFileReader::tr("&Cancel All"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() == number)
        return Clashes::Number;
    return box.clickedButton() == each ? Clashes::Ask : Clashes::LeaveOut;
}

} // namespace

CurveImport importCurves(ListChart &form, const QStringList &files, int patience)
{
    CurveFileReader reader;
    // The window may be closed meanwhile, by a signal that ends the program.
    const bool wasVisible = form.isVisible();
    const auto isGone = [&form, wasVisible] { return wasVisible && !form.isVisible(); };
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
    result.cancelled = !reader.read(files, [&](const QString &file, int perMille) {
        progress.setLabelText(CurveFileReader::tr("Reading %1...").arg(QFileInfo(file).fileName()));
        progress.setValue(qMin(perMille, 999));
        return !progress.wasCanceled() && !isGone();
    });
    progress.reset();

    result.failures = reader.failures();
    result.remarks = reader.remarks();
    const QVector<ReadCurve> &curves = reader.curves();
    const Clashes clashes = askAboutClashes(form, curves);
    for (const ReadCurve &curve : curves) {
        if (isGone())
            break;
        const bool isTaken = form.curves().hasName(curve.name);
        if (isTaken && !curve.isCut && clashes == Clashes::LeaveOut)
            continue;
        const bool numbered = curve.isCut || clashes == Clashes::Number;
        // Nobody is asked for the names of cuts, of which a file may hold many alike.
        const QString name = numbered ? form.curves().freeName(curve.name) : curve.name;
        if (form.addCurve(name, curve.points, recordOf(curve)) != 0)
            result.opened.append(curve.file);
    }
    return result;
}
