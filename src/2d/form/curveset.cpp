#include "2d/form/curveset.h"

#include "2d/data/curvefrequency.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"

#include <QScopedValueRollback>

#include <algorithm>

CurveSet::CurveSet(GraphicsBase &polar, GraphicsBase &cartesian, QObject *parent)
    : QObject(parent)
    , m_polar(polar)
    , m_cartesian(cartesian)
{
    connect(&m_polar, &GraphicsBase::curvesChanged, this, [this] { follow(m_polar, m_cartesian); });
    connect(&m_cartesian, &GraphicsBase::curvesChanged, this,
            [this] { follow(m_cartesian, m_polar); });
    connect(&m_polar, &GraphicsBase::selectionChanged, this, [this] { followSelection(m_polar); });
    connect(&m_cartesian, &GraphicsBase::selectionChanged, this,
            [this] { followSelection(m_cartesian); });
}

QList<int> CurveSet::ids() const
{
    return m_polar.paths().keys();
}

const PathInfo *CurveSet::path(int id) const
{
    return m_polar.paths().value(id);
}

QString CurveSet::name(int id) const
{
    const PathInfo *curve = path(id);
    return curve != nullptr ? curve->name() : QString();
}

QColor CurveSet::color(int id) const
{
    const PathInfo *curve = path(id);
    return curve != nullptr ? curve->color() : QColor();
}

bool CurveSet::isHidden(int id) const
{
    const PathInfo *curve = path(id);
    return curve == nullptr || curve->isHidden();
}

QVector<QPointF> CurveSet::points(int id) const
{
    const PathInfo *curve = path(id);
    return curve != nullptr ? curve->points() : QVector<QPointF>();
}

bool CurveSet::hasName(const QString &name) const
{
    const QMap<int, PathInfo *> &paths = m_polar.paths();
    return std::any_of(paths.begin(), paths.end(),
                       [&name](const PathInfo *path) { return path->name() == name; });
}

int CurveSet::add(const QString &name, const QVector<QPointF> &points, const CurveRecord &record)
{
    int id = 0;
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        id = m_polar.addCurve(name, points)->pathId();
        m_records.insert(id, record);
    }
    follow(m_polar, m_cartesian);
    return id;
}

void CurveSet::remove(int id)
{
    if (m_polar.paths().contains(id))
        m_polar.clearChart(id);
}

void CurveSet::setRecord(int id, const CurveRecord &record)
{
    if (!m_polar.paths().contains(id))
        return;
    m_records.insert(id, record);
    emit changed();
}

bool CurveSet::rename(int id, const QString &name)
{
    PathInfo *curve = m_polar.paths().value(id);
    if (curve == nullptr || name.trimmed().isEmpty())
        return false;
    if (name == curve->name())
        return true;
    if (hasName(name))
        return false;
    curve->setName(name);
    return true;
}

void CurveSet::setHidden(int id, bool hidden)
{
    if (PathInfo *curve = m_polar.paths().value(id))
        curve->setHidden(hidden);
}

int CurveSet::selected() const
{
    const PathInfo *curve = m_polar.selectedPath();
    return curve != nullptr ? curve->pathId() : 0;
}

void CurveSet::select(int id)
{
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        m_polar.updatePathSelection(id);
        m_cartesian.updatePathSelection(id);
    }
    emit selectionChanged(id);
}

/// The views number their curves alike as long as every change reaches both of them, one by one.
void CurveSet::follow(GraphicsBase &leader, GraphicsBase &follower)
{
    if (m_following)
        return;
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        const QList<int> known = follower.paths().keys();
        for (const int id : known) {
            if (!leader.paths().contains(id)) {
                follower.clearChart(id);
                m_records.remove(id);
            }
        }
        const QMap<int, PathInfo *> &curves = leader.paths();
        for (const PathInfo *curve : curves)
            followCurve(*curve, follower);
    }
    emit changed();
}

void CurveSet::followCurve(const PathInfo &curve, GraphicsBase &follower)
{
    const int id = curve.pathId();
    PathInfo *twin = follower.paths().value(id);
    if (twin == nullptr) {
        twin = follower.addCurve(curve.name(), curve.points());
        Q_ASSERT(twin->pathId() == id);
    }
    if (!m_records.contains(id)) {
        CurveRecord record;
        record.frequency = frequencyInName(curve.name());
        m_records.insert(id, record);
    }
    if (twin->name() != curve.name())
        twin->setName(curve.name());
    if (twin->color() != curve.color())
        twin->setColor(curve.color());
    if (twin->lineWidth() != curve.lineWidth())
        twin->setLineWidth(curve.lineWidth());
    if (twin->isHidden() != curve.isHidden())
        twin->setHidden(curve.isHidden());
}

void CurveSet::followSelection(GraphicsBase &leader)
{
    if (m_following)
        return;
    const PathInfo *curve = leader.selectedPath();
    select(curve != nullptr ? curve->pathId() : 0);
}
