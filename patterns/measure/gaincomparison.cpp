#include "patterns/measure/gaincomparison.h"

#include "2d/data/curvetext.h"
#include "patterns/curvedesk.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace {

double peakOf(const QVector<QPointF> &points)
{
    const auto peak = std::max_element(points.begin(), points.end(),
                                       [](QPointF a, QPointF b) { return a.y() < b.y(); });
    return peak == points.end() ? 0.0 : peak->y();
}

class GainByComparison : public CurveOperation
{
    Q_DECLARE_TR_FUNCTIONS(GainByComparison)

public:
    QString text() const override { return tr("&Gain by Comparison..."); }
    QString tip() const override
    {
        return tr("Turns the selected curve into dBi by a reference antenna of known gain");
    }
    bool isPossible(const CurveSet &curves) const override
    {
        return CurveOperation::isPossible(curves) && !others(curves).isEmpty();
    }

    void run(CurveDesk &desk) override
    {
        const CurveSet &curves = desk.curves();
        const int id = curves.selected();
        GainComparison::Inputs inputs;
        const int reference = ask(desk, inputs);
        if (reference == 0)
            return;
        DerivedCurve made;
        made.name = tr("%1, dBi").arg(curves.name(id));
        made.points = GainComparison::gains(curves.points(id), inputs);
        made.record = curves.record(id);
        made.description =
            tr("Gain of \"%1\" by comparison with \"%2\": G = G_ref + P - P_ref + L - L_ref with "
               "G_ref %3 dBi, P_ref %4 dBm, L %5 dB, L_ref %6 dB")
                .arg(curves.name(id), curves.name(reference),
                     CurveText::number(inputs.referenceGain),
                     CurveText::number(inputs.referenceLevel), CurveText::number(inputs.loss),
                     CurveText::number(inputs.referenceLoss));
        if (made.record.frequency != curves.record(reference).frequency)
            made.description += tr("; their frequencies differ");
        desk.addDerived(tr("Gain by Comparison"), {made});
    }

private:
    static QList<int> others(const CurveSet &curves)
    {
        QList<int> ids;
        for (const int id : curves.ids()) {
            if (id != curves.selected() && !curves.record(id).isMask &&
                !curves.points(id).isEmpty())
                ids.append(id);
        }
        return ids;
    }

    static QDoubleSpinBox *field(QFormLayout &form, const QString &label, const QString &unit,
                                 const QString &tip)
    {
        auto *box = new QDoubleSpinBox;
        box->setRange(-200.0, 200.0);
        box->setDecimals(4); // as the means of a measurement
        box->setSuffix(QLatin1Char(' ') + unit);
        box->setToolTip(tip);
        form.addRow(label, box);
        return box;
    }

    /// The reference that was chosen, 0 when the user cancels.
    static int ask(CurveDesk &desk, GainComparison::Inputs &inputs)
    {
        const CurveSet &curves = desk.curves();
        QDialog dialog(desk.dialogParent());
        dialog.setWindowTitle(tr("Gain by Comparison"));
        dialog.setLocale(QLocale::c());
        QFormLayout form(&dialog);
        auto *reference = new QComboBox;
        const QList<int> ids = others(curves);
        for (const int id : ids)
            reference->addItem(curves.name(id), id);
        form.addRow(tr("&Reference:"), reference);
        auto *gain = field(form, tr("Its &gain:"), QStringLiteral("dBi"),
                           tr("The gain of the reference antenna at this frequency"));
        auto *level = field(form, tr("Its &level:"), QStringLiteral("dBm"),
                            tr("Measured where the reference looks at the source: its peak"));
        auto *loss = field(form, tr("Lo&ss:"), QStringLiteral("dB"),
                           tr("Of cables and attenuators when the antenna was measured"));
        auto *referenceLoss =
            field(form, tr("Loss, re&ference:"), QStringLiteral("dB"),
                  tr("Of cables and attenuators when the reference was measured"));
        const auto showLevel = [&] {
            level->setValue(peakOf(curves.points(reference->currentData().toInt())));
        };
        QObject::connect(reference, qOverload<int>(&QComboBox::currentIndexChanged), &dialog,
                         showLevel);
        showLevel();
        QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        QObject::connect(&buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
        QObject::connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
        form.addRow(&buttons);
        if (dialog.exec() != QDialog::Accepted)
            return 0;
        inputs = {gain->value(), level->value(), loss->value(), referenceLoss->value()};
        return reference->currentData().toInt();
    }
};

} // namespace

namespace GainComparison {

QVector<QPointF> gains(const QVector<QPointF> &measured, const Inputs &inputs)
{
    const double offset =
        inputs.referenceGain - inputs.referenceLevel + inputs.loss - inputs.referenceLoss;
    QVector<QPointF> points = measured;
    for (QPointF &point : points)
        point.ry() += offset;
    return points;
}

std::unique_ptr<CurveOperation> operation()
{
    return std::make_unique<GainByComparison>();
}

} // namespace GainComparison
