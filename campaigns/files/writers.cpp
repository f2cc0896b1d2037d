#include "writers.h"

#include "2d/form/listchart.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"
#include "console/startoptions.h"
#include "mainwindow.h"
#include "messagelog.h"
#include "patterns/patternwindow.h"
#include "patterns/saveactions.h"
#include "patterns/workbench.h"
#include "storage/consolesettings.h"
#include "storage/recordfile.h"
#include "user.h"

#include <QChart>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QSpinBox>

namespace {

using Kind = WrittenFile::Kind;
using Begin = std::function<void()>;

const QString noRecord = QStringLiteral("open failed|Record not written");
const QString noSettings = QStringLiteral("Settings not (read|written)");

WrittenFile whole(const char *path)
{
    return {QString::fromLatin1(path), Kind::Whole, {}, false};
}

WrittenFile lines(const QString &path, const char *lineEnd, bool isFree = false)
{
    return {path, Kind::Lines, lineEnd, isFree};
}

QVector<QPointF> curve(int round)
{
    QVector<QPointF> points;
    for (int angle = -180; angle <= 180; ++angle)
        points.append({double(angle), -0.01 * round * angle});
    return points;
}

void appendRow(int round, const Begin &begin)
{
    begin();
    const QDateTime when = QDateTime::currentDateTime();
    const FileOutcome outcome = RecordFile::append(
        QDir::current().filePath(QStringLiteral("record.csv")),
        RecordFile::row(when, 50, round, QStringLiteral("-20.00"), QString::fromUtf8("10.00µW")));
    if (outcome.kind != FileOutcome::Kind::Written)
        qWarning() << "Record not written:" << outcome.reason;
}

void saveSettings(int round, const Begin &begin)
{
    begin();
    ConsoleSettings{QStringLiteral("en"), QStringLiteral("192.168.0.%1").arg(round), {}, round, 1}
        .save(QDir::current().filePath(QStringLiteral("config.ini")));
}

void logMessage(int round, const Begin &begin)
{
    qInstallMessageHandler(MessageLog::handler);
    begin();
    qWarning("message %d", round);
}

void useConsole(MainWindow &window, int round)
{
    window.begin(StartOptions());
    window.findChild<QSpinBox *>(QStringLiteral("spinBoxInterval"))->setValue(1 + round);
    QMetaObject::invokeMethod(&window, "on_btnReset_clicked"); // the button is for an open link
    qWarning("message %d", round);
    User::closeBoxes();
}

/// The whole console from its start to its end, with one record in between.
void runConsole(int round, const Begin &begin)
{
    qInstallMessageHandler(MessageLog::handler);
    begin();
    MainWindow window;
    useConsole(window, round);
}

/// The same with settings that could be read: what cannot be read counts as never set, and then
/// other files are written.
void runSetUpConsole(int round, const Begin &begin)
{
    qInstallMessageHandler(MessageLog::handler);
    MainWindow window;
    begin();
    useConsole(window, round);
}

/// \a slot of a chart view asks for the name of the file by itself.
Writer::Act exportBy(const char *slot, const char *file)
{
    return [slot, file](int round, const Begin &begin) {
        GraphicsBase view(0);
        view.resize(300, 200);
        view.chart()->setTitle(QStringLiteral("Title"));
        view.addCurve(QStringLiteral("F%1").arg(round), curve(round))->setSelected(true);
        const User theUser(QDir::current().filePath(QString::fromLatin1(file)), begin);
        QMetaObject::invokeMethod(&view, slot);
    };
}

/// The workbench, which is told the name of the file.
Writer::Act saveBy(bool (SaveActions::*save)(const QString &), const char *file)
{
    return [save, file](int round, const Begin &begin) {
        Workbench workbench(QDir::tempPath() + QStringLiteral("/workbench-of-a-save.json"));
        PatternWindow window(workbench);
        window.resize(600, 400);
        window.show();
        CurveSet &curves = window.form().curves();
        curves.select(window.form().addCurve(QStringLiteral("F%1").arg(round), curve(round)));
        const User theUser;
        begin();
        (window.saving().*save)(QDir::current().filePath(QString::fromLatin1(file)));
    };
}

void rememberFile(int round, const Begin &begin)
{
    WorkbenchSettings settings(QDir::current().filePath(QStringLiteral("workbench.json")));
    if (round == 0)
        settings.setLanguage(QStringLiteral("cn")); // which must outlive whatever is set later
    begin();
    settings.setRecentFiles({QStringLiteral("/curves/F%1.csv").arg(round)});
}

Writer writer(const char *name, const QVector<WrittenFile> &files, const QString &complaint,
              const Writer::Act &act)
{
    Writer writer;
    writer.name = name;
    writer.files = files;
    writer.complaint = complaint;
    writer.act = act;
    return writer;
}

Writer fromNothing(Writer writer)
{
    writer.startsEmpty = true;
    return writer;
}

Writer slow(Writer writer)
{
    writer.isSlow = true;
    return writer;
}

Writer onShare(Writer writer)
{
    writer.isOnShare = true;
    return writer;
}

QVector<Writer> smallWriters()
{
    const WrittenFile record = lines(QStringLiteral("record.csv"), "\n");
    const WrittenFile log = lines(MessageLog::file(QDateTime::currentDateTime()), "\r\n", true);
    const WrittenFile settings = whole("config.ini");
    const WrittenFile memory = whole("workbench.json");
    return {
        fromNothing(writer("record, new day", {record}, noRecord, appendRow)),
        writer("record, next row", {record}, noRecord, appendRow),
        fromNothing(writer("config.ini, first", {settings}, noSettings, saveSettings)),
        writer("config.ini, replaced", {settings}, noSettings, saveSettings),
        onShare(writer("config.ini, on a share", {settings}, noSettings, saveSettings)),
        fromNothing(writer("log, new hour", {log}, {}, logMessage)),
        writer("log, next message", {log}, {}, logMessage),
        fromNothing(writer("workbench's settings, first", {memory}, noSettings, rememberFile)),
        writer("workbench's settings", {memory}, noSettings, rememberFile),
    };
}

QVector<Writer> consoleWriters()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QVector<WrittenFile> all{
        lines(RecordFile::path(QStringLiteral("DataRecord"), now.date()), "\n"),
        whole("config.ini"),
        lines(MessageLog::file(now), "\r\n", true),
    };
    const QString anything =
        QStringLiteral("box: The console cannot write|") + noRecord + QLatin1Char('|') + noSettings;
    return {
        fromNothing(slow(writer("console, first run", all, anything, runConsole))),
        slow(writer("console, later run", all, anything, runSetUpConsole)),
    };
}

QVector<Writer> exports()
{
    const QString noExport = QStringLiteral("box: (Open|Write) file failed");
    // The box reports success in any case; the log tells the truth.
    const QString noPicture = QStringLiteral("the image was not saved");
    const QString noSave = QStringLiteral("box: The file could not be written");
    const auto data = exportBy("exportGraphicsDataSlot", "curve.csv");
    const auto picture = exportBy("exportGraphicsImageSlot", "chart.png");
    const auto saved = [&noSave](const char *name, bool (SaveActions::*save)(const QString &),
                                 const char *file) {
        return slow(writer(name, {whole(file)}, noSave, saveBy(save, file)));
    };
    return {
        fromNothing(slow(writer("chart: curve, new", {whole("curve.csv")}, noExport, data))),
        slow(writer("chart: curve, replaced", {whole("curve.csv")}, noExport, data)),
        slow(writer("chart: picture", {whole("chart.png")}, noPicture, picture)),
        saved("workbench: curve", &SaveActions::saveCurve, "curve.csv"),
        saved("workbench: picture", &SaveActions::savePicture, "chart.png"),
        saved("workbench: report", &SaveActions::saveReport, "report.html"),
        saved("workbench: PDF report", &SaveActions::saveReport, "report.pdf"),
    };
}

} // namespace

QVector<Writer> allWriters()
{
    return smallWriters() + consoleWriters() + exports();
}
