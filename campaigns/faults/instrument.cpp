#include "instrument.h"

#include <QRegularExpression>
#include <QTcpSocket>

namespace {

constexpr int startPatience = 20000; // ms

/// A source that jumps about, so that one reading can be told from another, and the longest text of
/// it.
const QStringList source{QStringLiteral("--level"),      QStringLiteral("-30"),
                         QStringLiteral("--noise"),      QStringLiteral("5"),
                         QStringLiteral("--micro-sign"), QStringLiteral("--calibration-time"),
                         QStringLiteral("0.2")};

/// The text of the trace without its escapes.
QString unescaped(QString text)
{
    return text.replace(QStringLiteral("\\xc2\\xb5"), QStringLiteral("\u00b5"));
}

} // namespace

Instrument::Instrument(LinkMode mode, const QStringList &faults)
    : m_mode(mode)
    , m_faults(faults)
{}

Instrument::~Instrument() = default;

bool Instrument::start(bool faulty)
{
    if (m_process.isRunning())
        m_earlier = befallen();
    QStringList options = source;
    if (m_mode == serialLink)
        options << QStringLiteral("--serial");
    // Readings of the next instrument must differ from those of the last.
    options << QStringLiteral("--seed") << QString::number(faulty ? 1 : 2);
    if (faulty) {
        for (const QString &fault : qAsConst(m_faults))
            options << QStringLiteral("--fault") << fault;
    } else {
        m_faults.clear();
    }
    return m_process.start(options);
}

void Instrument::occupy()
{
    m_otherClient = std::make_unique<QTcpSocket>();
    m_otherClient->connectToHost(m_process.address(), m_process.port());
    m_otherClient->waitForConnected(startPatience);
    waitFor([this] { return !m_process.notes().isEmpty(); }, startPatience);
}

void Instrument::leave()
{
    m_otherClient.reset();
}

QString Instrument::port()
{
    if (m_mode == lanLink)
        return m_process.address();
    // A port that is taken away is offered anew before it is noted as closed.
    const auto isOffered = [this] {
        const QStringList notes = m_process.notes();
        const int dropped = notes.lastIndexOf(QRegularExpression(QStringLiteral("^dropping .*")));
        return dropped < 0 ||
               notes.indexOf(QRegularExpression(QStringLiteral(".* closed$")), dropped) >= 0;
    };
    waitFor(isOffered, startPatience);
    return m_process.serialPath();
}

int Instrument::portValue()
{
    return m_mode == lanLink ? m_process.port() : usualBaudRate;
}

QMap<QString, int> Instrument::befallen()
{
    QMap<QString, int> counts = m_earlier;
    const QStringList notes = m_process.notes();
    for (const QString &note : notes) {
        if (note.startsWith(QLatin1String("fault ")))
            ++counts[note.section(QLatin1Char(' '), 1, 1)];
    }
    return counts;
}

bool Instrument::isSound()
{
    if (!m_process.isRunning())
        return false;
    static const QRegularExpression limit(QStringLiteral(",times=(\\d+)"));
    int most = 0;
    for (const QString &fault : qAsConst(m_faults))
        most += limit.match(fault).captured(1).toInt();
    int used = 0;
    for (const int count : befallen())
        used += count;
    return used == most;
}

QStringList Instrument::readingsSince(int mark)
{
    static const QRegularExpression form(
        QStringLiteral("RETURN:GET (-?\\d+\\.\\d\\d)dBm,([^,]*?)(?=\\\\n|RETURN:|$)"));
    QStringList readings;
    const QString sent = unescaped(m_process.replies().mid(mark).join(QString()));
    for (auto found = form.globalMatch(sent); found.hasNext();) {
        const QRegularExpressionMatch reading = found.next();
        readings.append(reading.captured(1) + QLatin1Char(',') + reading.captured(2));
    }
    return readings;
}

QString Instrument::lastReply(const QString &query)
{
    const QString prefix = QStringLiteral("RETURN:") +
                           QString(query).remove(QLatin1Char('*')).chopped(1) + QLatin1Char(' ');
    const QString sent = unescaped(m_process.replies().join(QString()));
    const int begin = sent.lastIndexOf(prefix) + prefix.size();
    return sent.mid(begin, sent.indexOf(QStringLiteral("\\n"), begin) - begin);
}
