#include "console/writenotice.h"

#include <QDebug>
#include <QMessageBox>
#include <QStringList>

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
    if (message.isEmpty())
        return;
    qWarning().noquote() << message;
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Note"), message, QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText); // a path may look like a tag
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
