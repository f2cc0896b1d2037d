#pragma once

#include <QLineF>
#include <QRect>
#include <QVector>

#include <vector>

/// How much of each pixel the stroke of a curve covers, from 0 to 255.
///
/// Painting a line of thousands of segments piece by piece makes seams where smoothed edges
/// overlap; painting it as one path takes a hundred times as long. Here each pixel takes the
/// greatest cover of all segments.
class StrokeMask
{
public:
    /// \a penWidth in pixels.
    StrokeMask(int width, int height, double penWidth);

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Adds the strokes of \a segments, whose coordinates are pixels from the upper left corner.
    /// Where one begins at the end of the one before, the bend is closed as by a bevel.
    void add(const QVector<QLineF> &segments);
    /// Removes what lies outside a circle.
    void cutToCircle(const QPointF &centre, double radius);

    /// The cover of the pixels in row \a y, from the left.
    const unsigned char *row(int y) const { return m_cover.data() + at(0, y); }
    /// Rectangles without an overlap that hold all that is covered.
    QVector<QRect> coveredParts() const;

private:
    /// Short numbers, so that a few instructions do for a whole block of pixels.
    using Distance = short;
    static constexpr int blockSize = 8;
    struct Line;

    std::size_t at(int x, int y) const
    {
        return static_cast<std::size_t>(y) * m_stride + static_cast<std::size_t>(x);
    }
    /// Where m_touched has the tile in column \a x and row \a y.
    std::size_t tileIndex(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_tilesAcross) + std::size_t(x);
    }
    void add(QPointF from, QPointF to, double capBefore, double capAfter);
    void addPart(const QPointF &from, const QPointF &to, double capBefore, double capAfter);
    void cover(int y, int first, int last, const Line &line);
    static void coverBlock(unsigned char *pixels, const Line &line, Distance across,
                           Distance along);
    void coverUpright(int from, int to, const Line &line);
    void touch(const QLineF &segment);

    int m_width;
    int m_height;
    std::size_t m_stride; ///< pixels to a row, with room for a block that begins in the last one
    double m_reach;       ///< half the pen's width
    int m_tilesAcross;
    std::vector<unsigned char> m_cover;
    std::vector<unsigned char> m_touched; ///< by tile
};
