#include "doctor/diagnosis.h"

#include <algorithm>

namespace {

using Verdict = Finding::Verdict;

QString nameOf(WriteCheck::Kept kept)
{
    switch (kept) {
    case WriteCheck::Kept::Settings:
        return QStringLiteral("Settings");
    case WriteCheck::Kept::Records:
        return QStringLiteral("Records");
    case WriteCheck::Kept::Log:
        return QStringLiteral("Log");
    }
    return {};
}

QString labelOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Ok:
        return QStringLiteral("OK    ");
    case Verdict::Note:
        return QStringLiteral("note  ");
    case Verdict::Wrong:
        return QStringLiteral("WRONG ");
    }
    return {};
}

int countOfWrong(const QVector<Finding> &findings)
{
    return int(std::count_if(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.verdict == Verdict::Wrong;
    }));
}

QString adviceOnSilence(bool serial)
{
    return serial
               ? QStringLiteral("Is this the instrument's port, and the baud rate its own? Is the "
                                "instrument on, and the cable one with a return line?")
               : QStringLiteral("Another program may hold the instrument, which serves one at a "
                                "time: end consoles and scripts that use it, and leave it on. "
                                "Otherwise: is this its address, and not that of something else?");
}

QString adviceOnRefusal(bool serial)
{
    return serial ? QStringLiteral("Is the adapter plugged in? May this user open the port? Does "
                                   "another program hold it?")
                  : QStringLiteral("Does \"ping\" reach the address? Is TCP port 5001 open in the "
                                   "firewall? Is another program connected?");
}

} // namespace

namespace Diagnosis {

Finding ofPlace(const WriteCheck::Place &place)
{
    const QString name = nameOf(place.kept);
    if (!place.obstacle)
        return {Verdict::Ok, QStringLiteral("%1 can be written: %2").arg(name, place.path), {}};
    const QString advice =
        place.kept == WriteCheck::Kept::Records
            ? QStringLiteral("Choose another folder with \"...\" in the console, or give this one "
                             "the rights and the room.")
            : QStringLiteral(
                  "Put the program into a folder that you may write to, or give this one "
                  "the rights and the room.");
    return {Verdict::Wrong,
            QStringLiteral("%1 cannot be written: %2 (%3)").arg(name, place.path, *place.obstacle),
            advice};
}

Finding ofPort(const PortFacts &port)
{
    QString text = QStringLiteral("Serial port %1").arg(port.name);
    if (!port.description.isEmpty())
        text += QStringLiteral(" (%1)").arg(port.description);
    if (port.mayBeOpened)
        return {Verdict::Ok, text, {}};
    text += QStringLiteral(": this user may not open %1").arg(port.path);
    const QString advice =
        port.group.isEmpty()
            ? QStringLiteral("Ask whoever looks after this machine for the right to open it.")
            : QStringLiteral("sudo usermod -aG %1 $USER, then log out and in").arg(port.group);
    // Nearly every machine has a built-in port that nobody uses.
    return {port.isAdapter ? Verdict::Wrong : Verdict::Note, text, advice};
}

Finding ofAnswer(const AnswerFacts &answer)
{
    if (!answer.error.isEmpty())
        return {Verdict::Wrong, QStringLiteral("%1: %2").arg(answer.address, answer.error),
                adviceOnRefusal(answer.serial)};
    if (answer.identity.isEmpty())
        return {
            Verdict::Wrong,
            QStringLiteral("%1: the link opens, but nothing tells who it is").arg(answer.address),
            adviceOnSilence(answer.serial)};
    return {Verdict::Ok,
            QStringLiteral("%1: answers as \"%2\"").arg(answer.address, answer.identity),
            {}};
}

Finding ofChineseFont(bool found, bool chinese)
{
    if (found)
        return {Verdict::Ok, QStringLiteral("There is a font for Chinese"), {}};
    return {chinese ? Verdict::Wrong : Verdict::Note,
            QStringLiteral("There is no font for Chinese: such texts show as boxes"),
            QStringLiteral("Install one; on Debian: sudo apt install fonts-wqy-microhei")};
}

Finding ofPictures(const QStringList &missing)
{
    if (missing.isEmpty())
        return {Verdict::Ok, QStringLiteral("Pictures can be read and written"), {}};
    return {Verdict::Wrong,
            QStringLiteral("Qt lacks its plugins for pictures of the kinds: %1")
                .arg(missing.join(QStringLiteral(", "))),
            QStringLiteral("Install the program anew; the plugins belong into its folder "
                           "plugins/imageformats, or come with the package libqt5gui5.")};
}

QString line(const Finding &finding)
{
    QString text = labelOf(finding.verdict) + QLatin1Char(' ') + finding.text + QLatin1Char('\n');
    if (!finding.advice.isEmpty())
        text += QStringLiteral("       -> %1\n").arg(finding.advice);
    return text;
}

bool isSound(const QVector<Finding> &findings)
{
    return countOfWrong(findings) == 0;
}

QString summary(const QVector<Finding> &findings)
{
    const int wrong = countOfWrong(findings);
    if (wrong == 0)
        return QStringLiteral("Nothing is wrong.\n");
    return wrong == 1 ? QStringLiteral("One thing is wrong.\n")
                      : QStringLiteral("%1 things are wrong.\n").arg(wrong);
}

} // namespace Diagnosis
