#include "doctor/doctor.h"

#include "Logic/linkmode.h"
#include "Logic/serialaddress.h"
#include "Logic/seriallogic.h"
#include "doctor/diagnosis.h"
#include "frame/appstyle.h"
#include "frame/language.h"
#include "storage/consolesettings.h"
#include "storage/writecheck.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QSerialPortInfo>
#include <QSysInfo>
#include <QTranslator>

namespace {

using Verdict = Finding::Verdict;
using Findings = QVector<Finding>;

Findings keptFiles(const std::optional<ConsoleSettings> &settings, const QString &logFile)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString folder =
        settings ? settings->usedRecordFolder() : program + QStringLiteral("/DataRecord");
    Findings findings;
    for (const WriteCheck::Place &place : WriteCheck::places(folder, logFile))
        findings.append(Diagnosis::ofPlace(place));
    if (settings && folder != settings->recordFolder)
        findings.append({Verdict::Note,
                         QStringLiteral("The chosen folder of the records is gone: %1")
                             .arg(settings->recordFolder),
                         QStringLiteral("Choose one with \"...\" in the console.")});
    return findings;
}

Finding display(bool hasDisplay)
{
    if (!hasDisplay)
        return {Verdict::Note, QStringLiteral("There is no display; the console itself needs one"),
                QStringLiteral("Start it in a desktop session, or over \"ssh -X\".")};
    return {Verdict::Ok,
            QStringLiteral("Windows can be opened (platform plugin %1)")
                .arg(QGuiApplication::platformName()),
            {}};
}

Findings fonts(bool chinese)
{
    const QFontDatabase database;
    if (database.families().isEmpty())
        return {{Verdict::Wrong, QStringLiteral("There is no font at all: windows show no texts"),
                 QStringLiteral("Install one; on Debian: sudo apt install fonts-dejavu-core")}};
    Findings findings;
    const QString file = AppStyle::fontFile();
    if (QFileInfo::exists(file) && QFontDatabase::addApplicationFont(file) < 0)
        findings.append({Verdict::Wrong, QStringLiteral("%1 is no font").arg(file),
                         QStringLiteral("Replace or remove the file.")});
    findings.append({Verdict::Ok,
                     QStringLiteral("Texts are shown in the font %1")
                         .arg(QFontInfo(AppStyle::applicationFont()).family()),
                     {}});
    findings.append(Diagnosis::ofChineseFont(
        !database.families(QFontDatabase::SimplifiedChinese).isEmpty(), chinese));
    return findings;
}

Finding pictures()
{
    const auto readable = QImageReader::supportedImageFormats();
    const auto writable = QImageWriter::supportedImageFormats();
    QStringList missing;
    for (const char *kind : {"gif", "ico", "jpg", "png"}) {
        if (!readable.contains(kind))
            missing.append(QLatin1String(kind));
    }
    for (const char *kind : {"jpg", "png"}) {
        if (!writable.contains(kind) && !missing.contains(QLatin1String(kind)))
            missing.append(QLatin1String(kind));
    }
    return Diagnosis::ofPictures(missing);
}

Findings translations()
{
    Findings findings;
    QTranslator texts;
    if (texts.load(QStringLiteral(":/qm/lx_cn.qm")) && texts.load(QStringLiteral(":/qm/lx_en.qm")))
        findings.append({Verdict::Ok, QStringLiteral("The program has its texts"), {}});
    else
        findings.append({Verdict::Wrong, QStringLiteral("The program lacks its translations"),
                         QStringLiteral("Install the program anew.")});
    if (Language::hasChineseQtTexts())
        findings.append({Verdict::Ok, QStringLiteral("Qt has its texts in Chinese"), {}});
    else
        findings.append({Verdict::Note,
                         QStringLiteral("Qt lacks its texts in Chinese: buttons such as Cancel "
                                        "stay English"),
                         QStringLiteral("On Debian: sudo apt install qttranslations5-l10n")});
    return findings;
}

PortFacts factsOf(const QSerialPortInfo &info)
{
    PortFacts port;
    port.name = info.portName();
    port.path = info.systemLocation();
    port.description = info.description();
    port.isAdapter = info.hasVendorIdentifier();
#ifdef Q_OS_UNIX
    const QFileInfo device(port.path);
    port.mayBeOpened = device.isReadable() && device.isWritable();
    if (device.permission(QFile::ReadGroup | QFile::WriteGroup) && device.groupId() != 0)
        port.group = device.group();
#endif
    return port;
}

Findings serialPorts()
{
    Findings findings;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : ports)
        findings.append(Diagnosis::ofPort(factsOf(info)));
    if (findings.isEmpty())
        findings.append({Verdict::Note, QStringLiteral("There is no serial port"), {}});
    return findings;
}

QStringList portNames()
{
    QStringList names;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : ports)
        names.append(info.portName());
    return names;
}

Finding instrument(const QString &address)
{
    const SerialAddress port = SerialAddress::read(address);
    AnswerFacts answer;
    answer.address = address;
    answer.serial = port.isPort(portNames());
    if (answer.serial && port.baudRate <= 0)
        return {Verdict::Wrong, QStringLiteral("%1 is no baud rate").arg(port.baudRate),
                QStringLiteral("Leave it out for %1 baud.").arg(usualBaudRate)};

    SerialLogic link;
    QObject::connect(&link, &SerialLogic::errors, &link,
                     [&answer](const QString &error) { answer.error = error; });
    QObject::connect(&link, &SerialLogic::updateIDN, &link,
                     [&answer](const QString &identity) { answer.identity = identity; });
    link.setLinkMode(answer.serial ? serialLink : lanLink);
    if (answer.serial ? link.openPort(port.port, port.baudRate)
                      : link.openPort(address, instrumentTcpPort)) {
        link.queryIDN();
        link.delayClose();
    }
    return Diagnosis::ofAnswer(answer);
}

/// The link's own messages say less plainly what the report says.
void dropMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                 const QString & /*message*/)
{}

/// Prints what it is given, and keeps it.
class Report
{
public:
    explicit Report(std::FILE *out)
        : m_out(out)
    {}

    void print(const QString &text)
    {
        std::fputs(text.toLocal8Bit().constData(), m_out);
        std::fflush(m_out); // the next thing may take its time
    }

    void add(const Findings &findings)
    {
        for (const Finding &finding : findings)
            print(Diagnosis::line(finding));
        m_findings += findings;
    }

    const Findings &findings() const { return m_findings; }

private:
    std::FILE *m_out;
    Findings m_findings;
};

} // namespace

namespace Doctor {

bool examine(const QString &address, bool hasDisplay, const QString &logFile, std::FILE *out)
{
    qInstallMessageHandler(dropMessage);
    const auto settings = ConsoleSettings::load(ConsoleSettings::ownFile());
    Report report(out);
    report.print(QStringLiteral("mz6218 " MZ_VERSION ", Qt %1, %2, %3\n")
                     .arg(QLatin1String(qVersion()), QSysInfo::prettyProductName(),
                          QSysInfo::currentCpuArchitecture()));
    report.add(keptFiles(settings, logFile));
    report.add({display(hasDisplay)});
    report.add(fonts(settings && settings->language == QStringLiteral("cn")));
    report.add({pictures()});
    report.add(translations());
    report.add(serialPorts());
    if (!address.isEmpty())
        report.add({instrument(address)});
    report.print(Diagnosis::summary(report.findings()));
    return Diagnosis::isSound(report.findings());
}

} // namespace Doctor
