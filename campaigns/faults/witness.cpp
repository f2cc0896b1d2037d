#include "witness.h"

#include "Logic/seriallogic.h"
#include "console/linksession.h"
#include "consoletester.h"
#include "instrument.h"

#include <QDir>
#include <QFile>

namespace {

const QString noReading = QStringLiteral("100.00,");
const QString notRead = QStringLiteral("--.--,"); // what the form shows before the first reading

/// How many of the latest readings a row may hold. More than one, since the console takes a reply
/// that comes after its time for the next one's, and since one that comes twice counts twice.
constexpr int recent = 4;

} // namespace

Witness::Witness(const ConsoleTester &console, Instrument &instrument)
    : m_console(console)
    , m_instrument(instrument)
{
    auto *link = console.window().findChild<SerialLogic *>();
    connect(link, &SerialLogic::updatePower, this, &Witness::takeReading);
    connect(link, &SerialLogic::displayLog, this, &Witness::takeCommand);
    // Connected behind the console's own slot, so that the row is written when this one runs.
    auto *session = console.window().findChild<LinkSession *>();
    connect(session, &LinkSession::recordDue, this, &Witness::takeRecordDue);
}

void Witness::linkBegins()
{
    readRows();
    m_mark = m_instrument.mark();
    m_reading.clear();
    m_errorBoxesOfLink = 0;
    m_trueRows = 0;
}

void Witness::takeReading(double power, const QString &text)
{
    ++m_readings;
    m_reading = QString::number(power, 'f', 2) + QLatin1Char(',') + text;
}

void Witness::takeCommand(const QString &command)
{
    m_polls += command == QLatin1String("GET?\n") ? 1 : 0;
}

void Witness::takeRecordDue()
{
    const int rows = m_rows;
    readRows();
    if (m_rows == rows)
        return;
    if (!m_console.window().findChild<LinkSession *>()->isOpen())
        m_faultsOfRows.append(QStringLiteral("recorded when the link had ended"));
    else if (!m_console.isRunning("readTimer"))
        m_faultsOfRows.append(QStringLiteral("recorded although nothing is read any more"));
}

void Witness::readRows()
{
    const QDir folder(ConsoleTester::path(QStringLiteral("DataRecord")));
    for (const QString &name :
         folder.entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        qint64 &read = m_read[name];
        if (!file.open(QIODevice::ReadOnly) || !file.seek(read))
            continue;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            if (read > 0)
                judge(QString::fromUtf8(line));
            read += line.size();
        }
    }
}

void Witness::judge(const QString &row)
{
    ++m_rows;
    const QString power = row.section(QLatin1Char(','), 3, 3);
    const QString recorded = QString(power).remove(QStringLiteral("dBm")) + QLatin1Char(',') +
                             row.section(QLatin1Char(','), 4).chopped(1);
    const QStringList sent = m_instrument.readingsSince(m_mark);
    const bool isTrue = sent.mid(qMax(0, sent.size() - recent)).contains(recorded);
    const bool isShown = recorded == (m_reading.isEmpty() ? notRead : m_reading);
    const bool isNothing = recorded == noReading || recorded == notRead;
    m_trueRows += isTrue ? 1 : 0;

    const auto fault = [&](const char *what) {
        m_faultsOfRows.append(QString::fromLatin1(what) + QStringLiteral(": ") + row.trimmed());
    };
    if (!row.endsWith(QLatin1Char('\n')) || row.count(QLatin1Char(',')) != 4)
        fault("not a row");
    else if (!isTrue && (!isNothing || m_faultless))
        fault("no reading of this link");
    else if (!isShown)
        fault("not the latest reading");
}

void Witness::sawBox(const QString &title, const QString &text)
{
    m_boxes.append(title + QStringLiteral(": ") + text);
    if (title == QLatin1String("Note")) {
        if (++m_errorBoxesOfLink > 1)
            m_faultsOfBoxes.append(QStringLiteral("a second error box for one link: ") + text);
    } else if (++m_resultBoxes > m_tasks) {
        m_faultsOfBoxes.append(QStringLiteral("a result that nobody asked for: ") + text);
    }
}
