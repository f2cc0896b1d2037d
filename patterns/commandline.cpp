#include "patterns/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Text::tr("Antenna pattern workbench"));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption language(QStringLiteral("language"),
                                      Text::tr("Language of the program: en or cn."),
                                      QStringLiteral("en|cn"));
    parser.addOption(language);
    parser.addPositionalArgument(QStringLiteral("files"), Text::tr("Curve files to open."),
                                 QStringLiteral("[files...]"));

    CommandLine line;
    const bool understood = parser.parse(arguments);
    line.language = parser.value(language);
    line.files = parser.positionalArguments();
    if (!understood) {
        line.wish = CommandLine::Wish::Refuse;
        line.text = parser.errorText();
    } else if (parser.isSet(help)) {
        line.wish = CommandLine::Wish::Print;
        line.text = parser.helpText();
    } else if (parser.isSet(version)) {
        line.wish = CommandLine::Wish::Print;
        line.text = QStringLiteral("mz6218-patterns " MZ_VERSION);
    } else if (parser.isSet(language) && line.language != QStringLiteral("en") &&
               line.language != QStringLiteral("cn")) {
        line.wish = CommandLine::Wish::Refuse;
        line.text = Text::tr("Unknown language '%1': en and cn are known.").arg(line.language);
    }
    return line;
}
