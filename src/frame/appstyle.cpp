#include "frame/appstyle.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPalette>
#include <QStyle>

namespace AppStyle {

void enableHighDpi()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

QString fontFile()
{
    return QStringLiteral("./font/Mulinito-Regular.ttf");
}

QFont applicationFont()
{
    QFont font;
    const int id = QFontDatabase::addApplicationFont(fontFile());
    const QStringList families =
        id >= 0 ? QFontDatabase::applicationFontFamilies(id) : QStringList();
    if (!families.isEmpty())
        font.setFamily(families.constFirst());
    font.setPixelSize(12);
    return font;
}

void applyStyleSheet()
{
    QFile file(QStringLiteral(":/qss/psblack.css"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QString sheet = QString::fromLatin1(file.readAll());
    // The sheet's first rule is "QPalette{background:#FFFFFF;}": its colour starts at character 20.
    QApplication::setPalette(QPalette(QColor(sheet.mid(20, 7))));
    qApp->setStyleSheet(sheet);
}

void restyle(QWidget *widget)
{
    widget->style()->unpolish(widget); // the style sheet looks at properties only then
    // A font from the style sheet would outlive its rule, in the editor inside a box as well.
    widget->setFont(QFont());
    const auto editors = widget->findChildren<QLineEdit *>();
    for (QLineEdit *editor : editors)
        editor->setFont(QFont());
    widget->style()->polish(widget);
    widget->update();
}

} // namespace AppStyle
