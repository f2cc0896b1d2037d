#include "console/writenotice.h"

#include <QDebug>
#include <QDir>
#include <QLockFile>
#include <QMessageBox>
#include <QStringList>

namespace {

void showBox(QWidget *window, const QString &message)
{
    qWarning().noquote() << message;
    auto *box = new QMessageBox(QMessageBox::Warning, WriteNotice::tr("Note"), message,
                                QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText); // a path may look like a tag
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace

/// What the user loses; %1 stands for where, %2 for why.
QString WriteNotice::meaning(WriteCheck::Kept kept)
{
    switch (kept) {
    case WriteCheck::Kept::Settings:
        return tr("Settings: %1 (%2). What you set now is forgotten at the end.");
    case WriteCheck::Kept::Records:
        return tr("Records: %1 (%2). No reading is recorded until you choose another folder.");
    case WriteCheck::Kept::Log:
        return tr("Log: %1 (%2). There will be no messages to look into.");
    }
    return {};
}

QString WriteNotice::text(const QVector<WriteCheck::Place> &places)
{
    QStringList lines;
    for (const WriteCheck::Place &place : places) {
        if (place.obstacle)
            lines.append(meaning(place.kept).arg(place.path, *place.obstacle));
    }
    if (lines.isEmpty())
        return {};
    lines.prepend(tr("The console cannot write everything that it keeps:"));
    return lines.join(QStringLiteral("\n\n"));
}

void WriteNotice::show(QWidget *window, const QVector<WriteCheck::Place> &places)
{
    const QString message = text(places);
    if (!message.isEmpty())
        showBox(window, message);
}

std::unique_ptr<QLockFile> WriteNotice::takeFolder(QWidget *window, const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/mz6218.lock"));
    lock->setStaleLockTime(0); // a console may run for months
    if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError)
        showBox(window, tr("Another console runs from this folder: %1. The two write into the same "
                           "records and overwrite each other's settings. Start one of them from "
                           "a folder of its own.")
                            .arg(QDir::toNativeSeparators(folder)));
    return lock;
}
