#include "patterns/viewactions.h"
#include "ui_patternwindow.h"

#include "2d/view/graphicsbase.h"
#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/windowcontext.h"

#include <QActionGroup>
#include <QInputDialog>

ViewActions::ViewActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_desk(desk)
{
    ListChart *form = &m_desk.form();
    connect(m_ui.actionFit, &QAction::triggered, form, &ListChart::fitToData);
    connect(m_ui.actionSymmetry, &QAction::triggered, form, [form] { form->setSymmetry(true); });
    connect(m_ui.actionUndoSymmetry, &QAction::triggered, form,
            [form] { form->setSymmetry(false); });
    connect(m_ui.actionParameterLines, &QAction::toggled, form, &ListChart::setParameterLines);
    connect(m_ui.actionBeamWidths, &QAction::triggered, this, &ViewActions::askBeamLevels);
    connect(m_ui.actionManageCurves, &QAction::triggered, form, [this, form] {
        const CurveHistory::Step step(m_desk.history(), tr("Manage Curves"));
        form->manageCurves();
    });
    WindowContext *context = &m_desk.context();
    connect(form, &ListChart::nullProminenceChosen, context, &WindowContext::setNullProminence);
    connect(context, &WindowContext::nullProminenceChanged, form, &ListChart::setNullProminence);
    form->setNullProminence(context->nullProminence());
    connect(context, &WindowContext::beamLevelsChanged, form, &ListChart::setBeamLevels);
    form->setBeamLevels(context->beamLevels());
    setUpMarkers();
    setUpPolarView();
    setUpLanguages();
}

void ViewActions::askBeamLevels()
{
    bool accepted = false;
    const QVector<double> shown = m_desk.context().beamLevels();
    const QString proposed = shown.isEmpty() ? QStringLiteral("-3, -6, -10") : dropsText(shown);
    const QString levels = QInputDialog::getText(
        m_desk.dialogParent(), tr("Beam Widths"),
        tr("Levels below the peak in dB, for instance -3, -6, -10; none hides them:"),
        QLineEdit::Normal, proposed, &accepted);
    if (!accepted)
        return;
    const std::optional<QVector<double>> drops = readDrops(levels);
    if (!drops) {
        m_desk.warn(tr("These are no levels: %1").arg(levels));
        return;
    }
    m_desk.context().setBeamLevels(*drops);
}

void ViewActions::setUpMarkers()
{
    ListChart *form = &m_desk.form();
    // Markers belong to the chart that they were made in: the one that is worked in.
    const auto jump = [this, form](QAction *action, MarkJump kind) {
        connect(action, &QAction::triggered, form, [this, form, kind] {
            GraphicsBase &view =
                form->polarChart().hasFocus() ? form->polarChart() : form->cartesianChart();
            if (!view.jumpMark(kind))
                m_desk.tell(tr("Please select a curve that has such a place."));
        });
    };
    jump(m_ui.actionMarkPeak, MarkJump::Peak);
    jump(m_ui.actionMarkNextPeak, MarkJump::NextPeak);
    jump(m_ui.actionMarkHalfPower, MarkJump::HalfPower);
    connect(m_ui.actionMarkDeltas, &QAction::toggled, form, [form](bool on) {
        form->polarChart().setMarkDeltas(on);
        form->cartesianChart().setMarkDeltas(on);
    });
}

void ViewActions::setUpPolarView()
{
    WindowContext *context = &m_desk.context();
    auto *orientations = new QActionGroup(this);
    const auto addOrientation = [&](QAction *action, PolarOrientation orientation) {
        orientations->addAction(action);
        connect(action, &QAction::triggered, context, [context, orientation] {
            PolarView view = context->polarView();
            view.orientation = orientation;
            context->setPolarView(view);
        });
    };
    addOrientation(m_ui.actionUpClockwise, PolarOrientation::UpClockwise);
    addOrientation(m_ui.actionUpCounterClockwise, PolarOrientation::UpCounterClockwise);
    addOrientation(m_ui.actionRightCounterClockwise, PolarOrientation::RightCounterClockwise);
    addOrientation(m_ui.actionDownClockwise, PolarOrientation::DownClockwise);
    auto *labels = new QActionGroup(this);
    const auto addLabels = [&](QAction *action, PolarLabels kind) {
        labels->addAction(action);
        connect(action, &QAction::triggered, context, [context, kind] {
            PolarView view = context->polarView();
            view.labels = kind;
            context->setPolarView(view);
        });
    };
    addLabels(m_ui.actionHalfCircles, PolarLabels::HalfCircles);
    addLabels(m_ui.actionWholeCircle, PolarLabels::WholeCircle);
    connect(context, &WindowContext::polarViewChanged, this, &ViewActions::showPolarView);
    showPolarView();
}

void ViewActions::showPolarView()
{
    const PolarView view = m_desk.context().polarView();
    m_desk.form().setPolarView(view);
    switch (view.orientation) {
    case PolarOrientation::UpClockwise:
        m_ui.actionUpClockwise->setChecked(true);
        break;
    case PolarOrientation::UpCounterClockwise:
        m_ui.actionUpCounterClockwise->setChecked(true);
        break;
    case PolarOrientation::RightCounterClockwise:
        m_ui.actionRightCounterClockwise->setChecked(true);
        break;
    case PolarOrientation::DownClockwise:
        m_ui.actionDownClockwise->setChecked(true);
        break;
    }
    const bool whole = view.labels == PolarLabels::WholeCircle;
    (whole ? m_ui.actionWholeCircle : m_ui.actionHalfCircles)->setChecked(true);
}

void ViewActions::setUpLanguages()
{
    auto *group = new QActionGroup(this);
    group->addAction(m_ui.actionEnglish);
    group->addAction(m_ui.actionChinese);
    WindowContext *context = &m_desk.context();
    const auto showLanguage = [this, context] {
        const bool chinese = context->language() == QStringLiteral("cn");
        (chinese ? m_ui.actionChinese : m_ui.actionEnglish)->setChecked(true);
    };
    connect(context, &WindowContext::languageChanged, this, showLanguage);
    connect(m_ui.actionEnglish, &QAction::triggered, context,
            [context] { context->setLanguage(QStringLiteral("en")); });
    connect(m_ui.actionChinese, &QAction::triggered, context,
            [context] { context->setLanguage(QStringLiteral("cn")); });
    showLanguage();
}

void ViewActions::update()
{
    const bool any = !m_desk.curves().ids().isEmpty();
    for (QAction *action : {m_ui.actionSymmetry, m_ui.actionUndoSymmetry, m_ui.actionManageCurves})
        action->setEnabled(any);
}
