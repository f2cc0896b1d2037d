#include "patterns/report.h"

#include "2d/data/paratabletext.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <functional>

namespace {

struct ReportText
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

QString tableCell(const QString &content)
{
    return QStringLiteral("<td>%1</td>")
        .arg(content.isEmpty() ? QStringLiteral("&nbsp;") : content);
}

QString cells(const QStringList &texts)
{
    QString html;
    for (const QString &text : texts)
        html += tableCell(text.toHtmlEscaped());
    return html;
}

QString headings(const QStringList &texts)
{
    QString html;
    for (const QString &text : texts) {
        // A word is not broken where the other columns are wide.
        const bool isWord = !text.contains(QLatin1Char(' '));
        html += QStringLiteral("<th align=\"left\"%1>%2</th>")
                    .arg(isWord ? QStringLiteral(" style=\"white-space:nowrap\"") : QString(),
                         text.toHtmlEscaped());
    }
    // Of a head the renderers know that it is repeated on every page.
    return QStringLiteral("<thead><tr bgcolor=\"#e8edf2\">%1</tr></thead>\n").arg(html);
}

QString table(const QString &rows)
{
    return QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\" "
                          "style=\"border-collapse:collapse; border-color:#9aa5b1\">\n%1</table>\n")
        .arg(rows);
}

QString nameCell(const ReportCurve &curve)
{
    // A name of usual length stays on one line. A coloured letter, since the simpler of the two
    // renderers knows no coloured boxes.
    constexpr int usualLength = 28;
    const bool isUsual = curve.name.size() <= usualLength;
    return QStringLiteral("<td%1><span style=\"color:%2\">&#9608;</span>&nbsp;%3</td>")
        .arg(isUsual ? QStringLiteral(" style=\"white-space:nowrap\"") : QString(), curve.color,
             curve.name.toHtmlEscaped());
}

QString angles(const ReportCurve &curve)
{
    if (curve.points == 0)
        return {};
    const QLocale c = QLocale::c();
    return ReportText::tr("%1° to %2°")
        .arg(c.toString(curve.firstAngle, 'g', 6), c.toString(curve.lastAngle, 'g', 6));
}

/// One column of the descriptions: its heading, and what it says of a curve.
struct Column
{
    QString heading;
    std::function<QString(const ReportCurve &)> text;
};

/// Columns that say nothing of any curve are left out.
QString descriptions(const Report &report)
{
    const QVector<Column> all{
        {ReportText::tr("Frequency (MHz)"),
         [](const ReportCurve &curve) { return curve.frequency; }},
        {ReportText::tr("Material"), [](const ReportCurve &curve) { return curve.material; }},
        {ReportText::tr("Points"),
         [](const ReportCurve &curve) { return QString::number(curve.points); }},
        {ReportText::tr("Angles"), angles},
        {ReportText::tr("Loss correction"),
         [](const ReportCurve &curve) { return curve.correction; }},
        {ReportText::tr("File"), [](const ReportCurve &curve) { return curve.file; }},
        {ReportText::tr("Notes"),
         [](const ReportCurve &curve) { return curve.notes.join(QLatin1Char('\n')); }}};
    QVector<Column> columns;
    QStringList names{ReportText::tr("Curve")};
    for (const Column &column : all) {
        const bool isUsed =
            std::any_of(report.curves.begin(), report.curves.end(),
                        [&](const ReportCurve &curve) { return !column.text(curve).isEmpty(); });
        if (!isUsed)
            continue;
        columns.append(column);
        names.append(column.heading);
    }
    QString rows = headings(names);
    for (const ReportCurve &curve : report.curves) {
        QString texts;
        for (const Column &column : qAsConst(columns)) {
            texts += tableCell(column.text(curve).toHtmlEscaped().replace(QLatin1Char('\n'),
                                                                          QStringLiteral("<br>")));
        }
        rows += QStringLiteral("<tr>%1%2</tr>\n").arg(nameCell(curve), texts);
    }
    return table(rows);
}

QString figures(const QVector<ReportCurve> &curves, const QStringList &columns,
                QStringList ReportCurve::*values)
{
    QString rows = headings(QStringList(ReportText::tr("Curve")) + columns);
    for (const ReportCurve &curve : curves) {
        if (!(curve.*values).isEmpty())
            rows += QStringLiteral("<tr>%1%2</tr>\n").arg(nameCell(curve), cells(curve.*values));
    }
    return table(rows);
}

QString verdicts(const Report &report)
{
    QString rows =
        headings({ReportText::tr("Curve"), ReportText::tr("Mask"), ReportText::tr("Result"),
                  ReportText::tr("Worst margin (dB)"), ReportText::tr("At (°)")});
    for (const ReportVerdict &verdict : report.verdicts) {
        rows += QStringLiteral("<tr>%1</tr>\n")
                    .arg(cells({verdict.curve, verdict.mask,
                                verdict.passes ? ReportText::tr("pass") : ReportText::tr("fail"),
                                fixedNumber(verdict.margin, 2), fixedNumber(verdict.angle, 2)}));
    }
    return table(rows);
}

QString section(const QString &heading, const QString &content)
{
    return QStringLiteral("<h3>%1</h3>\n%2").arg(heading.toHtmlEscaped(), content);
}

} // namespace

QString reportHtml(const Report &report)
{
    const QString title = report.title.toHtmlEscaped();
    QString html = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1"
                                  "</title>\n<style>body{font-family:sans-serif;max-width:1000px}"
                                  "</style></head>\n<body>\n<h2>%1</h2>\n")
                       .arg(title);
    html += QStringLiteral("<p>%1</p>\n")
                .arg(QLocale::c().toString(report.created, QStringLiteral("yyyy-MM-dd hh:mm")));
    html +=
        QStringLiteral("<p align=\"center\"><img src=\"%1\" width=\"%2\" height=\"%3\" alt=\"%4\">"
                       "</p>\n")
            .arg(report.picture, QString::number(report.pictureSize.width()),
                 QString::number(report.pictureSize.height()), title);
    html += section(ReportText::tr("Curves"), descriptions(report));
    html += section(ReportText::tr("Pattern parameters"),
                    figures(report.curves, report.figureHeadings, &ReportCurve::figures));
    html +=
        section(ReportText::tr("Supplementary (textbook definitions, nulls from %1 dB)")
                    .arg(QString::number(report.nullProminence)),
                figures(report.curves, report.supplementaryHeadings, &ReportCurve::supplementary));
    if (!report.verdicts.isEmpty())
        html += section(ReportText::tr("Mask limits"), verdicts(report));
    return html + QStringLiteral("</body></html>\n");
}
