#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// Pattern files of planning tools, antenna makers and simulations.
namespace PatternFormats {

enum class Format {
    None, ///< none of these
    Msi,  ///< MSI or Planet
    Nsma, ///< NSMA, WG16.99.050
    Nec,  ///< listing of NEC2
};

/// More cuts than these in one file are more than anybody wants at once.
constexpr int cutsWithoutAsking = 4;

/// What of the field a level is made of. Only listings tell the parts.
enum class Component { Total, Vertical, Horizontal };

/// What the name of a curve of \a component ends with; empty for the total field.
QString suffixOf(Component component);

/// Through which plane a cut goes, as far as its file tells.
enum class Plane { Other, Horizontal, Vertical };

/// A fact about an antenna, under the key that the file gives it.
struct Detail
{
    QString key;
    QString value;
};
using Details = QVector<Detail>;

/// One cut through a pattern. Angles are degrees from -180 to 180, ascending, each once, in the
/// file's own sense; levels are dBi.
struct Cut
{
    QString title; ///< what it shares with the other cuts of its file
    QString name;
    QString frequency; ///< MHz as text; empty: unknown
    QVector<QPointF> points;
    QVector<QPointF> vertical;   ///< of the vertical field alone; empty: the file does not tell
    QVector<QPointF> horizontal; ///< of the horizontal field alone
    Details details;
    Plane plane = Plane::Other;
    bool principal = true; ///< is imported unless the user wishes otherwise

    const QVector<QPointF> &of(Component component) const;
};

/// Why a file cannot be read.
struct Problem
{
    int line = 0; ///< counted from 1; 0: the file as a whole
    QString text;

    /// One sentence that names the line.
    QString sentence() const;
};

/// What a file holds: cuts, or the problem and no cut.
struct PatternFile
{
    Format format = Format::None;
    QVector<Cut> cuts;
    QStringList remarks; ///< sentences on what was read though it is not as it should be
    std::optional<Problem> problem;

    /// Whether the user has a choice of cuts or of components.
    bool offersChoice() const;
    bool hasComponents() const;
};

/// A file as it is to be written, or what keeps it from being written.
struct Written
{
    QByteArray bytes;
    QString problem; ///< empty: written
};

/// The value of the first of \a details under one of \a keys, empty without one.
QString detail(const Details &details, const QStringList &keys);

/// The facts in \a details in words, a line each: "Maker: X".
QString describe(const Details &details);

} // namespace PatternFormats
