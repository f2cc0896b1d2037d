#include "patterns/viewactions.h"
#include "ui_patternwindow.h"

#include "patterns/curvedesk.h"
#include "patterns/curvehistory.h"
#include "patterns/windowcontext.h"

#include <QActionGroup>

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
    connect(m_ui.actionManageCurves, &QAction::triggered, form, [this, form] {
        const CurveHistory::Step step(m_desk.history(), tr("Manage Curves"));
        form->manageCurves();
    });
    setUpLanguages();
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
