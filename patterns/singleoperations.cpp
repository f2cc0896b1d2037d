#include "patterns/singleoperations.h"

#include "2d/data/curvealgebra.h"
#include "2d/data/curvetext.h"
#include "patterns/curvedesk.h"
#include "patterns/operationdialogs.h"

#include <QCoreApplication>

namespace {

/// Puts a curve that was made of the selected one beside it.
void derive(CurveDesk &desk, const QString &step, const QString &name, const QString &description,
            const QVector<QPointF> &points)
{
    const CurveSet &curves = desk.curves();
    const int id = curves.selected();
    CurveRecord record = curves.record(id);
    record.difference.reset();
    desk.addDerived(
        step, {{name.arg(curves.name(id)), points, description.arg(curves.name(id)), record}});
}

QVector<QPointF> selectedPoints(const CurveDesk &desk)
{
    const CurveSet &curves = desk.curves();
    return curves.points(curves.selected());
}

class Normalise : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Normalise)

public:
    QString text() const override { return tr("&Normalise..."); }
    QString tip() const override
    {
        return tr("Raises or lowers the selected curve, to a peak or by an offset");
    }
    void run(CurveDesk &desk) override
    {
        const QVector<QPointF> points = selectedPoints(desk);
        const double peak = CurveAlgebra::peakLevel(points).value_or(0.0);
        const std::optional<double> offset = OperationDialogs::askOffset(desk.dialogParent(), peak);
        if (!offset)
            return;
        const QString added =
            (*offset < 0.0 ? QString() : QStringLiteral("+")) + QString::number(*offset, 'f', 3);
        derive(desk, tr("Normalise"), tr("%1, normalised"),
               tr("%2 dB added to \"%1\"").replace(QStringLiteral("%2"), added),
               CurveAlgebra::raised(points, *offset));
    }
};

class Mirror : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Mirror)

public:
    QString text() const override { return tr("&Mirror Curve"); }
    QString tip() const override
    {
        return tr("Turns the sense of the selected curve's angles: left becomes right");
    }
    void run(CurveDesk &desk) override
    {
        derive(desk, tr("Mirror Curve"), tr("%1, mirrored"), tr("\"%1\", its angles' sign turned"),
               CurveAlgebra::mirrored(selectedPoints(desk)));
    }
};

class Rotate : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Rotate)

public:
    QString text() const override { return tr("R&otate..."); }
    QString tip() const override { return tr("Adds an angle to those of the selected curve"); }
    void run(CurveDesk &desk) override
    {
        const std::optional<double> degrees = OperationDialogs::askNumber(
            desk.dialogParent(),
            {tr("Rotate"), tr("&Angle:"), QStringLiteral("°"), m_degrees, -360.0, 360.0});
        if (!degrees)
            return;
        m_degrees = *degrees;
        const QString turned = CurveText::number(m_degrees);
        derive(desk, tr("Rotate"), tr("%1, rotated by %2°").replace(QStringLiteral("%2"), turned),
               tr("\"%1\", rotated by %2°").replace(QStringLiteral("%2"), turned),
               CurveAlgebra::rotated(selectedPoints(desk), m_degrees));
    }

private:
    double m_degrees = 90.0;
};

class Smooth : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(Smooth)

public:
    QString text() const override { return tr("&Smooth..."); }
    QString tip() const override
    {
        return tr("Averages the power of the selected curve over a width in degrees");
    }
    void run(CurveDesk &desk) override
    {
        const std::optional<double> width = OperationDialogs::askNumber(
            desk.dialogParent(),
            {tr("Smooth"), tr("&Width:"), QStringLiteral("°"), m_width, 0.0, 180.0});
        if (!width)
            return;
        m_width = *width;
        const QString text = CurveText::number(m_width);
        derive(
            desk, tr("Smooth"), tr("%1, smoothed over %2°").replace(QStringLiteral("%2"), text),
            tr("\"%1\", moving average of the power over %2°").replace(QStringLiteral("%2"), text),
            CurveAlgebra::smoothed(selectedPoints(desk), m_width));
    }

private:
    double m_width = 5.0;
};

} // namespace

namespace SingleOperations {

std::unique_ptr<CurveOperation> normalise()
{
    return std::make_unique<Normalise>();
}

std::unique_ptr<CurveOperation> mirror()
{
    return std::make_unique<Mirror>();
}

std::unique_ptr<CurveOperation> rotate()
{
    return std::make_unique<Rotate>();
}

std::unique_ptr<CurveOperation> smooth()
{
    return std::make_unique<Smooth>();
}

} // namespace SingleOperations
