#pragma once

#include <QColor>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QVector>

class GraphicsBase;
class PathInfo;

/// What is known of a curve beside what the chart draws.
struct CurveRecord
{
    QString file;              ///< where it was read from; empty: pasted or dropped
    QString title;             ///< title of the chart it was exported from
    QString frequency;         ///< MHz as text; empty: unknown
    QString material;          ///< of the antenna or its cover, as the operator names it
    QString correction;        ///< what was added to the levels; empty: nothing
    bool extrapolated = false; ///< the correction was taken from beyond its table
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
    CurveSet(GraphicsBase &polar, GraphicsBase &cartesian, QObject *parent = nullptr);

    /// The numbers of the curves, ascending.
    QList<int> ids() const;
    QString name(int id) const;
    QColor color(int id) const;
    bool isHidden(int id) const;
    QVector<QPointF> points(int id) const;
    CurveRecord record(int id) const { return m_records.value(id); }
    bool hasName(const QString &name) const;

    /// Adds a curve to both views and returns its number. The name must be free.
    int add(const QString &name, const QVector<QPointF> &points, const CurveRecord &record);
    void remove(int id);
    void setRecord(int id, const CurveRecord &record);
    /// Returns false, and changes nothing, when another curve has this name or it is empty.
    bool rename(int id, const QString &name);
    void setHidden(int id, bool hidden);

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
    void follow(GraphicsBase &leader, GraphicsBase &follower);
    void followCurve(const PathInfo &curve, GraphicsBase &follower);
    void followSelection(GraphicsBase &leader);

    GraphicsBase &m_polar;
    GraphicsBase &m_cartesian;
    QMap<int, CurveRecord> m_records;
    bool m_following = false; ///< changes of the views are our own doing
};
