#include "frame/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

/// Qt's own texts in Chinese: from the Qt installation, or from where Windows packages put them.
std::unique_ptr<QTranslator> chineseQtTexts()
{
    const QString packaged =
        QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    const QString installed = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    auto texts = std::make_unique<QTranslator>();
    if (texts->load(QStringLiteral("qtbase_zh_CN"), installed) ||
        texts->load(QStringLiteral("qtbase_zh_CN"), packaged) ||
        texts->load(QStringLiteral("qt_zh_CN"), packaged))
        return texts;
    return nullptr;
}

} // namespace

Language::Language() = default;

Language::~Language() = default;

bool Language::hasChineseQtTexts()
{
    return chineseQtTexts() != nullptr;
}

void Language::set(const QString &code)
{
    const bool chinese = code == QStringLiteral("cn");
    m_code = code;

    // What is destroyed leaves the application by itself.
    m_qtTexts = chinese ? chineseQtTexts() : nullptr;
    if (m_qtTexts)
        QCoreApplication::installTranslator(m_qtTexts.get());

    m_texts = std::make_unique<QTranslator>();
    if (m_texts->load(chinese ? QStringLiteral(":/qm/lx_cn.qm") : QStringLiteral(":/qm/lx_en.qm")))
        QCoreApplication::installTranslator(m_texts.get());
}
