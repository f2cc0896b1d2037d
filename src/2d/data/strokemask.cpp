#include "2d/data/strokemask.h"

#include "2d/data/polylinedecimation.h"

#include <algorithm>
#include <array>
#include <cmath>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {

constexpr int tileSize = 32;
/// With so many to a pixel, distances reach over 255 pixels; longer segments are cut.
constexpr double fixedPoint = 128.0;
constexpr double longestPart = 200.0;

/// How far a stroke goes beyond the ends of its segment, in parts of half its width: enough to
/// close the outer side of a bend, and little at the tip of a spike.
constexpr double capOfBend = 0.5;
constexpr double capOfTip = 0.25;
constexpr double capOfPoint = 1.0;

/// The cap of \a a at its end where \a b goes on.
double capBetween(const QLineF &a, const QLineF &b)
{
    if (a.p2() != b.p1())
        return capOfTip;
    const bool backwards = a.dx() * b.dx() + a.dy() * b.dy() < 0.0;
    return backwards ? capOfTip : capOfBend;
}

int tilesFor(int pixels)
{
    return (pixels + tileSize - 1) / tileSize;
}

short toFixed(double pixels)
{
    return static_cast<short>(pixels * fixedPoint);
}

unsigned char toCover(int inside)
{
    return static_cast<unsigned char>(std::clamp(2 * inside, 0, 255));
}

} // namespace

/// A segment with its stroke; distances across it and along it from its middle.
struct StrokeMask::Line
{
    QPointF middle;
    double dx = 0.0; ///< direction, of length 1
    double dy = 1.0;
    double across = 0.0; ///< as far as the smoothed edges reach
    double along = 0.0;
    Distance acrossReach = 0;
    Distance alongReach = 0;
    std::array<Distance, blockSize> acrossSteps; ///< from the first pixel of a block
    std::array<Distance, blockSize> alongSteps;
};

/// Covers a block of pixels, the first of which is at these distances: each by how far it lies
/// inside the stroke's nearest edge, if no other has covered it more.
void StrokeMask::coverBlock(unsigned char *pixels, const Line &line, Distance across,
                            Distance along)
{
#ifdef __SSE2__
    const auto load = [](const std::array<Distance, blockSize> &steps) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i *>(steps.data()));
    };
    const auto inside = [](__m128i reach, __m128i distance) {
        const __m128i other = _mm_sub_epi16(_mm_setzero_si128(), distance);
        return _mm_sub_epi16(reach, _mm_max_epi16(distance, other));
    };
    const __m128i fromSide = inside(_mm_set1_epi16(line.acrossReach),
                                    _mm_add_epi16(_mm_set1_epi16(across), load(line.acrossSteps)));
    const __m128i fromEnd = inside(_mm_set1_epi16(line.alongReach),
                                   _mm_add_epi16(_mm_set1_epi16(along), load(line.alongSteps)));
    const __m128i least = _mm_min_epi16(fromSide, fromEnd);
    auto *target = reinterpret_cast<__m128i *>(pixels);
    const __m128i covers = _mm_packus_epi16(_mm_adds_epi16(least, least), _mm_setzero_si128());
    _mm_storel_epi64(target, _mm_max_epu8(_mm_loadl_epi64(target), covers));
#else
    for (std::size_t i = 0; i < blockSize; ++i) {
        const int fromSide = line.acrossReach - std::abs(across + line.acrossSteps[i]);
        const int fromEnd = line.alongReach - std::abs(along + line.alongSteps[i]);
        pixels[i] = std::max(pixels[i], toCover(std::min(fromSide, fromEnd)));
    }
#endif
}

StrokeMask::StrokeMask(int width, int height, double penWidth)
    : m_width(std::max(width, 0))
    , m_height(std::max(height, 0))
    , m_stride(static_cast<std::size_t>(m_width + blockSize))
    , m_reach(0.5 * penWidth)
    , m_tilesAcross(tilesFor(m_width))
    , m_cover(m_stride * static_cast<std::size_t>(m_height), 0)
    , m_touched(static_cast<std::size_t>(m_tilesAcross * tilesFor(m_height)), false)
{}

void StrokeMask::add(const QVector<QLineF> &segments)
{
    if (m_cover.empty() || m_width == 0)
        return;
    double cap = capOfTip;
    for (int i = 0; i < segments.size(); ++i) {
        const QLineF &segment = segments[i];
        const bool isLast = i + 1 == segments.size();
        const double next = isLast ? capOfTip : capBetween(segment, segments[i + 1]);
        add(segment.p1(), segment.p2(), cap, next);
        cap = next;
    }
}

void StrokeMask::add(QPointF from, QPointF to, double capBefore, double capAfter)
{
    const double margin = m_reach + 2.0;
    const QRectF window(-margin, -margin, m_width + 2.0 * margin, m_height + 2.0 * margin);
    if (segmentMisses(from, to, window) || !clipSegment(from, to, window))
        return;
    const QPointF way = to - from;
    const int parts = 1 + static_cast<int>(way.manhattanLength() / longestPart);
    for (int part = 0; part < parts; ++part) {
        addPart(from + way * (double(part) / parts), from + way * (double(part + 1) / parts),
                part == 0 ? capBefore : 0.0, part + 1 == parts ? capAfter : 0.0);
    }
    touch({from, to});
}

void StrokeMask::addPart(const QPointF &from, const QPointF &to, double capBefore, double capAfter)
{
    const QPointF way = to - from;
    const double length = std::sqrt(QPointF::dotProduct(way, way));
    Line line;
    line.middle = 0.5 * (from + to);
    line.across = m_reach + 0.5;
    if (length > 0.0) {
        line.dx = way.x() / length;
        line.dy = way.y() / length;
    } else {
        capBefore = capOfPoint;
        capAfter = capOfPoint;
    }
    line.along = 0.5 * (length + m_reach * (capBefore + capAfter)) + 0.5;
    line.middle += 0.5 * m_reach * (capAfter - capBefore) * QPointF(line.dx, line.dy);
    line.acrossReach = toFixed(line.across);
    line.alongReach = toFixed(line.along);
    for (std::size_t i = 0; i < blockSize; ++i) {
        line.acrossSteps[i] = toFixed(-line.dy * double(i));
        line.alongSteps[i] = toFixed(line.dx * double(i));
    }
    const double halfWidth = std::abs(line.dx) * line.along + std::abs(line.dy) * line.across;
    const double halfHeight = std::abs(line.dy) * line.along + std::abs(line.dx) * line.across;
    const int top = std::max(0, static_cast<int>(line.middle.y() - halfHeight));
    const int bottom = std::min(m_height, static_cast<int>(line.middle.y() + halfHeight) + 1);
    const double left = std::max(0.0, line.middle.x() - halfWidth);
    const double right = std::min(m_width - 1.0, line.middle.x() + halfWidth);
    if (left > right)
        return;
    if (std::abs(way.x()) < 1e-3 && length > 1.0) {
        coverUpright(top, bottom, line);
        return;
    }
    const bool flat = std::abs(line.dy) < 1e-6;
    const double slope = flat ? 0.0 : line.dx / line.dy;
    const double halfSpan = flat ? halfWidth : line.across / std::abs(line.dy);
    for (int y = top; y < bottom; ++y) {
        const double centre = line.middle.x() + (y + 0.5 - line.middle.y()) * slope;
        const double first = std::max(left, centre - halfSpan);
        const double last = std::min(right, centre + halfSpan);
        if (first <= last)
            cover(y, static_cast<int>(first), static_cast<int>(last), line);
    }
}

/// Covers pixels of row \a y from \a first to \a last.
void StrokeMask::cover(int y, int first, int last, const Line &line)
{
    for (int x = first; x <= last; x += blockSize) {
        const QPointF offset = QPointF(x + 0.5, y + 0.5) - line.middle;
        coverBlock(m_cover.data() + at(x, y), line,
                   toFixed(offset.y() * line.dx - offset.x() * line.dy),
                   toFixed(offset.x() * line.dx + offset.y() * line.dy));
    }
}

/// Covers the rows from \a from to before \a to with an upright line: but for its ends, all of them
/// alike.
void StrokeMask::coverUpright(int from, int to, const Line &line)
{
    const int first = std::max(0, static_cast<int>(line.middle.x() - line.across));
    const int last = std::min(m_width - 1, static_cast<int>(line.middle.x() + line.across));
    constexpr double wholeRow = 1.5; // a pixel and what its smoothed end takes
    const int insideFrom =
        std::max(from, static_cast<int>(std::ceil(line.middle.y() - line.along + wholeRow)));
    const int insideTo =
        std::min(to, static_cast<int>(std::floor(line.middle.y() + line.along - wholeRow)));
    for (int y = from; y < std::min(insideFrom, to); ++y)
        cover(y, first, last, line);
    for (int y = std::max(insideTo, insideFrom); y < to; ++y)
        cover(y, first, last, line);
    for (int x = first; x <= last; x += blockSize) {
        std::array<unsigned char, blockSize> covers;
        for (int i = 0; i < blockSize; ++i)
            covers[static_cast<std::size_t>(i)] =
                toCover(toFixed(line.across - std::abs(x + i + 0.5 - line.middle.x())));
        for (int y = insideFrom; y < insideTo; ++y) {
            unsigned char *pixels = m_cover.data() + at(x, y);
            for (int i = 0; i < blockSize; ++i)
                pixels[i] = std::max(pixels[i], covers[static_cast<std::size_t>(i)]);
        }
    }
}

/// Notes which tiles the stroke of \a segment reaches, tile by tile along it.
void StrokeMask::touch(const QLineF &segment)
{
    const double margin = m_reach + 1.5;
    const int parts =
        1 + static_cast<int>(std::max(std::abs(segment.dx()), std::abs(segment.dy())) / tileSize);
    const QPointF step = (segment.p2() - segment.p1()) / parts;
    const auto tileOf = [](double pixel, int count) {
        return std::clamp(static_cast<int>(pixel) / tileSize, 0, tilesFor(count) - 1);
    };
    for (int part = 0; part < parts; ++part) {
        const QPointF from = segment.p1() + part * step;
        const QPointF to = from + step;
        const int left = tileOf(std::min(from.x(), to.x()) - margin, m_width);
        const int right = tileOf(std::max(from.x(), to.x()) + margin, m_width);
        const int top = tileOf(std::min(from.y(), to.y()) - margin, m_height);
        const int bottom = tileOf(std::max(from.y(), to.y()) + margin, m_height);
        for (int y = top; y <= bottom; ++y) {
            for (int x = left; x <= right; ++x)
                m_touched[tileIndex(x, y)] = 1;
        }
    }
}

void StrokeMask::cutToCircle(const QPointF &centre, double radius)
{
    for (int y = 0; y < m_height; ++y) {
        const double dy = y + 0.5 - centre.y();
        const double whole = radius - 1.0; // within it no pixel is cut
        const double inner = whole > std::abs(dy) ? std::sqrt(whole * whole - dy * dy) : -1.0;
        unsigned char *cover = m_cover.data() + at(0, y);
        for (int x = 0; x < m_width; ++x) {
            const double dx = x + 0.5 - centre.x();
            if (cover[x] == 0 || std::abs(dx) < inner)
                continue;
            cover[x] = std::min(cover[x],
                                toCover(toFixed(std::max(0.0, radius + 0.5 - std::hypot(dx, dy)))));
        }
    }
}

QVector<QRect> StrokeMask::coveredParts() const
{
    QVector<QRect> parts;
    const QRect all(0, 0, m_width, m_height);
    for (int y = 0; y * tileSize < m_height; ++y) {
        for (int x = 0; x < m_tilesAcross; ++x) {
            if (m_touched[tileIndex(x, y)] == 0)
                continue;
            const QRect tile = QRect(x * tileSize, y * tileSize, tileSize, tileSize) & all;
            if (!parts.isEmpty() && parts.last().top() == tile.top() &&
                parts.last().right() + 1 == tile.left())
                parts.last().setRight(tile.right());
            else
                parts.append(tile);
        }
    }
    return parts;
}
