#include "patterns/savequestion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace {

struct QuestionText
{
    Q_DECLARE_TR_FUNCTIONS(SaveQuestion)
};

QStringList nameFilters(const QVector<SaveFormat> &formats)
{
    QStringList filters;
    for (const SaveFormat &format : formats) {
        filters.append(QStringLiteral("%1 (*.%2)")
                           .arg(format.description, format.suffixes.join(QStringLiteral(" *."))));
    }
    return filters;
}

/// The name in the dialog follows the format that is chosen there.
void swapSuffix(QFileDialog &dialog, const QVector<SaveFormat> &formats, const SaveFormat &chosen)
{
    const QString file = dialog.selectedFiles().value(0);
    const QFileInfo info(file);
    const QString suffix = info.suffix().toLower();
    const bool isOurs = std::any_of(formats.begin(), formats.end(), [&](const SaveFormat &format) {
        return format.suffixes.contains(suffix);
    });
    if (isOurs && !info.isDir() && !chosen.suffixes.contains(suffix))
        dialog.selectFile(info.completeBaseName() + QLatin1Char('.') + chosen.suffixes.first());
}

} // namespace

std::optional<QString> withSuffix(const QString &file, const QVector<SaveFormat> &formats,
                                  const SaveFormat &preferred)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix.isEmpty())
        return (file.endsWith(QLatin1Char('.')) ? file : file + QLatin1Char('.')) +
               preferred.suffixes.first();
    const bool isKnown = std::any_of(formats.begin(), formats.end(), [&](const SaveFormat &format) {
        return format.suffixes.contains(suffix);
    });
    return isKnown ? std::optional(file) : std::nullopt;
}

QString askSaveFile(QWidget *parent, const QString &caption, const QString &proposed,
                    const QVector<SaveFormat> &formats)
{
    QFileDialog dialog(parent, caption, QFileInfo(proposed).path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // The dialog would ask before the suffix is settled.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = nameFilters(formats);
    dialog.setNameFilters(filters);
    dialog.selectFile(QFileInfo(proposed).fileName());
    const auto chosen = [&]() -> const SaveFormat & {
        return formats.at(qMax(0, filters.indexOf(dialog.selectedNameFilter())));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&] { swapSuffix(dialog, formats, chosen()); });
    while (dialog.exec() == QDialog::Accepted) {
        const QString wanted = dialog.selectedFiles().value(0);
        const std::optional<QString> file = withSuffix(wanted, formats, chosen());
        if (!file) {
            QStringList known;
            for (const SaveFormat &format : formats)
                known += format.suffixes;
            QMessageBox::warning(
                parent, caption,
                QuestionText::tr("\"%1\" is no format that can be written here. Known "
                                 "formats: %2.")
                    .arg(QFileInfo(wanted).suffix(), known.join(QStringLiteral(", "))));
        } else if (!QFileInfo::exists(*file) || askReplace(parent, {*file})) {
            return *file;
        }
    }
    return {};
}

bool askReplace(QWidget *parent, const QStringList &files)
{
    QStringList names;
    for (const QString &file : files)
        names.append(QDir::toNativeSeparators(file));
    QStringList shown = names.mid(0, 10);
    if (names.size() > shown.size())
        shown.append(QStringLiteral("…"));
    QMessageBox box(QMessageBox::Question, QuestionText::tr("Replace"),
                    QuestionText::tr("This exists already:\n%1\nReplace it?")
                        .arg(shown.join(QLatin1Char('\n'))),
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    if (names.size() > 10)
        box.setDetailedText(names.join(QLatin1Char('\n')));
    const QPushButton *replace =
        box.addButton(QuestionText::tr("&Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    return static_cast<const void *>(box.clickedButton()) == replace;
}
