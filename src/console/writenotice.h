#pragma once

#include "storage/writecheck.h"

#include <QCoreApplication>

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

private:
    static QString meaning(WriteCheck::Kept kept);
};
