#pragma once

#include <QString>

#include <memory>

class QTranslator;

/// The language of the program: its own texts from the resources, and those of Qt's dialogs where
/// Qt's translation files are installed.
class Language
{
public:
    Language();
    ~Language();

    /// Switches the application to \a code: "cn" is Simplified Chinese, anything else English. The
    /// windows have to show their texts anew afterwards.
    void set(const QString &code);

    /// Whether Qt's own texts are there in Chinese.
    static bool hasChineseQtTexts();

    /// "cn" or "en" as last set; empty before.
    QString code() const { return m_code; }

private:
    QString m_code;
    std::unique_ptr<QTranslator> m_texts;
    std::unique_ptr<QTranslator> m_qtTexts;
};
