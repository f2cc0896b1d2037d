#include "patterns/curveimport.h"

#include "2d/form/listchart.h"
#include "patterns/curvefilereader.h"
#include "patterns/cutdialog.h"

#include <QFileInfo>
#include <QLabel>
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
    for (const PatternFormats::Detail &one : curve.details)
        record.facts.append({one.key, one.value});
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

/// Shows how far files are that take longer than a moment, and lets the user call it off.
class ImportProgress
{
    Q_DECLARE_TR_FUNCTIONS(CurveFileReader)

public:
    /// \a patience: what a moment is, milliseconds.
    ImportProgress(ListChart &form, int patience)
        : m_form(form)
        , m_wasVisible(form.isVisible())
        , m_dialog(&form)
    {
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setWindowTitle(tr("Opening curves"));
        m_dialog.setRange(0, whole);
        m_dialog.setMinimumDuration(patience);
        auto *label = new QLabel;
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText); // names are no markup
        m_dialog.setLabel(label);
    }

    /// False when the user calls it off, or a signal that ends the program closes the window.
    bool reads(const QString &file, int perMille)
    {
        return shows(tr("Reading %1...").arg(QFileInfo(file).fileName()),
                     perMille * readingShare / whole);
    }

    /// The same while the curve \a index of \a count is drawn.
    bool draws(const QString &name, int index, int count)
    {
        return shows(tr("Drawing %1...").arg(name),
                     readingShare + (whole - readingShare) * index / count);
    }

    /// A question comes between, or all is done.
    void rest() { m_dialog.reset(); }

    bool isWindowGone() const { return m_wasVisible && !m_form.isVisible(); }

private:
    static constexpr int whole = 1000;
    static constexpr int readingShare = 600;

    bool shows(const QString &text, int done)
    {
        m_dialog.setLabelText(m_dialog.fontMetrics().elidedText(text, Qt::ElideMiddle, 400));
        m_dialog.setValue(done);
        return !m_dialog.wasCanceled() && !isWindowGone();
    }

    ListChart &m_form;
    bool m_wasVisible;
    QProgressDialog m_dialog;
};

/// Adds \a curves to \a form; false, and none of them, when that is called off. \a opened takes
/// their files.
bool addCurves(ListChart &form, const QVector<ReadCurve> &curves, ImportProgress &progress,
               QStringList &opened)
{
    CurveSet &set = form.curves();
    progress.rest();
    const Clashes clashes = askAboutClashes(form, curves);
    QList<int> added;
    for (int i = 0; i < curves.size() && !progress.isWindowGone(); ++i) {
        const ReadCurve &curve = curves.at(i);
        const bool isTaken = set.hasName(curve.name);
        if (isTaken && !curve.isCut && clashes == Clashes::LeaveOut)
            continue;
        if (!progress.draws(curve.name, i, curves.size())) {
            for (const int id : qAsConst(added))
                set.remove(id);
            opened.clear();
            return false;
        }
        // Nobody is asked for the names of cuts, of which a file may hold many alike.
        const bool numbered = curve.isCut || clashes == Clashes::Number;
        if (isTaken && !numbered)
            progress.rest();
        const QString name = numbered ? set.freeName(curve.name) : curve.name;
        if (const int id = form.addCurve(name, curve.points, recordOf(curve))) {
            added.append(id);
            opened.append(curve.file);
        }
    }
    return true;
}

} // namespace

CurveImport importCurves(ListChart &form, const QStringList &files, int patience)
{
    CurveFileReader reader;
    ImportProgress progress(form, patience);
    reader.setChooser([&](const QString &file, const PatternFormats::PatternFile &pattern) {
        progress.rest();
        return CutDialog::ask(&form, QFileInfo(file).fileName(), pattern);
    });

    CurveImport result;
    result.cancelled = !reader.read(files, [&progress](const QString &file, int perMille) {
        return progress.reads(file, perMille);
    });
    result.failures = reader.failures();
    result.remarks = reader.remarks();
    result.cancelled =
        result.cancelled || !addCurves(form, reader.curves(), progress, result.opened);
    progress.rest();
    return result;
}
