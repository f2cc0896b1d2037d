#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/// The users' manual, a PDF file.
class Manual
{
    Q_DECLARE_TR_FUNCTIONS(Manual)

public:
    /// The file: beside the program, or where packages put it; empty when there is none.
    static QString file();

    /// Opens it in the program that the system has for such files. Where that fails, a box over
    /// \a window says why and where the manual would be.
    static void open(QWidget *window);
};
