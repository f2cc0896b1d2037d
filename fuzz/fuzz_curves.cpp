/// Curve text from files and from the clipboard: what was read is finite and survives a round trip.

#include "2d/data/curvetext.h"
#include "2d/data/patternanalysis.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

bool areSame(const QVector<QPointF> &left, const QVector<QPointF> &right)
{
    if (left.size() != right.size())
        return false;
    for (int i = 0; i < left.size(); ++i) {
        // Exactly the same double, where QPointF's own comparison is a fuzzy one.
        if (left.at(i).x() < right.at(i).x() || left.at(i).x() > right.at(i).x() ||
            left.at(i).y() < right.at(i).y() || left.at(i).y() > right.at(i).y())
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const CurveText::Curve curve = CurveText::fromFile(bytes);
    for (const QPointF &point : curve.points) {
        if (!std::isfinite(point.x()) || !std::isfinite(point.y()))
            std::abort();
    }
    const QByteArray written = CurveText::toFile(curve.title, curve.name, curve.points);
    if (!areSame(curve.points, CurveText::fromFile(written).points))
        std::abort();
    CurveText::fromClipboard(QString::fromUtf8(bytes));
    analysePattern(curve.points);
    return 0;
}
