#include "patterns/cutdialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

using PatternFormats::Component;

struct CutText
{
    Q_DECLARE_TR_FUNCTIONS(CutDialog)
};

QListWidget *cutList(QWidget *parent, const PatternFormats::PatternFile &pattern)
{
    auto *list = new QListWidget(parent);
    for (const PatternFormats::Cut &cut : pattern.cuts) {
        auto *item = new QListWidgetItem(cut.name, list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(cut.principal ? Qt::Checked : Qt::Unchecked);
    }
    return list;
}

void checkAll(QListWidget &list, Qt::CheckState state)
{
    for (int i = 0; i < list.count(); ++i)
        list.item(i)->setCheckState(state);
}

QVector<int> checkedOf(const QListWidget &list)
{
    QVector<int> rows;
    for (int i = 0; i < list.count(); ++i) {
        if (list.item(i)->checkState() == Qt::Checked)
            rows.append(i);
    }
    return rows;
}

} // namespace

namespace CutDialog {

std::optional<CutChoice> ask(QWidget *parent, const QString &file,
                             const PatternFormats::PatternFile &pattern)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(CutText::tr("Open %1").arg(file));
    QListWidget *list = cutList(&dialog, pattern);
    auto *component = new QComboBox(&dialog);
    component->addItem(CutText::tr("total"), int(Component::Total));
    component->addItem(CutText::tr("vertical"), int(Component::Vertical));
    component->addItem(CutText::tr("horizontal"), int(Component::Horizontal));
    component->setEnabled(pattern.hasComponents());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QPushButton *all = buttons->addButton(CutText::tr("&All"), QDialogButtonBox::ActionRole);
    QPushButton *none = buttons->addButton(CutText::tr("&None"), QDialogButtonBox::ActionRole);

    auto *layout = new QFormLayout(&dialog);
    layout->addRow(new QLabel(CutText::tr("The file holds %1 cuts.").arg(pattern.cuts.size())));
    layout->addRow(list);
    layout->addRow(CutText::tr("&Field:"), component);
    layout->addRow(buttons);

    for (const int row : checkedOf(*list).mid(0, 1))
        list->scrollToItem(list->item(row));
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    QObject::connect(list, &QListWidget::itemChanged, ok,
                     [list, ok] { ok->setEnabled(!checkedOf(*list).isEmpty()); });
    QObject::connect(all, &QPushButton::clicked, list, [list] { checkAll(*list, Qt::Checked); });
    QObject::connect(none, &QPushButton::clicked, list, [list] { checkAll(*list, Qt::Unchecked); });
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return CutChoice{checkedOf(*list), Component(component->currentData().toInt())};
}

} // namespace CutDialog
