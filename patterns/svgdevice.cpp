#include "patterns/svgdevice.h"

#include <QBuffer>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QtMath>

namespace {

constexpr int dotsPerInch = 96;

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 7);
}

QByteArray pathData(const QPainterPath &path)
{
    QByteArray data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.isMoveTo())
            data += 'M';
        else if (element.isLineTo())
            data += 'L';
        else
            data += element.isCurveTo() ? 'C' : ' ';
        data += number(element.x) + ',' + number(element.y);
    }
    return data;
}

} // namespace

/// Writes what a painter draws as elements of SVG.
class SvgEngine : public QPaintEngine
{
public:
    SvgEngine()
        : QPaintEngine(PrimitiveTransform | PixmapTransform | PainterPaths | Antialiasing |
                       AlphaBlend | ConstantOpacity)
    {}

    QByteArray body() const { return m_body; }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &now) override
    {
        const DirtyFlags dirty = now.state();
        if (dirty & DirtyTransform)
            m_transform = now.transform();
        if (dirty & DirtyPen)
            m_pen = now.pen();
        if (dirty & DirtyBrush)
            m_brush = now.brush();
        if (dirty & DirtyOpacity)
            m_opacity = now.opacity();
        if (dirty & DirtyClipPath)
            clip(now.clipPath(), now.clipOperation());
        if (dirty & DirtyClipRegion) {
            QPainterPath path;
            path.addRegion(now.clipRegion());
            clip(path, now.clipOperation());
        }
        if (dirty & DirtyClipEnabled)
            m_isClipped = now.isClipEnabled() && !m_clip.isEmpty();
    }

    void drawPath(const QPainterPath &path) override { write(path, m_brush); }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        if (count < 2)
            return;
        QPainterPath path(points[0]);
        for (int i = 1; i < count; ++i)
            path.lineTo(points[i]);
        if (mode != PolylineMode)
            path.closeSubpath();
        write(path, mode == PolylineMode ? QBrush(Qt::NoBrush) : m_brush);
    }

    void drawPixmap(const QRectF &target, const QPixmap &pixmap, const QRectF &source) override
    {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        pixmap.copy(source.toRect()).save(&buffer, "PNG");
        m_body += "<image x=\"" + number(target.x()) + "\" y=\"" + number(target.y()) +
                  "\" width=\"" + number(target.width()) + "\" height=\"" +
                  number(target.height()) + "\"" + placement() + " href=\"data:image/png;base64," +
                  png.toBase64() + "\"/>\n";
    }

private:
    void clip(const QPainterPath &path, Qt::ClipOperation operation)
    {
        const QPainterPath mapped = m_transform.map(path);
        m_isClipped = operation != Qt::NoClip;
        if (!m_isClipped) {
            m_clip = {}; // or enabling clips would bring it back
            return;
        }
        m_clip = operation == Qt::IntersectClip && !m_clip.isEmpty() ? m_clip.intersected(mapped)
                                                                     : mapped;
        ++m_clips;
        m_body += "<clipPath id=\"c" + QByteArray::number(m_clips) + "\"><path d=\"" +
                  pathData(m_clip) + "\"/></clipPath>\n";
    }

    /// Where an element stands and how much of it is seen.
    QByteArray placement() const
    {
        const QTransform &t = m_transform;
        QByteArray text = " transform=\"matrix(" + number(t.m11()) + ',' + number(t.m12()) + ',' +
                          number(t.m21()) + ',' + number(t.m22()) + ',' + number(t.dx()) + ',' +
                          number(t.dy()) + ")\"";
        if (m_opacity < 1.0)
            text += " opacity=\"" + number(m_opacity) + '"';
        return text;
    }

    void write(const QPainterPath &path, const QBrush &brush)
    {
        const bool hasPen = m_pen.style() != Qt::NoPen;
        const bool hasBrush = brush.style() != Qt::NoBrush && brush.color().alpha() > 0;
        if (path.isEmpty() || (!hasPen && !hasBrush))
            return;
        // The clip is in coordinates of the page, hence a group without a transform.
        if (m_isClipped)
            m_body += "<g clip-path=\"url(#c" + QByteArray::number(m_clips) + ")\">";
        m_body += "<path d=\"" + pathData(path) + "\"" + placement();
        m_body += hasBrush ? paint("fill", brush.color()) : QByteArray(" fill=\"none\"");
        if (hasBrush && path.fillRule() == Qt::OddEvenFill)
            m_body += " fill-rule=\"evenodd\"";
        if (hasPen)
            m_body += stroke();
        m_body += m_isClipped ? "/></g>\n" : "/>\n";
    }

    static QByteArray paint(const QByteArray &what, const QColor &color)
    {
        QByteArray text = ' ' + what + "=\"" + color.name().toLatin1() + '"';
        if (color.alpha() < 255)
            text += ' ' + what + "-opacity=\"" + number(color.alphaF()) + '"';
        return text;
    }

    QByteArray stroke() const
    {
        const double width = m_pen.widthF() > 0.0 ? m_pen.widthF() : 1.0;
        QByteArray text = paint("stroke", m_pen.color()) + " stroke-width=\"" + number(width) + '"';
        if (m_pen.isCosmetic())
            text += " vector-effect=\"non-scaling-stroke\"";
        if (m_pen.capStyle() == Qt::RoundCap)
            text += " stroke-linecap=\"round\"";
        else if (m_pen.capStyle() == Qt::SquareCap)
            text += " stroke-linecap=\"square\"";
        if (m_pen.joinStyle() == Qt::RoundJoin)
            text += " stroke-linejoin=\"round\"";
        QByteArray dashes;
        const QVector<qreal> pattern = m_pen.dashPattern();
        for (const qreal part : pattern)
            dashes += (dashes.isEmpty() ? "" : ",") + number(part * width);
        return dashes.isEmpty() ? text : text + " stroke-dasharray=\"" + dashes + '"';
    }

    QByteArray m_body;
    QTransform m_transform;
    QPen m_pen;
    QBrush m_brush;
    double m_opacity = 1.0;
    QPainterPath m_clip; ///< in coordinates of the page
    bool m_isClipped = false;
    int m_clips = 0;
};

SvgDevice::SvgDevice(const QSize &size, const QString &title)
    : m_size(size)
    , m_title(title)
    , m_engine(std::make_unique<SvgEngine>())
{}

SvgDevice::~SvgDevice() = default;

QPaintEngine *SvgDevice::paintEngine() const
{
    return m_engine.get();
}

QByteArray SvgDevice::document() const
{
    const QByteArray width = QByteArray::number(m_size.width());
    const QByteArray height = QByteArray::number(m_size.height());
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "width=\"" +
           width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height +
           "\">\n<title>" + m_title.toHtmlEscaped().toUtf8() + "</title>\n" + m_engine->body() +
           "</svg>\n";
}

int SvgDevice::metric(PaintDeviceMetric metric) const
{
    constexpr double millimetres = 25.4;
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return qRound(m_size.width() * millimetres / dotsPerInch);
    case PdmHeightMM:
        return qRound(m_size.height() * millimetres / dotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmNumColors:
        return 1 << 24;
    case PdmDepth:
        return 32;
    default:
        return QPaintDevice::metric(metric);
    }
}
