#pragma once

#include "2d/data/curvetext.h"
#include "patterns/formats/cut.h"

#include <QCoreApplication>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

/// A curve as read from a file.
struct ReadCurve
{
    QString file;  ///< absolute path
    QString given; ///< the file as it was named to the reader
    QString title; ///< first line of the file, the title of the chart it was exported from
    QString name;  ///< second line
    QVector<QPointF> points;
    QString frequency;               ///< MHz as text; empty: the file does not tell
    PatternFormats::Details details; ///< what else a pattern file tells
    bool isCut = false;              ///< one of the cuts of a pattern file, whose name nobody chose
};

/// Which of a pattern file's cuts are wanted, and of what field.
struct CutChoice
{
    QVector<int> cuts; ///< places in the file
    PatternFormats::Component component = PatternFormats::Component::Total;
};

/// The choice that is made without asking: the principal cuts of the total field.
CutChoice principalCuts(const PatternFormats::PatternFile &file);

/// Reads curve files and pattern files one after the other and collects what has to be told about
/// them. A file that cannot be read keeps none of the others from being read.
class CurveFileReader
{
    Q_DECLARE_TR_FUNCTIONS(CurveFileReader)

public:
    /// Told which file is read and how much of all of it, 0 to 1000; returns false to give up.
    using Progress = std::function<bool(const QString &file, int perMille)>;

    /// Asked where a pattern file leaves a choice; nothing leaves the file out.
    using Chooser = std::function<std::optional<CutChoice>(const QString &file,
                                                           const PatternFormats::PatternFile &)>;

    enum class Naming { Short, AsGiven };

    /// \a naming tells how what is told names the files.
    explicit CurveFileReader(Naming naming = Naming::Short)
        : m_naming(naming)
    {}

    void setChooser(const Chooser &chooser) { m_chooser = chooser; }

    /// Reads \a files. Returns false when the progress function gave up; nothing is kept then.
    bool read(const QStringList &files, const Progress &progress = {});

    const QVector<ReadCurve> &curves() const { return m_curves; }
    /// One sentence a file that was not read, with the reason.
    const QStringList &failures() const { return m_failures; }
    /// One sentence a thing in a file that was read but perhaps not as its author meant it.
    const QStringList &remarks() const { return m_remarks; }

private:
    enum class Step { Go, GiveUp };

    Step readOne(const QString &file, const std::function<bool(double)> &progress);
    bool readBytes(const QString &file, const std::function<bool(double)> &progress,
                   QByteArray &bytes, QString &problem);
    void readPattern(const QString &file, const QString &shown, const QByteArray &bytes);
    void remark(const QString &file, const CurveText::Curve &curve);
    void clear();

    Naming m_naming;
    Chooser m_chooser;

    QVector<ReadCurve> m_curves;
    QStringList m_failures;
    QStringList m_remarks;
};
