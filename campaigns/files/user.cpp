#include "user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>

#include <cstdio>

namespace {

constexpr int mostDialogs = 10;

QString textOf(const QWidget &dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        return box->text();
    const auto *label = dialog.findChild<QLabel *>(QStringLiteral("reminderLabel"));
    return label ? label->text() : dialog.windowTitle();
}

void readAndClose(QWidget *dialog)
{
    std::fprintf(stderr, "box: %s\n", qPrintable(textOf(*dialog)));
    dialog->close();
}

void choose(QFileDialog &dialog, const QString &file, const std::function<void()> &chosen)
{
    QObject::connect(&dialog, &QDialog::accepted, &dialog, chosen);
    dialog.setDirectory(QFileInfo(file).path());
    dialog.selectFile(QFileInfo(file).fileName());
    static_cast<QDialog &>(dialog).accept();
}

} // namespace

User::User(const QString &file, const std::function<void()> &chosen)
    : ModalScript(QVector<Step>(mostDialogs, [=](QWidget *dialog) {
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        auto *yes = box ? box->button(QMessageBox::Yes) : nullptr;
        if (auto *files = qobject_cast<QFileDialog *>(dialog))
            choose(*files, file, chosen);
        else if (yes)
            yes->click();
        else
            readAndClose(dialog);
    }))
{}

void User::closeBoxes()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && qobject_cast<QMessageBox *>(window) != nullptr)
            readAndClose(window);
    }
}
