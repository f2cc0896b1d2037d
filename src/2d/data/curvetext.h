#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>

/// The text in which one curve travels: clipboard, drag and drop, and CSV files.
///
/// Lines end with a line feed: in a file first the chart's title, then everywhere the curve's name,
/// the header "Angle,Power", and one "x,y" row a point. Numbers are in the C locale, in the fewest
/// digits that read back as the same double. Bytes are UTF-8.
namespace CurveText {

/// Told how many of how many bytes are read; returns false to give up.
using Progress = std::function<bool(qint64 done, qint64 total)>;

enum class Status {
    Complete,    ///< name and points are valid
    WrongHeader, ///< the header line names no "Angle" or no "Power"; the points are empty
    NoCurve,     ///< a plain text with neither a header nor a row of numbers
    Cancelled,   ///< the progress function returned false; the points are empty
};

/// What in the rows of a text was read in a way its author may not have meant, in rows.
struct RowCounts
{
    qint64 noNumbers = 0;  ///< with a field that is no number, which reads as 0
    qint64 moreFields = 0; ///< with more than two fields, of which the first two count
    qint64 tooShort = 0;   ///< with fewer than two fields, which are left out
    qint64 notFinite = 0;  ///< with NaN or an infinity, which are left out
};

/// A curve as read from a text.
struct Curve
{
    Status status = Status::Complete;
    QString title; ///< of the chart the file was written from; empty for a plain text
    QString name;
    QVector<QPointF> points; ///< in the order of the rows, finite throughout
    RowCounts rows;
};

/// One number, written as in a row.
QString number(double value);

/// The text of a curve for the clipboard and for a drag: name, header, rows.
QString toClipboard(const QString &name, const QVector<QPointF> &points);

/// The bytes of a curve file: the chart's title, then the same as on the clipboard.
QByteArray toFile(const QString &title, const QString &name, const QVector<QPointF> &points);

/// UTF-8 without a byte-order mark of \a bytes in any Unicode form, in GBK or in Windows-1252. For
/// one of these two its name is put into \a encoding, which is emptied else.
QByteArray asUtf8(const QByteArray &bytes, QString *encoding = nullptr);

/// Reads the bytes of a curve file. The first line is ignored. A row's first two fields are x and
/// y; a field that is no number reads as 0, a row with fewer fields or a value that is not finite
/// is left out. Windows line ends, a byte-order mark and a missing last line feed are fine.
///
/// Fields are parted by commas. Where these give no two numbers, semicolons, tabs or blanks may
/// part them, with decimal commas, as spreadsheets write them; group separators are never read.
Curve fromFile(const QByteArray &bytes, const Progress &progress = {});

/// Reads a pasted or dropped text: the first line is the name, every other line with two fields is
/// a point, the header is none. Rows are read as those of a file. A first line of two numbers that
/// no comma parts is a point too.
Curve fromClipboard(const QString &text);

} // namespace CurveText
