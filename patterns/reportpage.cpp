#include "patterns/reportpage.h"

#include "2d/data/paratabletext.h"
#include "2d/form/listchart.h"
#include "patterns/chartpicture.h"
#include "patterns/report.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QUrl>

#include <algorithm>

namespace {

/// Sharp on paper: more than 200 dots an inch across a page.
constexpr int htmlWidth = 960; // pixels
/// The layout of a page is made in pixels of 1/96 inch.
constexpr qreal layoutDots = 96.0;
constexpr qreal pageFont = 7.5; // points

ReportCurve reportCurve(const ListChart &form, int id)
{
    const CurveSet &curves = form.curves();
    const CurveRecord record = curves.record(id);
    const QVector<QPointF> points = curves.points(id);
    ReportCurve curve;
    curve.name = curves.name(id);
    curve.color = curves.color(id).name();
    curve.file = QFileInfo(record.file).fileName();
    curve.frequency = record.frequency;
    curve.material = record.material;
    curve.correction = record.correction;
    curve.notes = record.notes;
    curve.points = points.size();
    const auto ends =
        std::minmax_element(points.begin(), points.end(),
                            [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    if (ends.first != points.end()) {
        curve.firstAngle = ends.first->x();
        curve.lastAngle = ends.second->x();
    }
    return curve;
}

/// Every shown curve against every shown mask, where they meet.
QVector<ReportVerdict> verdicts(const ListChart &form)
{
    const CurveSet &curves = form.curves();
    QVector<ReportVerdict> verdicts;
    for (const int mask : curves.ids()) {
        if (!curves.record(mask).isMask || curves.isHidden(mask))
            continue;
        for (const CurveFigures &one : form.figures()) {
            const auto verdict = CurveAlgebra::maskVerdict(one.points, curves.points(mask));
            if (verdict) {
                verdicts.append({curves.name(one.id), curves.name(mask), verdict->passes(),
                                 verdict->margin, verdict->angle});
            }
        }
    }
    return verdicts;
}

Report report(const ListChart &form, const QSize &pictureSize, int width)
{
    Report report;
    report.title = form.title();
    report.created = QDateTime::currentDateTime();
    report.pictureSize = pictureSize.scaled(width, pictureSize.height(), Qt::KeepAspectRatio);
    report.figureHeadings = form.parameterHeadings();
    report.supplementaryHeadings = form.supplementaryHeadings();
    const QVector<CurveFigures> &figures = form.figures();
    for (const CurveFigures &one : figures) {
        ReportCurve curve = reportCurve(form, one.id);
        curve.figures = frequencyTableCells(one.parameters, QString()).mid(1);
        report.nullProminence = one.options.nullProminence;
        curve.supplementary = supplementCells(one, form.supplementColumns());
        report.curves.append(curve);
    }
    report.verdicts = verdicts(form);
    return report;
}

/// The charts within a text, painted as lines.
class ChartObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    ChartObject(const ListChart &form, const QSize &size)
        : m_form(form)
        , m_size(size)
    {}

    void takePlaceOfImage(QTextDocument &document)
    {
        constexpr int kind = QTextFormat::UserObject + 1;
        document.documentLayout()->registerHandler(kind, this);
        const QString character(QChar::ObjectReplacementCharacter);
        QTextCursor image = document.find(character);
        QTextCharFormat format;
        format.setObjectType(kind);
        if (!image.isNull())
            image.insertText(character, format);
    }

    QSizeF intrinsicSize(QTextDocument *, int, const QTextFormat &) override { return m_size; }

    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *, int,
                    const QTextFormat &) override
    {
        const QSizeF full = ChartPicture::size(m_form);
        painter->save();
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / full.width(), rect.height() / full.height());
        ChartPicture::paintOn(*painter, m_form);
        painter->restore();
    }

private:
    const ListChart &m_form;
    QSizeF m_size;
};

} // namespace

namespace ReportPage {

QByteArray html(const ListChart &form)
{
    const QImage picture = ChartPicture::paint(form, ChartPicture::savedScale);
    Report page = report(form, picture.size(), htmlWidth);
    page.picture =
        QStringLiteral("data:image/png;base64,") +
        QString::fromLatin1(ChartPicture::encode(picture, QStringLiteral("x.png")).toBase64());
    return reportHtml(page).toUtf8();
}

QByteArray pdf(const ListChart &form)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(form.title());
    writer.setCreator(QStringLiteral("mz6218-patterns"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    print(form, writer);
    return bytes;
}

QByteArray chartPdf(const ListChart &form)
{
    const QSizeF size = ChartPicture::size(form);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(form.title());
    writer.setCreator(QStringLiteral("mz6218-patterns"));
    writer.setPageSize(QPageSize(size / layoutDots, QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const qreal scale = writer.resolution() / layoutDots;
    painter.scale(scale, scale);
    ChartPicture::paintOn(painter, form);
    painter.end();
    return bytes;
}

QByteArray document(const ListChart &form, const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix();
    const bool isPdf = suffix.compare(QStringLiteral("pdf"), Qt::CaseInsensitive) == 0;
    return isPdf ? pdf(form) : html(form);
}

void print(const ListChart &form, QPagedPaintDevice &device)
{
    const QSizeF paper = device.pageLayout().paintRect(QPageLayout::Inch).size() * layoutDots;
    QTextDocument document;
    QFont font = document.defaultFont();
    font.setPointSizeF(pageFont);
    document.setDefaultFont(font);
    document.setDocumentMargin(0.0);
    document.setPageSize(paper);

    Report page = report(form, ChartPicture::size(form), int(paper.width()));
    page.picture = QStringLiteral("report:picture");
    document.setHtml(reportHtml(page));
    ChartObject chart(form, page.pictureSize);
    chart.takePlaceOfImage(document);
    document.print(&device);
}

} // namespace ReportPage

#include "reportpage.moc"
