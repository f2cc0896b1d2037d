#include "patterns/reportpage.h"

#include "2d/data/paratabletext.h"
#include "2d/form/listchart.h"
#include "patterns/chartpicture.h"
#include "patterns/report.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace {

/// Sharp on paper: more than 200 dots an inch across a page.
constexpr qreal pictureScale = 2.0;
constexpr int htmlWidth = 960; // pixels
/// The layout of a page is made in pixels of 1/96 inch.
constexpr qreal layoutDots = 96.0;
constexpr qreal pageFont = 8.0; // points

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
        curve.supplementary = supplementCells(one, form.supplementColumns());
        report.curves.append(curve);
    }
    report.verdicts = verdicts(form);
    return report;
}

} // namespace

namespace ReportPage {

QByteArray html(const ListChart &form)
{
    const QImage picture = ChartPicture::paint(form, pictureScale);
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

    const QImage picture = ChartPicture::paint(form, pictureScale);
    Report page = report(form, picture.size(), int(paper.width()));
    page.picture = QStringLiteral("report:picture");
    document.addResource(QTextDocument::ImageResource, QUrl(page.picture), picture);
    document.setHtml(reportHtml(page));
    document.print(&device);
}

} // namespace ReportPage
