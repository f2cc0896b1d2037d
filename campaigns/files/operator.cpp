#include "operator.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>

#include <cstdio>

namespace {

constexpr int lookEvery = 1; // ms

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

} // namespace

Operator::Operator(QString file, std::function<void()> chosen)
    : m_file(std::move(file))
    , m_chosen(std::move(chosen))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.setSingleShot(true);
    m_timer.start(lookEvery);
}

void Operator::closeBoxes()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && qobject_cast<QMessageBox *>(window) != nullptr)
            readAndClose(window);
    }
}

void Operator::look()
{
    m_timer.start(lookEvery); // first: the answer may open the next dialog and wait for it
    if (QWidget *dialog = QApplication::activeModalWidget(); dialog && dialog->isVisible())
        answer(dialog);
}

void Operator::answer(QWidget *dialog)
{
    if (auto *files = qobject_cast<QFileDialog *>(dialog)) {
        QObject::connect(files, &QDialog::accepted, &m_timer, [this] { m_chosen(); });
        files->setDirectory(QFileInfo(m_file).path());
        files->selectFile(QFileInfo(m_file).fileName());
        static_cast<QDialog *>(files)->accept();
        return;
    }
    auto *box = qobject_cast<QMessageBox *>(dialog);
    QAbstractButton *yes = box ? box->button(QMessageBox::Yes) : nullptr;
    if (yes)
        yes->click();
    else
        readAndClose(dialog);
}
