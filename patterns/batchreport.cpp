#include "patterns/batchreport.h"

#include "2d/form/listchart.h"
#include "patterns/curveimport.h"
#include "patterns/reportpage.h"
#include "patterns/workbenchsettings.h"

namespace Batch {

ExitStatus writeReport(const QString &output, const QStringList &files, QTextStream &messages)
{
    const Curves read = Batch::read(files, messages);
    if (read.curves.isEmpty())
        return Failed;
    ListChart form;
    form.setAttribute(Qt::WA_DontShowOnScreen);
    form.resize(1280, 800);
    const WorkbenchSettings settings;
    form.setPolarView(settings.polarView());
    form.setNullProminence(settings.nullProminence());
    form.setBeamLevels(settings.beamLevels());
    form.show(); // the charts have no size before
    for (const ReadCurve &curve : read.curves)
        form.addCurve(curve.name, curve.points, recordOf(curve));
    const bool written = write(output, ReportPage::document(form, output), messages);
    return written && read.complete ? Done : Failed;
}

} // namespace Batch
