#include "frame/manual.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

QString Manual::file()
{
    const QString program = QCoreApplication::applicationDirPath();
    // A console that keeps its files in a folder of the user's runs as a copy of the installed one.
    const QString places[]{program, program + QStringLiteral("/../lib/mz6218/bin"),
                           program + QStringLiteral("/../share/doc/mz6218"),
                           QStringLiteral("/usr/lib/mz6218/bin"),
                           QStringLiteral("/usr/local/lib/mz6218/bin")};
    for (const QString &place : places) {
        const QFileInfo manual(place + QStringLiteral("/help.pdf"));
        if (manual.isFile())
            return QDir::cleanPath(manual.absoluteFilePath());
    }
    return {};
}

void Manual::open(QWidget *window)
{
    const QString manual = file();
    if (!manual.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(manual)))
        return;
    const QString text =
        manual.isEmpty()
            ? tr("The manual is the file help.pdf beside the program, in %1. It is not there.")
                  .arg(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()))
            : tr("No program opens the manual. It is the file %1.")
                  .arg(QDir::toNativeSeparators(manual));
    auto *box =
        new QMessageBox(QMessageBox::Information, tr("Manual"), text, QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
