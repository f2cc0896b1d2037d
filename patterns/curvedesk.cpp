#include "patterns/curvedesk.h"

#include "2d/form/listchart.h"
#include "patterns/curvehistory.h"

CurveSet &CurveDesk::curves() const
{
    return form().curves();
}

QList<int> CurveDesk::addDerived(const QString &step, const QVector<DerivedCurve> &derived)
{
    const CurveHistory::Step joined(history(), step);
    QList<int> ids;
    for (const DerivedCurve &curve : derived) {
        CurveRecord record = curve.record;
        record.file.clear();
        record.isSaved = false;
        if (!curve.description.isEmpty())
            record.notes.append(curve.description);
        ids.append(curves().add(curves().freeName(curve.name), curve.points, record));
    }
    if (!ids.isEmpty())
        curves().select(ids.last());
    return ids;
}
