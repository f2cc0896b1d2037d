#include "2d/view/curvename.h"

#include "widgets/messagedialog.h"

#include <QCoreApplication>

namespace {

struct CurveName
{
    Q_DECLARE_TR_FUNCTIONS(CurveName)
};

} // namespace

std::optional<QString> askFreeCurveName(QWidget *parent, const QString &name,
                                        const std::function<bool(const QString &)> &taken)
{
    QString wanted = name;
    while (wanted.trimmed().isEmpty() || taken(wanted)) {
        MessageDialog dialog(CurveName::tr("Warning"),
                             wanted.trimmed().isEmpty()
                                 ? CurveName::tr("A curve needs a name.")
                                 : CurveName::tr("Existing frequency!\n Please modify the name"),
                             QString(), CurveName::tr("OK"), CurveName::tr("Cancel"), parent);
        dialog.setFrequencyRowVisible(true);
        dialog.setRawFrequency(wanted);
        dialog.setCurrentFrequency(wanted);
        if (dialog.exec() != QDialog::Accepted)
            return std::nullopt;
        wanted = dialog.currentFrequency();
    }
    return wanted;
}
