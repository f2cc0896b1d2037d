#include "patterns/operationdialogs.h"

#include "2d/form/curveset.h"
#include "2d/scene/generatecolors.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr double levelLimit = 1000.0; // dB

struct OperationText
{
    Q_DECLARE_TR_FUNCTIONS(OperationDialogs)
};

/// A dialog of rows above *OK* and *Cancel*.
class Question : public QDialog
{
public:
    Question(QWidget *parent, const QString &title)
        : QDialog(parent)
        , m_rows(new QFormLayout(this))
        , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
    {
        setWindowTitle(title);
        connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    QFormLayout &rows() { return *m_rows; }
    QPushButton *okButton() { return m_buttons->button(QDialogButtonBox::Ok); }

    bool isAnswered()
    {
        m_rows->addRow(m_buttons);
        return exec() == QDialog::Accepted;
    }

private:
    QFormLayout *m_rows;
    QDialogButtonBox *m_buttons;
};

QDoubleSpinBox *numberBox(QWidget *parent, double value, double least, double greatest,
                          const QString &unit)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setLocale(QLocale::c());
    box->setDecimals(3);
    box->setRange(least, greatest);
    box->setValue(value);
    box->setSuffix(unit);
    box->selectAll();
    return box;
}

} // namespace

namespace OperationDialogs {

std::optional<double> askNumber(QWidget *parent, const NumberQuestion &question)
{
    Question dialog(parent, question.title);
    QDoubleSpinBox *box =
        numberBox(&dialog, question.value, question.least, question.greatest, question.unit);
    dialog.rows().addRow(question.label, box);
    return dialog.isAnswered() ? std::optional<double>(box->value()) : std::nullopt;
}

std::optional<double> askOffset(QWidget *parent, double peak)
{
    Question dialog(parent, OperationText::tr("Normalise"));
    const QString unit = QStringLiteral(" dB");
    auto *toPeak = new QRadioButton(OperationText::tr("&Peak to"), &dialog);
    auto *byOffset = new QRadioButton(OperationText::tr("&Add"), &dialog);
    QDoubleSpinBox *wanted = numberBox(&dialog, 0.0, -levelLimit, levelLimit, unit);
    QDoubleSpinBox *offset = numberBox(&dialog, 0.0, -levelLimit, levelLimit, unit);
    dialog.rows().addRow(toPeak, wanted);
    dialog.rows().addRow(byOffset, offset);
    QObject::connect(toPeak, &QRadioButton::toggled, wanted, &QWidget::setEnabled);
    QObject::connect(byOffset, &QRadioButton::toggled, offset, &QWidget::setEnabled);
    offset->setEnabled(false);
    toPeak->setChecked(true);
    if (!dialog.isAnswered())
        return std::nullopt;
    return toPeak->isChecked() ? wanted->value() - peak : offset->value();
}

std::optional<std::pair<int, int>> askPair(QWidget *parent, const CurveSet &curves,
                                           const QList<int> &ids)
{
    Question dialog(parent, OperationText::tr("Compare"));
    auto *first = new QComboBox(&dialog);
    auto *second = new QComboBox(&dialog);
    for (const int id : ids) {
        for (QComboBox *box : {first, second})
            box->addItem(curveSwatch(curves.color(id)), curves.name(id), id);
    }
    second->setCurrentIndex(1);
    dialog.rows().addRow(OperationText::tr("&Curve:"), first);
    dialog.rows().addRow(OperationText::tr("&minus:"), second);
    const auto check = [&] {
        dialog.okButton()->setEnabled(first->currentIndex() != second->currentIndex());
    };
    for (QComboBox *box : {first, second})
        QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), &dialog, check);
    if (!dialog.isAnswered())
        return std::nullopt;
    return std::make_pair(first->currentData().toInt(), second->currentData().toInt());
}

} // namespace OperationDialogs
