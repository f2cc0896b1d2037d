/// Curves of two bytes a point, analysed in one pass and from sorted copies: the figures have to be
/// the same to the last bit. The first byte says how angles follow each other.

#include "2d/data/patternanalysis.h"
#include "sortedpattern.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::size_t mostPoints = 200;
    if (size < 3)
        return 0;
    const bool ascending = data[0] % 2 == 0;
    QVector<QPointF> points;
    for (std::size_t i = 1; i + 1 < size && i < 2 * mostPoints; i += 2) {
        const double angle = ascending ? points.size() * 1.7 - 180.0 : data[i] * 1.4 - 180.0;
        points.append(QPointF(angle, data[i + 1] * 0.1 - 20.0));
    }
    const auto analysis = analysePattern(points);
    const ParaInfo expected = figuresFromSortedCopies(points);
    if (!analysis || std::memcmp(&analysis->figures, &expected, sizeof expected) != 0)
        std::abort();
    return 0;
}
