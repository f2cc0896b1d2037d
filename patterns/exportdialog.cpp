#include "patterns/exportdialog.h"

#include "2d/form/curveset.h"
#include "2d/scene/generatecolors.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace {

using PatternFormats::Format;

struct ExportText
{
    Q_DECLARE_TR_FUNCTIONS(ExportDialog)
};

QComboBox *curveBox(QWidget *parent, const CurveSet &curves)
{
    auto *box = new QComboBox(parent);
    box->addItem(ExportText::tr("none"), 0);
    for (const int id : curves.ids())
        box->addItem(curveSwatch(curves.color(id)), curves.name(id), id);
    return box;
}

/// The curve whose name ends like that of an imported cut, else the one \a instead.
void propose(QComboBox &box, const QString &ending, int instead)
{
    for (int i = 1; i < box.count(); ++i) {
        if (box.itemText(i).endsWith(ending)) {
            box.setCurrentIndex(i);
            return;
        }
    }
    box.setCurrentIndex(qMin(instead, box.count() - 1));
}

} // namespace

namespace ExportDialog {

std::optional<PatternChoice> ask(QWidget *parent, const CurveSet &curves)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(ExportText::tr("Export Pattern"));
    auto *format = new QComboBox(&dialog);
    format->addItem(ExportText::tr("MSI or Planet"), int(Format::Msi));
    format->addItem(ExportText::tr("NSMA (WG16.99.050)"), int(Format::Nsma));
    format->addItem(ExportText::tr("NEC2 listing"), int(Format::Nec));
    QComboBox *horizontal = curveBox(&dialog, curves);
    QComboBox *vertical = curveBox(&dialog, curves);
    propose(*horizontal, QStringLiteral(" H"), 1);
    propose(*vertical, QStringLiteral(" V"), 2);

    auto *hint =
        new QLabel(ExportText::tr("The curves go out as they stand; MSI takes whole circles, on "
                                  "whole degrees. Edit - Mirror Curve turns the sense of the "
                                  "angles."),
                   &dialog);
    hint->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    auto *layout = new QFormLayout(&dialog);
    layout->addRow(ExportText::tr("&Format:"), format);
    layout->addRow(ExportText::tr("&Horizontal cut:"), horizontal);
    layout->addRow(ExportText::tr("&Vertical cut:"), vertical);
    layout->addRow(hint);
    layout->addRow(buttons);

    PatternChoice choice;
    const auto read = [&] {
        choice.format = Format(format->currentData().toInt());
        choice.horizontal = horizontal->currentData().toInt();
        choice.vertical = vertical->currentData().toInt();
        const bool both = choice.horizontal != 0 && choice.vertical != 0;
        const bool any = choice.horizontal != 0 || choice.vertical != 0;
        buttons->button(QDialogButtonBox::Ok)
            ->setEnabled(choice.format == Format::Msi ? both : any);
    };
    for (QComboBox *box : {format, horizontal, vertical})
        QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), &dialog, read);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    read();
    return dialog.exec() == QDialog::Accepted ? std::optional<PatternChoice>(choice) : std::nullopt;
}

} // namespace ExportDialog
