#include "2d/form/curveset.h"

#include "2d/data/curvefrequency.h"
#include "2d/view/curveview.h"
#include "2d/view/pathinfo.h"

#include <QScopedValueRollback>

#include <algorithm>

bool operator==(const CurveRecord &a, const CurveRecord &b)
{
    return a.file == b.file && a.title == b.title && a.frequency == b.frequency &&
           a.material == b.material && a.correction == b.correction &&
           a.extrapolated == b.extrapolated && a.notes == b.notes && a.facts == b.facts &&
           a.isSaved == b.isSaved && a.isMask == b.isMask && a.difference == b.difference;
}

CurveSet::CurveSet(CurveView &polar, CurveView &cartesian, QObject *parent)
    : QObject(parent)
    , m_polar(polar)
    , m_cartesian(cartesian)
{
    connect(&m_polar, &CurveView::curvesChanged, this, [this] { follow(m_polar, m_cartesian); });
    connect(&m_cartesian, &CurveView::curvesChanged, this,
            [this] { follow(m_cartesian, m_polar); });
    connect(&m_polar, &CurveView::lookChanged, this,
            [this](int id) { followLook(m_polar, m_cartesian, id); });
    connect(&m_cartesian, &CurveView::lookChanged, this,
            [this](int id) { followLook(m_cartesian, m_polar, id); });
    connect(&m_polar, &CurveView::selectionChanged, this, [this] { followSelection(m_polar); });
    connect(&m_cartesian, &CurveView::selectionChanged, this,
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

QString CurveSet::freeName(const QString &name) const
{
    QString free = name;
    for (int number = 2; hasName(free); ++number)
        free = QStringLiteral("%1 (%2)").arg(name).arg(number);
    return free;
}

int CurveSet::add(const QString &name, const QVector<QPointF> &points, const CurveRecord &record)
{
    int id = 0;
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        id = m_polar.addCurve(name, points)->pathId();
        m_records.insert(id, record);
        m_keys.insert(id, ++m_lastKey);
    }
    follow(m_polar, m_cartesian);
    return id;
}

void CurveSet::setPoints(int id, const QVector<QPointF> &points)
{
    for (CurveView *view : {&m_polar, &m_cartesian}) {
        if (PathInfo *curve = view->paths().value(id)) {
            curve->setPoints(points);
            view->rebuildPath(id);
        }
    }
    emit changed();
}

CurveState CurveSet::state(int id) const
{
    const PathInfo *curve = path(id);
    if (curve == nullptr)
        return {};
    return {m_keys.value(id), curve->look(), curve->points(), record(id)};
}

int CurveSet::idOf(int key) const
{
    return m_keys.key(key);
}

void CurveSet::restore(const CurveState &state)
{
    CurveLook look = state.look;
    int id = idOf(state.key);
    if (id == 0 || name(id) != look.name)
        look.name = freeName(look.name);
    if (id != 0)
        look.hidden = isHidden(id);
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        const bool isNew = id == 0;
        for (CurveView *view : {&m_polar, &m_cartesian}) {
            if (isNew)
                id = view->addCurve(look.name, state.points)->pathId();
            view->paths().value(id)->setLook(look);
        }
        m_keys.insert(id, state.key);
        m_records.insert(id, state.record);
    }
    emit changed();
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
void CurveSet::follow(CurveView &leader, CurveView &follower)
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
                m_keys.remove(id);
            }
        }
        const QMap<int, PathInfo *> &curves = leader.paths();
        for (const PathInfo *curve : curves)
            followCurve(*curve, follower);
    }
    emit changed();
}

void CurveSet::followLook(const CurveView &leader, CurveView &follower, int id)
{
    if (m_following)
        return;
    {
        const QScopedValueRollback<bool> ours(m_following, true);
        followCurve(*leader.paths().value(id), follower);
    }
    emit changed();
}

void CurveSet::followCurve(const PathInfo &curve, CurveView &follower)
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
        record.isSaved = false;
        m_records.insert(id, record);
        m_keys.insert(id, ++m_lastKey);
    }
    if (twin->look().name != curve.name())
        m_records[id].isSaved = false;
    twin->setLook(curve.look());
}

void CurveSet::followSelection(CurveView &leader)
{
    if (m_following)
        return;
    const PathInfo *curve = leader.selectedPath();
    select(curve != nullptr ? curve->pathId() : 0);
}
