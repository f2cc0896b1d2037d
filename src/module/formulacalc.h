#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/// The table of loss corrections by frequency: the losses of the up-link path ("upside", for total
/// radiated power) and of the down-link path ("downside", for total isotropic sensitivity).
///
/// There is one instance. Only its creation is safe from any thread; it is used in the GUI thread.
class FormulaCalc : public QObject
{
    Q_OBJECT

public:
    /// The shared instance, made at the first call, with an empty table.
    static FormulaCalc *Instance();

    /// Replaces the table by the one in the comma-separated file \a path. A file that cannot be
    /// opened leaves the table as it is and a warning in the log.
    void queryLossCompensationFromFile(const QString &path);

    /// The summed loss at \a freq, in the file's units: from the up-link table when \a category
    /// contains "TRP", else from the down-link table when it contains "TIS", else 0.
    double queryLossCompensation(const QString &category, const double &freq) const;

    /// The value of \a map at \a val: the tabulated one, or the one on the straight line through
    /// the neighbouring keys, or beyond the table through its two outermost keys. 0 for an empty
    /// map, and (with a warning) for a single key other than \a val. A key of 0 counts as missing
    /// when the neighbours are looked up: with negative keys as well, the line goes through the two
    /// largest ones.
    double getValueFromMap(const double &val, const QMap<double, double> &map) const;

    /// Frequency to summed up-link loss.
    const QMap<double, double> &upsideMap() const { return m_upsideMap; }
    /// Frequency to summed down-link loss.
    const QMap<double, double> &downsideMap() const { return m_downsideMap; }

private:
    FormulaCalc() = default;

    QMap<double, double> m_upsideMap;
    QMap<double, double> m_downsideMap;
};
