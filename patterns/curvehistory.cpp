#include "patterns/curvehistory.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace {

/// Whether a step leads from \a a to \a b. Points alone are a measurement's, and hiding is no edit.
bool isEdit(const CurveState &a, const CurveState &b)
{
    CurveLook look = b.look;
    look.hidden = a.look.hidden;
    return a.look != look || a.record != b.record;
}

/// A word for what leads from \a before to \a after, which are not both empty.
QString wordFor(const QVector<CurveState> &before, const QVector<CurveState> &after)
{
    if (after.isEmpty())
        return CurveHistory::tr("Remove");
    if (before.isEmpty())
        return CurveHistory::tr("Paste");
    const CurveLook &from = before.first().look;
    const CurveLook &to = after.first().look;
    if (from.name != to.name)
        return CurveHistory::tr("Rename");
    if (from.color != to.color)
        return CurveHistory::tr("Recolour");
    return CurveHistory::tr("Edit");
}

} // namespace

/// One step: the curves that it changed, as they were and as they are.
class CurveHistory::Command : public QUndoCommand
{
public:
    Command(CurveHistory &history, const QString &text, QVector<CurveState> before,
            QVector<CurveState> after)
        : QUndoCommand(text)
        , m_history(history)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {}

    void undo() override
    {
        m_history.restore(m_after, m_before);
        if (m_after.size() > m_before.size())
            emit m_history.tookBack();
    }

    void redo() override
    {
        // The stack runs a command when it takes it; by then the change has happened.
        if (std::exchange(m_done, true))
            m_history.restore(m_before, m_after);
    }

private:
    CurveHistory &m_history;
    QVector<CurveState> m_before;
    QVector<CurveState> m_after;
    bool m_done = false;
};

CurveHistory::Step::Step(CurveHistory &history, const QString &text, Kind kind)
    : m_history(history)
    , m_text(text)
    , m_kind(kind)
{
    ++m_history.m_holders;
}

CurveHistory::Step::~Step()
{
    if (--m_history.m_holders > 0)
        return;
    if (m_kind == Kind::Undoable)
        m_history.record(m_text);
    else
        m_history.m_known = m_history.current();
}

CurveHistory::CurveHistory(CurveSet &curves, QObject *parent)
    : QObject(parent)
    , m_curves(curves)
    , m_known(current())
{
    m_steps.setUndoLimit(limit);
    connect(&m_curves, &CurveSet::changed, this, [this] {
        if (m_holders == 0)
            record({});
    });
}

CurveHistory::States CurveHistory::current() const
{
    States states;
    const QList<int> ids = m_curves.ids();
    for (const int id : ids) {
        const CurveState state = m_curves.state(id);
        states.insert(state.key, state);
    }
    return states;
}

void CurveHistory::record(const QString &text)
{
    const States now = current();
    QVector<CurveState> before;
    QVector<CurveState> after;
    for (const CurveState &state : qAsConst(m_known)) {
        const auto same = now.constFind(state.key);
        if (same == now.constEnd()) {
            before.append(state);
        } else if (isEdit(state, *same)) {
            before.append(state);
            after.append(*same);
        }
    }
    for (const CurveState &state : now) {
        if (!m_known.contains(state.key))
            after.append(state);
    }
    m_known = now;
    if (!before.isEmpty() || !after.isEmpty()) {
        const QString word = text.isEmpty() ? wordFor(before, after) : text;
        m_steps.push(new Command(*this, word, before, after));
    }
}

void CurveHistory::restore(const QVector<CurveState> &gone, const QVector<CurveState> &wanted)
{
    const Step ours(*this, {}, Kind::Final);
    // Names first come free, so that two curves may change theirs with each other.
    for (const CurveState &state : gone) {
        const auto keeps = [&state](const CurveState &other) { return other.key == state.key; };
        if (std::none_of(wanted.begin(), wanted.end(), keeps))
            m_curves.remove(m_curves.idOf(state.key));
    }
    for (const CurveState &state : wanted)
        m_curves.restore(state);
    if (!wanted.isEmpty())
        m_curves.select(m_curves.idOf(wanted.last().key));
}
