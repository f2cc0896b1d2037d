#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

/// One curve in a report.
struct ReportCurve
{
    QString name;
    QString color;     ///< "#rrggbb", that of the curve in the picture
    QString file;      ///< where it came from; empty for a pasted or dropped curve
    QString frequency; ///< MHz
    QString material;
    int points = 0;
    double firstAngle = 0.0;   ///< degrees
    double lastAngle = 0.0;    ///< degrees
    QStringList notes;         ///< what else is known, a sentence each
    QString correction;        ///< what was added to its levels; empty for a curve as measured
    QStringList figures;       ///< cells under Report::figureHeadings; empty: no points
    QStringList supplementary; ///< cells under Report::supplementaryHeadings
};

/// How a curve stands to a mask.
struct ReportVerdict
{
    QString curve;
    QString mask;
    bool passes = false;
    double margin = 0.0; ///< the least distance below the limit, dB; negative above it
    double angle = 0.0;  ///< there, degrees
};

/// A page about the curves of one window.
struct Report
{
    QString title;
    QDateTime created;
    QString picture;   ///< address of the picture: a resource of the document or a data URL
    QSize pictureSize; ///< in which it is shown, pixels
    QStringList figureHeadings;
    QStringList supplementaryHeadings;
    double nullProminence = 1.0; ///< of the supplementary figures, dB
    QVector<ReportCurve> curves;
    QVector<ReportVerdict> verdicts;
};

/// The report as one HTML page that browsers and QTextDocument both show.
QString reportHtml(const Report &report);
