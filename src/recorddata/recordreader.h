#pragma once

#include "recorddata/recordbuilder.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QFile;
class QIODevice;

/// Reads the files of one record, several days of it joined, and goes on reading them as they grow.
class RecordReader
{
    Q_DECLARE_TR_FUNCTIONS(RecordReader)

public:
    /// Is told how much is done, 0 to 1, a few hundred times a gigabyte; false ends the reading.
    using Progress = std::function<bool(double)>;
    enum class Outcome {
        Read,
        Unchanged, ///< nothing has been added
        Cancelled,
        Replaced, ///< a file is shorter than what was read of it: read all of it again
        Failed,   ///< error() tells why
    };

    RecordReader() = default;
    Q_DISABLE_COPY_MOVE(RecordReader)

    /// Reads \a paths, files of one kind in any order, from their begin; once in a reader's life.
    Outcome open(const QStringList &paths, const Progress &progress);
    /// Reads what has been added to the latest file and, if that had none behind it when it was
    /// opened, what the file of the next day holds.
    Outcome follow();

    QString error() const { return m_error; }
    const RecordData &data() const { return m_data; }
    RecordKind kind() const { return m_kind; }
    /// The files in the order of their rows.
    QStringList paths() const;
    /// Lines that were no rows.
    int linesLeftOut() const { return m_linesLeftOut; }

    /// The row of a point as it stands in its file, and the names of its columns by position; empty
    /// when the file cannot be read any more.
    QByteArray row(int point) const;
    QStringList columnNames() const;
    /// The cells of a row() in the order of columnNames().
    QStringList cells(const QByteArray &row) const;

    /// Copies the rows from those of the first to that of the last point of \a ranges to \a file,
    /// behind a header if they have one. False when reading or writing failed.
    bool copyRows(const std::vector<PointRange> &ranges, QIODevice &file) const;

private:
    struct Source
    {
        QString path;
        double begin = 0.0;  ///< time of the first row
        qint64 size = 0;     ///< when it was looked at
        qint64 position = 0; ///< up to which it has been read
        QByteArray header;   ///< the first line where it is no row, its end included
        std::optional<double> zone;
    };

    bool look(Source &source);
    Outcome fail(const QString &error);
    Outcome read(int file, const Progress &progress);
    qint64 takeLines(const char *text, qint64 size, int file, qint64 offset);
    bool addNextDay();
    bool find(int point, RowPlace &place, QByteArray *row) const;
    bool copy(const RowPlace &from, const RowPlace &lastRow, qint64 lastLength,
              QIODevice &target) const;

    std::vector<Source> m_sources;
    RecordKind m_kind = RecordKind::Unknown;
    RecordData m_data;
    std::unique_ptr<RecordBuilder> m_builder;
    std::unique_ptr<RowParser> m_parser;
    int m_linesLeftOut = 0;
    bool m_hasToday = false; ///< no file of a later day when opened
    QString m_error;
};
