#include "patterns/editactions.h"
#include "ui_patternwindow.h"

#include "2d/data/curvetext.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/editoperations.h"

#include <QApplication>
#include <QClipboard>

EditActions::EditActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_desk(desk)
{
    QUndoStack *steps = &m_desk.history().steps();
    connect(m_ui.actionUndo, &QAction::triggered, steps, &QUndoStack::undo);
    connect(m_ui.actionRedo, &QAction::triggered, steps, &QUndoStack::redo);
    connect(steps, &QUndoStack::indexChanged, this, &EditActions::showSteps);
    connect(m_ui.actionCopyCurve, &QAction::triggered, this, &EditActions::copy);
    connect(m_ui.actionPasteCurve, &QAction::triggered, this, &EditActions::paste);
    connect(m_ui.actionCopyParameters, &QAction::triggered, this, &EditActions::copyParameters);
    connect(m_ui.actionRemoveCurve, &QAction::triggered, this,
            [this] { m_desk.curves().remove(m_desk.curves().selected()); });
    addOperations();
    retranslate();
}

EditActions::~EditActions() = default;

void EditActions::addOperations()
{
    for (std::unique_ptr<CurveOperation> &operation : editOperations()) {
        CurveOperation *run = operation.get();
        auto *action = new QAction(this);
        connect(action, &QAction::triggered, this, [this, run] { run->run(m_desk); });
        m_ui.menuEdit->insertAction(m_ui.separatorOperations, action);
        m_entries.push_back({std::move(operation), action});
    }
}

void EditActions::retranslate()
{
    for (const Entry &entry : m_entries) {
        entry.action->setText(entry.operation->text());
        entry.action->setToolTip(entry.operation->tip());
        entry.action->setStatusTip(entry.operation->tip());
    }
    showSteps();
}

void EditActions::showSteps()
{
    const QUndoStack &steps = m_desk.history().steps();
    m_ui.actionUndo->setEnabled(steps.canUndo());
    m_ui.actionUndo->setText(steps.canUndo() ? tr("&Undo %1").arg(steps.undoText()) : tr("&Undo"));
    m_ui.actionRedo->setEnabled(steps.canRedo());
    m_ui.actionRedo->setText(steps.canRedo() ? tr("Re&do %1").arg(steps.redoText()) : tr("Re&do"));
}

void EditActions::update()
{
    const CurveSet &curves = m_desk.curves();
    const bool selected = curves.selected() != 0;
    m_ui.actionCopyCurve->setEnabled(selected);
    m_ui.actionRemoveCurve->setEnabled(selected);
    m_ui.actionCopyParameters->setEnabled(!curves.ids().isEmpty());
    for (const Entry &entry : m_entries)
        entry.action->setEnabled(entry.operation->isPossible(curves));
}

void EditActions::copy()
{
    const CurveSet &curves = m_desk.curves();
    const int id = curves.selected();
    if (id != 0) {
        QApplication::clipboard()->setText(
            CurveText::toClipboard(curves.name(id), curves.points(id)));
    }
}

void EditActions::paste()
{
    const CurveText::Curve curve = CurveText::fromClipboard(QApplication::clipboard()->text());
    if (curve.status != CurveText::Status::Complete) {
        m_desk.warn(tr("There is no curve on the clipboard."));
        return;
    }
    const CurveHistory::Step step(m_desk.history(), tr("Paste"));
    CurveRecord record;
    record.isSaved = false;
    // Numbers alone have no name that anybody chose.
    const QString name =
        curve.name.trimmed().isEmpty() ? m_desk.curves().freeName(tr("Pasted curve")) : curve.name;
    m_desk.form().addCurve(name, curve.points, record);
}

void EditActions::copyParameters()
{
    QApplication::clipboard()->setText(m_desk.form().parameterText());
    m_desk.tell(tr("The parameter table is on the clipboard."));
}
