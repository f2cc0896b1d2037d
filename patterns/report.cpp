#include "patterns/report.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

QString cell(const QString &content)
{
    return QStringLiteral("<td>%1</td>")
        .arg(content.isEmpty() ? QStringLiteral("&nbsp;") : content);
}

QString cells(const QStringList &texts)
{
    QString html;
    for (const QString &text : texts)
        html += cell(text.toHtmlEscaped());
    return html;
}

QString headings(const QStringList &texts)
{
    QString html;
    for (const QString &text : texts)
        html += QStringLiteral("<th align=\"left\">%1</th>").arg(text.toHtmlEscaped());
    return QStringLiteral("<tr bgcolor=\"#e8edf2\">%1</tr>\n").arg(html);
}

QString table(const QString &rows)
{
    return QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" width=\"100%\" "
                          "style=\"border-collapse:collapse; border-color:#9aa5b1\">\n%1</table>\n")
        .arg(rows);
}

QString nameCell(const ReportCurve &curve)
{
    // A coloured letter, since the simpler of the two renderers knows no coloured boxes.
    return cell(QStringLiteral("<span style=\"color:%1\">&#9608;</span>&nbsp;%2")
                    .arg(curve.color, curve.name.toHtmlEscaped()));
}

QString angles(const ReportCurve &curve)
{
    if (curve.points == 0)
        return {};
    const QLocale c = QLocale::c();
    return Text::tr("%1° to %2°")
        .arg(c.toString(curve.firstAngle, 'g', 6), c.toString(curve.lastAngle, 'g', 6));
}

QString descriptions(const Report &report)
{
    QString rows = headings({Text::tr("Curve"), Text::tr("Frequency (MHz)"), Text::tr("Material"),
                             Text::tr("Points"), Text::tr("Angles"), Text::tr("Loss correction"),
                             Text::tr("File"), Text::tr("Notes")});
    for (const ReportCurve &curve : report.curves) {
        const QString notes = curve.notes.join(QLatin1Char('\n')).toHtmlEscaped();
        rows += QStringLiteral("<tr>%1%2%3</tr>\n")
                    .arg(nameCell(curve),
                         cells({curve.frequency, curve.material, QString::number(curve.points),
                                angles(curve), curve.correction, curve.file}),
                         cell(QString(notes).replace(QLatin1Char('\n'), QStringLiteral("<br>"))));
    }
    return table(rows);
}

QString figures(const QVector<ReportCurve> &curves, const QStringList &columns,
                QStringList ReportCurve::*values)
{
    QString rows = headings(QStringList(Text::tr("Curve")) + columns);
    for (const ReportCurve &curve : curves) {
        if (!(curve.*values).isEmpty())
            rows += QStringLiteral("<tr>%1%2</tr>\n").arg(nameCell(curve), cells(curve.*values));
    }
    return table(rows);
}

QString verdicts(const Report &report)
{
    QString rows = headings({Text::tr("Curve"), Text::tr("Mask"), Text::tr("Result"),
                             Text::tr("Worst margin (dB)"), Text::tr("At (°)")});
    for (const ReportVerdict &verdict : report.verdicts) {
        rows += QStringLiteral("<tr>%1</tr>\n")
                    .arg(cells({verdict.curve, verdict.mask,
                                verdict.passes ? Text::tr("pass") : Text::tr("fail"),
                                QString::number(verdict.margin, 'f', 2),
                                QString::number(verdict.angle, 'f', 2)}));
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
    html += section(Text::tr("Curves"), descriptions(report));
    html += section(Text::tr("Pattern parameters"),
                    figures(report.curves, report.figureHeadings, &ReportCurve::figures));
    html +=
        section(Text::tr("Supplementary (textbook definitions)"),
                figures(report.curves, report.supplementaryHeadings, &ReportCurve::supplementary));
    if (!report.verdicts.isEmpty())
        html += section(Text::tr("Mask limits"), verdicts(report));
    return html + QStringLiteral("</body></html>\n");
}
