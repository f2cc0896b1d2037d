#pragma once

#include "storage/writecheck.h"

#include <QCoreApplication>

#include <memory>

class QLockFile;
class QWidget;

/// What the console says when it starts and cannot write what it keeps.
class WriteNotice
{
    Q_DECLARE_TR_FUNCTIONS(WriteNotice)

public:
    /// One text that names all of \a places that cannot be written, and what that means; empty when
    /// all can.
    static QString text(const QVector<WriteCheck::Place> &places);

    /// Shows that text over \a window, unless it is empty. Does not wait for the user, since a
    /// measurement that starts by itself must not.
    static void show(QWidget *window, const QVector<WriteCheck::Place> &places);

    /// Takes \a folder for this console, as long as the lock lives. Where another one has it, a box
    /// over \a window says once what comes of two.
    static std::unique_ptr<QLockFile> takeFolder(QWidget *window, const QString &folder);

private:
    static QString meaning(WriteCheck::Kept kept);
};
