#pragma once

#include <QByteArray>

/// What in the rows of a curve file was read in a way its author may not have meant.
struct CurveRowCheck
{
    qint64 noNumbers = 0;  ///< rows with a field that is no number, which reads as 0
    qint64 moreFields = 0; ///< rows with more than two fields, as decimal commas make them
    qint64 tooShort = 0;   ///< rows with fewer than two fields, which are left out
    qint64 notFinite = 0;  ///< rows with NaN or an infinity, which are left out

    bool isClean() const { return noNumbers + moreFields + tooShort + notFinite == 0; }
};

/// Looks through the rows of the curve file \a bytes, that is from its fourth line on. Empty lines
/// are nothing to tell of.
CurveRowCheck checkCurveRows(const QByteArray &bytes);
