/// Pattern files: cuts or a problem, never both; angles ascend within the circle, levels are
/// finite, and what goes round the circle survives being written.

#include "patterns/formats/circle.h"
#include "patterns/formats/msiformat.h"
#include "patterns/formats/nsmaformat.h"
#include "patterns/formats/patternfile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace PatternFormats;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkPoints(const QVector<QPointF> &points)
{
    const auto notAscending = [](const QPointF &a, const QPointF &b) { return a.x() >= b.x(); };
    require(std::adjacent_find(points.begin(), points.end(), notAscending) == points.end());
    for (const QPointF &point : points)
        require(std::abs(point.x()) <= 180.0 && std::isfinite(point.y()));
}

void checkRoundTrip(const Cut &cut)
{
    const Written written =
        MsiFormat::write({cut.name, cut.frequency, cut.details, cut.points, cut.points});
    require(written.problem.isEmpty() != Circle::gapIn(cut.points).has_value());
    const auto sensible = [](const QPointF &point) { return std::abs(point.y()) < 1e6; };
    if (!written.problem.isEmpty() || !std::all_of(cut.points.begin(), cut.points.end(), sensible))
        return;
    const PatternFile back = MsiFormat::read(written.bytes, QString());
    require(back.cuts.size() == 2);
    for (const QPointF &point : back.cuts.first().points)
        require(std::abs(point.y() - Circle::levelAt(cut.points, point.x())) <= 0.005);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const PatternFile file = read(bytes, QStringLiteral("file"));
    require(file.cuts.isEmpty() || !file.problem.has_value());
    for (const Cut &cut : file.cuts) {
        require(!cut.points.isEmpty());
        checkPoints(cut.points);
        checkPoints(cut.vertical);
        checkPoints(cut.horizontal);
        checkRoundTrip(cut);
    }
    describe(file.cuts.isEmpty() ? Details() : file.cuts.first().details);
    require(file.cuts.isEmpty() || !NsmaFormat::write(file.cuts).isEmpty());
    return 0;
}
