#include "patterns/setoperations.h"

#include "2d/data/curvealgebra.h"
#include "2d/data/paratabletext.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/maskfile.h"
#include "patterns/operationdialogs.h"
#include "patterns/windowcontext.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace {

enum class Which { All, Shown };

/// The curves with points that are no masks.
QList<int> curvesIn(const CurveSet &curves, Which which)
{
    QList<int> ids;
    for (const int id : curves.ids()) {
        const bool counts = which == Which::All || !curves.isHidden(id);
        if (counts && !curves.record(id).isMask && !curves.points(id).isEmpty())
            ids.append(id);
    }
    return ids;
}

/// The shown curves, their names as a list, and what all of them have in common.
struct Inputs
{
    explicit Inputs(const CurveSet &curves)
    {
        const QList<int> ids = curvesIn(curves, Which::Shown);
        for (const int id : ids) {
            points.append(curves.points(id));
            names += (names.isEmpty() ? QStringLiteral("\"") : QStringLiteral(", \"")) +
                     curves.name(id) + QLatin1Char('"');
        }
        record.frequency = curves.record(ids.value(0)).frequency;
        for (const int id : ids) {
            if (curves.record(id).frequency != record.frequency)
                record.frequency.clear();
        }
    }

    QVector<QVector<QPointF>> points;
    QString names;
    CurveRecord record;
};

class Average : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Average)

public:
    QString text() const override { return tr("A&verage"); }
    QString tip() const override { return tr("Averages the power of all shown curves"); }
    bool isPossible(const CurveSet &curves) const override
    {
        return curvesIn(curves, Which::Shown).size() > 1;
    }
    void run(CurveDesk &desk) override
    {
        const Inputs shown(desk.curves());
        const QVector<QPointF> points = CurveAlgebra::averaged(shown.points);
        if (points.isEmpty()) {
            desk.warn(tr("The shown curves have no angle in common."));
            return;
        }
        desk.addDerived(tr("Average"),
                        {{tr("Average of %1 curves").arg(shown.points.size()), points,
                          tr("Mean power of %1").arg(shown.names), shown.record}});
    }
};

class Envelope : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Envelope)

public:
    QString text() const override { return tr("&Envelope"); }
    QString tip() const override
    {
        return tr("Makes the greatest and the least level of all shown curves");
    }
    bool isPossible(const CurveSet &curves) const override
    {
        return curvesIn(curves, Which::Shown).size() > 1;
    }
    void run(CurveDesk &desk) override
    {
        const Inputs shown(desk.curves());
        const int count = shown.points.size();
        desk.addDerived(
            tr("Envelope"),
            {{tr("Maximum of %1 curves").arg(count), CurveAlgebra::greatest(shown.points),
              tr("Greatest level of %1").arg(shown.names), shown.record},
             {tr("Minimum of %1 curves").arg(count), CurveAlgebra::least(shown.points),
              tr("Least level of %1").arg(shown.names), shown.record}});
    }
};

class Compare : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Compare)

public:
    QString text() const override { return tr("Comp&are"); }
    QString tip() const override
    {
        return tr("Makes the difference of two curves, the selected one minus the other");
    }
    bool isPossible(const CurveSet &curves) const override
    {
        return curvesIn(curves, Which::All).size() > 1;
    }
    void run(CurveDesk &desk) override
    {
        if (const std::optional<std::pair<int, int>> pair = choose(desk))
            compare(desk, pair->first, pair->second);
    }

private:
    /// Two shown curves leave no choice; the selected one comes first.
    static std::optional<std::pair<int, int>> choose(CurveDesk &desk)
    {
        const CurveSet &curves = desk.curves();
        const QList<int> shown = curvesIn(curves, Which::Shown);
        const bool leavesChoice = shown.size() != 2;
        QList<int> ids = leavesChoice ? curvesIn(curves, Which::All) : shown;
        const int selected = ids.indexOf(curves.selected());
        if (selected > 0)
            ids.move(selected, 0);
        if (leavesChoice)
            return OperationDialogs::askPair(desk.dialogParent(), curves, ids);
        return std::make_pair(ids.first(), ids.last());
    }

    static void compare(CurveDesk &desk, int first, int second)
    {
        const CurveSet &curves = desk.curves();
        const QString names = tr("%1 minus %2").arg(curves.name(first), curves.name(second));
        DerivedCurve made;
        made.name = names;
        made.points = CurveAlgebra::difference(curves.points(first), curves.points(second));
        if (made.points.isEmpty()) {
            desk.warn(tr("The two curves have no angle in common."));
            return;
        }
        made.description = tr("\"%1\" minus \"%2\", at the angles of the first")
                               .arg(curves.name(first), curves.name(second));
        made.record.difference =
            CurveAlgebra::differenceFigures(curves.points(first), curves.points(second));
        const QString frequency = curves.record(first).frequency;
        if (frequency == curves.record(second).frequency)
            made.record.frequency = frequency;
        else
            made.description += tr("; their frequencies differ");
        if (made.record.difference) {
            made.description += tr("; within 20 dB below the peak: mean %1 dB, greatest %2 dB, "
                                   "RMS %3 dB")
                                    .arg(number(made.record.difference->mean),
                                         number(made.record.difference->greatest),
                                         number(made.record.difference->rms));
        }
        desk.addDerived(tr("Compare"), {made});
    }

    static QString number(double value) { return fixedNumber(value, 2); }
};

class LoadMask : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(LoadMask)

public:
    QString text() const override { return tr("&Load Mask..."); }
    QString tip() const override
    {
        return tr("Draws a limit line from a file of angles and levels; the report judges by it");
    }
    bool isPossible(const CurveSet & /*curves*/) const override { return true; }
    void run(CurveDesk &desk) override
    {
        const QString path = QFileDialog::getOpenFileName(desk.dialogParent(), tr("Load Mask"),
                                                          desk.context().folder(),
                                                          tr("Masks (*.csv *.txt);;All files (*)"));
        if (path.isEmpty())
            return;
        desk.context().rememberFolder(path);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            desk.warn(tr("The mask cannot be read: %1").arg(file.errorString()));
            return;
        }
        const Mask mask = readMask(file.readAll());
        if (!mask.problem.isEmpty()) {
            desk.warn(tr("The mask cannot be read: %1").arg(mask.problem));
            return;
        }
        CurveRecord record;
        record.file = QFileInfo(path).absoluteFilePath();
        record.isMask = true;
        record.notes = QStringList(tr("A limit that curves are to stay below"));
        const CurveHistory::Step step(desk.history(), tr("Load Mask"));
        CurveSet &curves = desk.curves();
        curves.add(curves.freeName(tr("Mask %1").arg(QFileInfo(path).completeBaseName())),
                   CurveAlgebra::drawnMask(mask.corners), record);
    }
};

} // namespace

namespace SetOperations {

std::unique_ptr<CurveOperation> average()
{
    return std::make_unique<Average>();
}

std::unique_ptr<CurveOperation> envelope()
{
    return std::make_unique<Envelope>();
}

std::unique_ptr<CurveOperation> compare()
{
    return std::make_unique<Compare>();
}

std::unique_ptr<CurveOperation> loadMask()
{
    return std::make_unique<LoadMask>();
}

} // namespace SetOperations
