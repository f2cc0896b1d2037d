#include "widgets/loadingdialog.h"

#include <QApplication>
#include <QTimer>

/// mz_waitbox: shows the wait box of zeroing and calibration for half a minute, so that what a
/// screen shows of it can be looked at.
int main(int argc, char **argv)
{
    constexpr int shown = 30; // s
    QApplication app(argc, argv);
    LoadingDialog dialog(nullptr);
    dialog.setTaskLabelText(QStringLiteral("Set zero"));
    dialog.setLabelText(shown);
    QTimer::singleShot(1000 * shown, &dialog, &QDialog::close);
    return dialog.exec();
}
