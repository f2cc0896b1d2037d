#include "patterns/commandline.h"

#include <QCommandLineParser>
#include <QFileInfo>

// The texts stay English: the command line is read before there is a language to show them in.

namespace {

using Kind = BatchTask::Kind;

/// The options of the work without a window.
struct BatchOptions
{
    QCommandLineOption figures{
        QStringLiteral("figures"),
        QStringLiteral("Print the figures of all curves as CSV, without a window.")};
    QCommandLineOption exportCurves{
        QStringLiteral("export"),
        QStringLiteral("Write every curve as a curve file into FOLDER, without a window."),
        QStringLiteral("FOLDER")};
    QCommandLineOption exportMsi{
        QStringLiteral("export-msi"),
        QStringLiteral("Write two curves as the MSI file OUT.msi, without a window."),
        QStringLiteral("OUT.msi")};
    QCommandLineOption horizontal{QStringLiteral("horizontal"),
                                  QStringLiteral("The horizontal curve for --export-msi."),
                                  QStringLiteral("CURVE")};
    QCommandLineOption vertical{QStringLiteral("vertical"),
                                QStringLiteral("The vertical curve for --export-msi."),
                                QStringLiteral("CURVE")};
    QCommandLineOption report{
        QStringLiteral("report"),
        QStringLiteral("Write the report of all curves (.html or .pdf), without a window."),
        QStringLiteral("OUT")};

    QList<QCommandLineOption> all() const
    {
        return {figures, exportCurves, exportMsi, horizontal, vertical, report};
    }
};

BatchTask taskOf(const QCommandLineParser &parser, const BatchOptions &options)
{
    BatchTask task;
    if (parser.isSet(options.report)) {
        task.kind = Kind::Report;
        task.output = parser.value(options.report);
    } else if (parser.isSet(options.exportMsi)) {
        task.kind = Kind::ExportMsi;
        task.output = parser.value(options.exportMsi);
    } else if (parser.isSet(options.exportCurves)) {
        task.kind = Kind::Export;
        task.output = parser.value(options.exportCurves);
    } else if (parser.isSet(options.figures)) {
        task.kind = Kind::Figures;
    }
    task.horizontal = parser.value(options.horizontal);
    task.vertical = parser.value(options.vertical);
    return task;
}

/// What is wrong with the work that is asked for; empty: nothing.
QString complaint(const QCommandLineParser &parser, const BatchOptions &options,
                  const CommandLine &line)
{
    int kinds = 0;
    for (const QCommandLineOption &option :
         {options.figures, options.exportCurves, options.exportMsi, options.report})
        kinds += parser.isSet(option) ? 1 : 0;
    if (kinds > 1)
        return QStringLiteral("Only one of --figures, --export, --export-msi and --report can be "
                              "asked for.");
    const bool namesCuts = parser.isSet(options.horizontal) || parser.isSet(options.vertical);
    if (line.task.kind == Kind::ExportMsi) {
        if (line.task.horizontal.isEmpty() || line.task.vertical.isEmpty())
            return QStringLiteral("--export-msi needs --horizontal and --vertical.");
    } else if (namesCuts) {
        return QStringLiteral("--horizontal and --vertical belong to --export-msi.");
    }
    if (kinds == 0)
        return {};
    if (line.task.kind != Kind::Figures && line.task.output.isEmpty())
        return QStringLiteral("There is no name to write to.");
    const QString suffix = QFileInfo(line.task.output).suffix().toLower();
    if (line.task.kind == Kind::Report && suffix != QStringLiteral("html") &&
        suffix != QStringLiteral("pdf"))
        return QStringLiteral("A report is an .html or a .pdf file.");
    return line.files.isEmpty() ? QStringLiteral("There are no files to read.") : QString();
}

/// The options of the window, and those that every program has.
struct WindowOptions
{
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Language of the program: en or cn."),
                                QStringLiteral("en|cn")};
    QCommandLineOption measure{
        QStringLiteral("measure"),
        QStringLiteral("Open the dialog that measures a pattern, with the meter's address."),
        QStringLiteral("HOST[:PORT]")};
    QCommandLineOption rotator{QStringLiteral("rotator"),
                               QStringLiteral("The rotator's address for --measure."),
                               QStringLiteral("HOST[:PORT]")};
};

QString languageComplaint(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    const QString language = parser.value(option);
    const bool isKnown = language == QStringLiteral("en") || language == QStringLiteral("cn");
    if (isKnown || !parser.isSet(option))
        return {};
    return QStringLiteral("Unknown language \"%1\": en and cn are known.").arg(language);
}

/// Whether \a arguments ask for work without a window, in however wrong a way.
bool asksForWork(const QStringList &arguments, const BatchOptions &options)
{
    for (const QString &argument : arguments) {
        if (argument == QStringLiteral("--"))
            return false;
        const QString name = argument.section(QLatin1Char('='), 0, 0);
        for (const QCommandLineOption &option : options.all()) {
            if (name == QStringLiteral("--") + option.names().constFirst())
                return true;
        }
    }
    return false;
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Antenna pattern workbench of the MZ6218."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const WindowOptions window;
    parser.addOptions({window.language, window.measure, window.rotator});
    const BatchOptions batch;
    parser.addOptions(batch.all());
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Curve files and pattern files (MSI, NSMA, NEC2)."),
                                 QStringLiteral("[files...]"));

    CommandLine line;
    const bool understood = parser.parse(arguments);
    line.language = parser.value(window.language);
    line.files = parser.positionalArguments();
    line.meter = parser.value(window.measure);
    line.rotator = parser.value(window.rotator);
    line.task = taskOf(parser, batch);
    line.isBatch = asksForWork(arguments.mid(1), batch);
    line.wish = line.isBatch ? CommandLine::Wish::Batch : CommandLine::Wish::Run;
    if (understood && (parser.isSet(help) || parser.isSet(version))) {
        line.wish = CommandLine::Wish::Print;
        line.text =
            parser.isSet(help) ? parser.helpText() : QStringLiteral("mz6218-patterns " MZ_VERSION);
        return line;
    }
    line.text = understood ? languageComplaint(parser, window.language) : parser.errorText();
    if (line.text.isEmpty() && line.isBatch)
        line.text = complaint(parser, batch, line);
    if (!line.text.isEmpty())
        line.wish = CommandLine::Wish::Refuse;
    return line;
}
