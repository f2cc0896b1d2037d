#include "patterns/commandline.h"

#include <QCommandLineParser>

// The texts stay English: the command line is read before there is a language to show them in.

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Antenna pattern workbench of the MZ6218."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the program: en or cn."),
                                      QStringLiteral("en|cn"));
    parser.addOption(language);
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("Curve files to open."),
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
        line.text =
            QStringLiteral("Unknown language \"%1\": en and cn are known.").arg(line.language);
    }
    return line;
}
