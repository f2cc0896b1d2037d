#include "module/formulacalc.h"

#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QTextStream>
#include <QVector>

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <cmath>
#include <iterator>

namespace {

using LossMap = QMap<double, double>;

constexpr int firstValueColumn = 4; // the columns before it describe the row

/// The fast path of toNumber(): true when \a field is a plain decimal number that fills it.
bool readPlainNumber(const QStringRef &field, double *number)
{
    std::array<char, 32> text;
    if (field.isEmpty() || field.size() > int(text.size()))
        return false;
    char *end = text.data();
    for (const QChar character : field) {
        const ushort code = character.unicode();
        const bool plain = (code >= '0' && code <= '9') || code == '.' || code == '-';
        if (!plain)
            return false;
        *end++ = static_cast<char>(code);
    }
    const auto result = std::from_chars(text.data(), end, *number);
    return result.ec == std::errc() && result.ptr == end;
}

/// \a field as a number; 0 for anything else, also for the words that stand for no finite number,
/// which would spoil every sum they enter.
double toNumber(const QStringRef &field)
{
    double number = 0.0;
    if (readPlainNumber(field, &number))
        return number;
    number = field.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

/// Builds both tables from the lines of a file. The tables hold on to where each column's sum
/// stands, so that a cell costs an addition and not a search.
class LossTableReader
{
public:
    void readLine(const QString &line)
    {
        const QVector<QStringRef> fields = line.splitRef(QLatin1Char(','));
        if (isHeader(fields))
            readHeader(fields);
        // The words count anywhere in the row, and a row with both feeds both tables.
        if (line.contains(QLatin1String("upside"), Qt::CaseInsensitive))
            addLosses(fields, m_upsideSums);
        if (line.contains(QLatin1String("downside"), Qt::CaseInsensitive))
            addLosses(fields, m_downsideSums);
    }

    const LossMap &upside() const { return m_upside; }
    const LossMap &downside() const { return m_downside; }

private:
    using Sums = QVector<LossMap::iterator>;

    static bool isHeader(const QVector<QStringRef> &fields)
    {
        return std::any_of(fields.begin(), fields.end(), [](const QStringRef &field) {
            return field.compare(QLatin1String("category"), Qt::CaseInsensitive) == 0;
        });
    }

    void readHeader(const QVector<QStringRef> &fields)
    {
        m_upsideSums.clear();
        m_downsideSums.clear();
        for (int column = firstValueColumn; column < fields.size(); ++column) {
            const double frequency = toNumber(fields.at(column));
            m_upsideSums.append(m_upside.insert(frequency, 0.0));
            m_downsideSums.append(m_downside.insert(frequency, 0.0));
        }
    }

    static void addLosses(const QVector<QStringRef> &fields, const Sums &sums)
    {
        const int count = qMin(fields.size() - firstValueColumn, sums.size());
        for (int i = 0; i < count; ++i)
            *sums[i] += toNumber(fields.at(firstValueColumn + i));
    }

    LossMap m_upside;
    LossMap m_downside;
    Sums m_upsideSums; ///< in the order of the last header's columns
    Sums m_downsideSums;
};

} // namespace

FormulaCalc *FormulaCalc::Instance()
{
    static std::atomic<FormulaCalc *> instance{nullptr};
    static QMutex mutex;
    if (!instance.load(std::memory_order_acquire)) {
        const QMutexLocker locker(&mutex);
        if (!instance.load(std::memory_order_relaxed))
            instance.store(new FormulaCalc, std::memory_order_release);
    }
    return instance.load(std::memory_order_acquire);
}

void FormulaCalc::queryLossCompensationFromFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning().noquote() << QStringLiteral("Open %1 failed!").arg(path);
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    LossTableReader reader;
    QString line;
    while (stream.readLineInto(&line))
        reader.readLine(line);
    m_upsideMap = reader.upside();
    m_downsideMap = reader.downside();
}

double FormulaCalc::queryLossCompensation(const QString &category, const double &freq) const
{
    if (category.contains(QLatin1String("TRP"), Qt::CaseInsensitive))
        return getValueFromMap(freq, m_upsideMap);
    if (category.contains(QLatin1String("TIS"), Qt::CaseInsensitive))
        return getValueFromMap(freq, m_downsideMap);
    return 0.0;
}

double FormulaCalc::getValueFromMap(const double &val, const QMap<double, double> &map) const
{
    if (map.isEmpty())
        return 0.0;
    const auto above = map.lowerBound(val);
    if (above != map.constEnd() && above.key() == val)
        return above.value();

    // 0 stands for "none", so that a key of 0 counts as missing too.
    double upper = above != map.constEnd() ? above.key() : 0.0;
    double lower = above != map.constBegin() ? std::prev(above).key() : 0.0;
    if (lower == upper || lower == 0.0 || upper == 0.0) {
        if (map.size() < 2) {
            qWarning() << "This val is invaild from map" << val << upper << lower << map.firstKey()
                       << map.lastKey();
            return 0.0;
        }
        if (upper == 0.0) {
            upper = map.lastKey();
            lower = std::prev(map.constEnd(), 2).key();
        } else {
            lower = map.firstKey();
            upper = std::next(map.constBegin()).key();
        }
    }
    const double yUpper = map.value(upper);
    const double yLower = map.value(lower);
    const double slope = (yUpper - yLower) / (upper - lower);
    return val * slope + (yUpper - upper * slope);
}
