#pragma once

#include "2d/data/curvealgebra.h"
#include "2d/view/curvelook.h"

#include <QMap>
#include <QObject>
#include <QPair>
#include <QPointF>
#include <QStringList>
#include <QVector>

#include <optional>

class CurveView;
class PathInfo;

/// What is known of a curve beside what the chart draws.
struct CurveRecord
{
    QString file;              ///< where it was read from; empty: pasted or dropped
    QString title;             ///< title of the chart it was exported from
    QString frequency;         ///< MHz as text; empty: unknown
    QString material;          ///< of the antenna or its cover, as the user names it
    QString correction;        ///< what was added to the levels; empty: nothing
    bool extrapolated = false; ///< the correction was taken from beyond its table
    /// What else is known, a sentence each: what its file says of maker, model or polarisation,
    /// how it was computed. Shown in the curve's tool tip and in the report.
    QStringList notes;
    /// What its pattern file tells of the antenna, as key and value: goes out again with the curve.
    QVector<QPair<QString, QString>> facts;
    bool isSaved = true; ///< a file holds the curve as it is
    bool isMask = false; ///< a limit for the others; it has no figures
    /// Of a difference of two curves, within the main part of the first.
    std::optional<CurveAlgebra::DifferenceFigures> difference;
};

bool operator==(const CurveRecord &a, const CurveRecord &b);
inline bool operator!=(const CurveRecord &a, const CurveRecord &b)
{
    return !(a == b);
}

/// All of one curve, to be put back later.
struct CurveState
{
    int key = 0; ///< a number that no other curve ever had, unlike the curves' own
    CurveLook look;
    QVector<QPointF> points; ///< shared with the chart
    CurveRecord record;
};

/// The curves of a polar and a cartesian chart view that always show the same ones.
///
/// Either view may take in, lose or change a curve by itself (paste, drop, import, graph manager);
/// the other then follows. A curve has one number, the same in both views.
class CurveSet : public QObject
{
    Q_OBJECT

public:
    /// Both views must be empty, and outlive the set.
    CurveSet(CurveView &polar, CurveView &cartesian, QObject *parent = nullptr);

    /// The numbers of the curves, ascending.
    QList<int> ids() const;
    QString name(int id) const;
    QColor color(int id) const;
    bool isHidden(int id) const;
    QVector<QPointF> points(int id) const;
    CurveRecord record(int id) const { return m_records.value(id); }
    bool hasName(const QString &name) const;
    /// \a name, or with " (2)", " (3)" ... behind it the first that no curve has.
    QString freeName(const QString &name) const;

    /// Adds a curve to both views and returns its number. The name must be free.
    int add(const QString &name, const QVector<QPointF> &points, const CurveRecord &record);
    void remove(int id);
    /// Replaces the points of curve \a id: a measurement under way.
    void setPoints(int id, const QVector<QPointF> &points);
    void setRecord(int id, const CurveRecord &record);
    /// Returns false, and changes nothing, when another curve has this name or it is empty.
    bool rename(int id, const QString &name);
    void setHidden(int id, bool hidden);

    CurveState state(int id) const;
    /// The number of the curve with \a key now, 0 when it is not there.
    int idOf(int key) const;
    /// Makes the curve with the key of \a state look and read as that says, and adds it when it is
    /// not there, perhaps under another number. A name that is taken is numbered.
    void restore(const CurveState &state);

    /// The number of the selected curve, 0 without one.
    int selected() const;
    /// Selects curve \a id in both views; 0 selects none.
    void select(int id);

signals:
    /// A curve came, went, or looks or is called otherwise.
    void changed();
    /// Another curve is selected; 0: none.
    void selectionChanged(int id);

private:
    const PathInfo *path(int id) const;
    void follow(CurveView &leader, CurveView &follower);
    void followLook(const CurveView &leader, CurveView &follower, int id);
    void followCurve(const PathInfo &curve, CurveView &follower);
    void followSelection(CurveView &leader);

    CurveView &m_polar;
    CurveView &m_cartesian;
    QMap<int, CurveRecord> m_records;
    QMap<int, int> m_keys; ///< by number
    int m_lastKey = 0;
    bool m_following = false; ///< changes of the views are our own doing
};
