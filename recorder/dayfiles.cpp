#include "recorder/dayfiles.h"

#include "recorder/filelock.h"
#include "storage/filewriting.h"
#include "storage/writecheck.h"

#include <QDir>
#include <QFile>

namespace {

QString nameForFiles(const QString &name)
{
    QString safe = name;
    for (QChar &letter : safe) {
        const bool isPlain = (letter >= QLatin1Char('a') && letter <= QLatin1Char('z')) ||
                             (letter >= QLatin1Char('A') && letter <= QLatin1Char('Z')) ||
                             (letter >= QLatin1Char('0') && letter <= QLatin1Char('9')) ||
                             QStringLiteral(".-_").contains(letter);
        if (!isPlain)
            letter = QLatin1Char('_');
    }
    return safe;
}

/// Makes a header whole that was cut off: that is the end which its line lacks. Why that failed, or
/// nothing.
std::optional<QString> completeHeader(const QString &path, const QByteArray &header)
{
    QFile file(path);
    if (header.isEmpty() || !file.exists() || file.size() == 0 || file.size() >= header.size())
        return std::nullopt;
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return file.errorString();
    const QByteArray begun = file.readAll();
    if (!header.startsWith(begun))
        return std::nullopt;
    const QByteArray missing = header.mid(begun.size());
    if (file.write(missing) != missing.size()) {
        file.resize(begun.size());
        return file.errorString();
    }
    return std::nullopt;
}

} // namespace

DayFiles::DayFiles(const QString &folder, const QString &name)
    : m_folder(folder)
    , m_name(nameForFiles(name))
{}

DayFiles::~DayFiles() = default;

std::optional<QString> DayFiles::open(const QStringList &names)
{
    if (!QDir().mkpath(m_folder))
        return QStringLiteral("%1 cannot be made").arg(m_folder);
    if (auto obstacle = lock())
        return obstacle;
    for (const QString &name : names) {
        const QString path = m_folder + QLatin1Char('/') + name;
        if (const auto obstacle = WriteCheck::obstacle(path))
            return QStringLiteral("%1: %2").arg(path, *obstacle);
    }
    return std::nullopt;
}

std::optional<QString> DayFiles::lock()
{
    const QString path = QStringLiteral("%1/.%2.lock").arg(m_folder, m_name);
    m_lock = std::make_unique<FileLock>(path);
    return m_lock->obstacle();
}

QString DayFiles::fileName(const QDate &day, const QString &ending) const
{
    return QStringLiteral("%1-%2%3").arg(m_name, day.toString(Qt::ISODate), ending);
}

std::optional<QString> DayFiles::append(const Outbox::Line &lines)
{
    // A folder that came back holds no lock of this process.
    if (!m_lock || !m_lock->isHeld()) {
        if (auto obstacle = lock())
            return obstacle;
    }
    const QString path = m_folder + QLatin1Char('/') + lines.file;
    if (lines.file != m_lastFile) {
        if (auto failure = completeHeader(path, lines.header))
            return failure;
    }
    const FileOutcome outcome = appendLine(path, lines.text, lines.header);
    if (outcome.kind != FileOutcome::Kind::Written)
        return outcome.reason;
    m_lastFile = lines.file;
    return std::nullopt;
}
