#include "recorddata/recordreader.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr qint64 chunkSize = qint64(4) * 1024 * 1024;
constexpr qint64 longestLine = qint64(64) * 1024;

std::string_view viewOf(const QByteArray &line)
{
    std::string_view view(line.constData(), static_cast<std::size_t>(line.size()));
    while (!view.empty() && (view.back() == '\n' || view.back() == '\r'))
        view.remove_suffix(1);
    return view;
}

/// The file of the day after that of \a path, by the date in its name; empty without one.
QString nextDayPath(const QString &path)
{
    static const QRegularExpression date(QStringLiteral("\\d{4}-\\d{2}-\\d{2}(?=[^/]*$)"));
    const QRegularExpressionMatch match = date.match(path);
    const QString form = QStringLiteral("yyyy-MM-dd");
    const QDate day = QDate::fromString(match.captured(), form);
    if (!day.isValid())
        return {};
    QString next = path;
    next.replace(match.capturedStart(), match.capturedLength(), day.addDays(1).toString(form));
    return next;
}

} // namespace

RecordReader::Outcome RecordReader::fail(const QString &error)
{
    m_error = error;
    return Outcome::Failed;
}

/// Learns kind, header and begin of a file from its first lines. A file with a header alone is a
/// day that has just begun.
bool RecordReader::look(Source &source)
{
    QFile file(source.path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = tr("%1 cannot be read: %2").arg(source.path, file.errorString());
        return false;
    }
    source.size = file.size();
    const QByteArray first = file.readLine(longestLine);
    const RecordKind kind = RowParser::kindOf(viewOf(first));
    if (kind == RecordKind::Unknown) {
        m_error = tr("%1 holds no record.").arg(source.path);
        return false;
    }
    if (m_kind != RecordKind::Unknown && kind != m_kind) {
        m_error = tr("%1 is a record of another kind than the other files.").arg(source.path);
        return false;
    }
    m_kind = kind;
    source.begin = std::numeric_limits<double>::infinity();
    if (kind == RecordKind::JsonLines)
        file.seek(0);
    else
        source.header = first;
    constexpr int linesToTry = 1000; // torn ones may come first
    RowParser parser(kind);
    for (int i = 0; i < linesToTry && !file.atEnd(); ++i) {
        const QByteArray line = file.readLine(longestLine);
        if (const std::optional<RecordRow> row = parser.parse(viewOf(line))) {
            source.begin = row->time;
            source.zone = parser.zone();
            if (source.zone)
                source.begin -= *source.zone; // files are ordered by a clock that they share
            break;
        }
    }
    return true;
}

RecordReader::Outcome RecordReader::open(const QStringList &paths, const Progress &progress)
{
    for (const QString &path : paths) {
        Source source;
        source.path = path;
        if (!look(source))
            return Outcome::Failed;
        m_sources.push_back(source);
    }
    std::stable_sort(m_sources.begin(), m_sources.end(),
                     [](const Source &a, const Source &b) { return a.begin < b.begin; });
    m_hasToday = !m_sources.empty() && !QFileInfo::exists(nextDayPath(m_sources.back().path));
    m_builder = std::make_unique<RecordBuilder>(m_data, m_kind);
    m_parser = std::make_unique<RowParser>(m_kind);
    qint64 all = 0;
    for (const Source &source : m_sources)
        all += source.size;
    qint64 before = 0;
    for (int file = 0; file < static_cast<int>(m_sources.size()); ++file) {
        const Source &source = m_sources[static_cast<std::size_t>(file)];
        const Outcome outcome = read(file, [&](double done) {
            const double bytes = static_cast<double>(before) + done;
            return !progress || progress(all > 0 ? std::min(1.0, bytes / double(all)) : 1.0);
        });
        if (outcome == Outcome::Cancelled || outcome == Outcome::Failed)
            return outcome;
        before += source.size;
    }
    m_builder->show();
    m_data.index();
    return Outcome::Read;
}

/// Reads the complete lines of a file from where it was left; \a progress is told the bytes.
RecordReader::Outcome RecordReader::read(int file, const Progress &progress)
{
    Source &source = m_sources[static_cast<std::size_t>(file)];
    QFile device(source.path);
    if (!device.open(QIODevice::ReadOnly) || !device.seek(source.position))
        return fail(tr("%1 cannot be read: %2").arg(source.path, device.errorString()));
    QByteArray buffer(static_cast<int>(chunkSize), Qt::Uninitialized);
    qint64 held = 0; // bytes of a line whose end has not been read
    bool hasRead = false;
    for (;;) {
        const qint64 count = device.read(buffer.data() + held, chunkSize - held);
        if (count < 0)
            return fail(tr("%1 cannot be read: %2").arg(source.path, device.errorString()));
        if (count == 0)
            break;
        held += count;
        const qint64 taken = takeLines(buffer.constData(), held, file, source.position);
        if (taken == 0 && held == chunkSize)
            return fail(tr("%1 holds no record.").arg(source.path));
        std::memmove(buffer.data(), buffer.constData() + taken,
                     static_cast<std::size_t>(held - taken));
        held -= taken;
        source.position += taken;
        hasRead = hasRead || taken > 0;
        m_data.index();
        if (!progress(static_cast<double>(source.position)))
            return Outcome::Cancelled;
    }
    return hasRead ? Outcome::Read : Outcome::Unchanged;
}

/// Takes the complete lines of a text that stands at \a offset in the file; returns their length.
qint64 RecordReader::takeLines(const char *text, qint64 size, int file, qint64 offset)
{
    qint64 at = 0;
    while (at < size) {
        const void *end = std::memchr(text + at, '\n', static_cast<std::size_t>(size - at));
        if (!end)
            break;
        const qint64 length = static_cast<const char *>(end) - (text + at);
        const std::string_view line(text + at, static_cast<std::size_t>(length));
        if (const std::optional<RecordRow> row = m_parser->parse(line))
            m_builder->add(*row, *m_parser, {file, offset + at});
        else if (length > 0 && offset + at > 0)
            ++m_linesLeftOut;
        at += length + 1;
    }
    return at;
}

RecordReader::Outcome RecordReader::follow()
{
    if (m_sources.empty())
        return Outcome::Unchanged;
    for (const Source &source : m_sources) {
        const QFileInfo file(source.path);
        if (!file.exists())
            return Outcome::Unchanged; // what was read of it stays
        if (file.size() < source.position)
            return Outcome::Replaced;
    }
    const auto goOn = [](double) { return true; };
    const Outcome outcome = read(static_cast<int>(m_sources.size()) - 1, goOn);
    Outcome all = outcome;
    if (outcome == Outcome::Unchanged && addNextDay())
        all = read(static_cast<int>(m_sources.size()) - 1, goOn);
    if (all == Outcome::Read) {
        m_builder->show();
        m_data.index();
    }
    return all;
}

bool RecordReader::addNextDay()
{
    if (!m_hasToday)
        return false; // who opens an old day alone wants that day
    Source next;
    next.path = nextDayPath(m_sources.back().path);
    if (next.path.isEmpty() || !QFileInfo::exists(next.path) || !look(next))
        return false;
    m_sources.push_back(next);
    return true;
}

QStringList RecordReader::paths() const
{
    QStringList all;
    for (const Source &source : m_sources)
        all.append(source.path);
    return all;
}

/// Finds where the row of \a point begins, by a walk over at most 63 points, and reads it.
bool RecordReader::find(int point, RowPlace &place, QByteArray *row) const
{
    int known = 0;
    place = m_data.place(point, known);
    RowParser parser(m_kind);
    while (place.file < static_cast<int>(m_sources.size())) {
        QFile device(m_sources[static_cast<std::size_t>(place.file)].path);
        if (!device.open(QIODevice::ReadOnly) || !device.seek(place.offset))
            return false;
        while (!device.atEnd()) {
            const QByteArray line = device.readLine(longestLine);
            const std::optional<RecordRow> parsed = parser.parse(viewOf(line));
            if (parsed && parsed->isValid() && known++ == point) {
                if (row)
                    *row = line;
                return true;
            }
            place.offset = device.pos();
        }
        ++place.file;
        place.offset = 0;
    }
    return false;
}

QByteArray RecordReader::row(int point) const
{
    RowPlace place;
    QByteArray line;
    if (point < 0 || point >= m_data.size() || !find(point, place, &line))
        return {};
    return line.trimmed();
}

QStringList RecordReader::columnNames() const
{
    if (m_kind == RecordKind::JsonLines && !m_data.isEmpty())
        return QJsonDocument::fromJson(row(0)).object().keys();
    if (m_sources.empty())
        return {};
    return QString::fromUtf8(m_sources.front().header).trimmed().split(QLatin1Char(','));
}

QStringList RecordReader::cells(const QByteArray &row) const
{
    if (m_kind != RecordKind::JsonLines)
        return QString::fromUtf8(row).split(QLatin1Char(','));
    QStringList cells;
    const QStringList names = columnNames();
    const std::string_view line = viewOf(row);
    for (const QString &name : names) {
        const QByteArray key = name.toUtf8();
        const std::string_view value = jsonValue(line, viewOf(key));
        cells.append(QString::fromUtf8(value.data(), static_cast<int>(value.size())));
    }
    return cells;
}

bool RecordReader::copyRows(const std::vector<PointRange> &ranges, QIODevice &file) const
{
    if (m_sources.empty())
        return false;
    const QByteArray &header = m_sources.front().header;
    if (file.write(header) != header.size())
        return false;
    return std::all_of(ranges.begin(), ranges.end(), [&](const PointRange &range) {
        RowPlace from;
        RowPlace to;
        QByteArray lastRow;
        return find(range.first, from, nullptr) && find(range.last, to, &lastRow) &&
               copy(from, to, lastRow.size(), file);
    });
}

bool RecordReader::copy(const RowPlace &from, const RowPlace &lastRow, qint64 lastLength,
                        QIODevice &target) const
{
    for (int file = from.file; file <= lastRow.file; ++file) {
        const Source &source = m_sources[static_cast<std::size_t>(file)];
        const qint64 end = file == lastRow.file ? lastRow.offset + lastLength : source.position;
        qint64 at = file == from.file ? from.offset : source.header.size();
        QFile device(source.path);
        if (!device.open(QIODevice::ReadOnly) || !device.seek(at))
            return false;
        while (at < end) {
            const QByteArray part = device.read(std::min(chunkSize, end - at));
            if (part.isEmpty() || target.write(part) != part.size())
                return false;
            at += part.size();
        }
    }
    return true;
}
