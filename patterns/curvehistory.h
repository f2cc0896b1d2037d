#pragma once

#include "2d/form/curveset.h"

#include <QHash>
#include <QObject>
#include <QUndoStack>

/// The steps that can be undone in one window: curves that were removed, renamed, recoloured,
/// pasted or computed, whatever menu, table or chart did it.
///
/// The history watches the set and takes every change for a step of its own. Code that makes
/// several changes, or knows a better word for them, holds a Step meanwhile. Visibility and points
/// that a measurement adds to its curve are no steps.
class CurveHistory : public QObject
{
    Q_OBJECT

public:
    /// So many steps are kept.
    static constexpr int limit = 20;

    /// Whether the changes in its lifetime can be undone.
    enum class Kind {
        Undoable, ///< together they are one step
        Final     ///< they are none, as opening a file: what was there before is not touched
    };

    /// Joins all changes of its lifetime. Steps inside a step belong to the outer one.
    class Step
    {
    public:
        /// \a text names the step in the menu, "Undo %1"; empty: after what was changed.
        explicit Step(CurveHistory &history, const QString &text = {}, Kind kind = Kind::Undoable);
        ~Step();
        Step(const Step &) = delete;
        Step &operator=(const Step &) = delete;

    private:
        CurveHistory &m_history;
        QString m_text;
        Kind m_kind;
    };

    /// \a curves must outlive the history.
    explicit CurveHistory(CurveSet &curves, QObject *parent = nullptr);

    QUndoStack &steps() { return m_steps; }

signals:
    /// Undoing a step took away curves that it had added.
    void tookBack();

private:
    friend class Step;
    class Command;
    using States = QMap<int, CurveState>; // by key

    States current() const;
    void record(const QString &text);
    void restore(const QVector<CurveState> &gone, const QVector<CurveState> &wanted);

    CurveSet &m_curves;
    QUndoStack m_steps;
    States m_known;    ///< the curves as the last step left them
    int m_holders = 0; ///< steps under way, and our own doing
};
