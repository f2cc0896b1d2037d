#include "patterns/lossactions.h"
#include "ui_patternwindow.h"

#include "patterns/curvedesk.h"
#include "patterns/windowcontext.h"

#include <QDir>
#include <QFileDialog>

LossActions::LossActions(Ui::PatternWindow &ui, CurveDesk &desk, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_desk(desk)
{
    connect(m_ui.actionLoadLoss, &QAction::triggered, this, &LossActions::ask);
    connect(m_ui.actionApplyUplink, &QAction::triggered, this,
            [this] { apply(LossCorrection::Link::Up); });
    connect(m_ui.actionApplyDownlink, &QAction::triggered, this,
            [this] { apply(LossCorrection::Link::Down); });
    // Another window may have loaded a table, which all share.
    connect(m_ui.menuLoss, &QMenu::aboutToShow, this, &LossActions::update);
}

void LossActions::update()
{
    const bool possible = m_desk.curves().selected() != 0 && !LossCorrection::tableName().isEmpty();
    m_ui.actionApplyUplink->setEnabled(possible);
    m_ui.actionApplyDownlink->setEnabled(possible);
}

void LossActions::ask()
{
    const QString file = QFileDialog::getOpenFileName(m_desk.dialogParent(), tr("Load Loss Table"),
                                                      m_desk.context().folder(),
                                                      tr("Loss tables (*.csv);;All files (*)"));
    if (!file.isEmpty())
        loadTable(file);
}

bool LossActions::loadTable(const QString &file)
{
    const QString problem = LossCorrection::load(file);
    if (!problem.isEmpty()) {
        m_desk.warn(tr("The loss table could not be loaded: %1\n%2")
                        .arg(QDir::toNativeSeparators(file), problem));
        return false;
    }
    m_desk.context().rememberFolder(file);
    m_desk.tell(tr("Loss table loaded: %1").arg(LossCorrection::tableName()));
    update();
    return true;
}

void LossActions::apply(LossCorrection::Link link)
{
    const CurveSet &curves = m_desk.curves();
    const int id = curves.selected();
    if (id == 0)
        return;
    CurveRecord record = curves.record(id);
    bool known = false;
    const double frequency = record.frequency.toDouble(&known);
    if (!known) {
        m_desk.warn(tr("Please enter the frequency of \"%1\" in the list of curves first.")
                        .arg(curves.name(id)));
        return;
    }
    const std::optional<LossCorrection::Loss> loss = LossCorrection::at(link, frequency);
    if (!loss) {
        m_desk.warn(tr("The loss table cannot tell the loss at %1 MHz.").arg(record.frequency));
        return;
    }
    const bool up = link == LossCorrection::Link::Up;
    QString text = (up ? tr("up-link %1%2 dB") : tr("down-link %1%2 dB"))
                       .arg(loss->value < 0.0 ? QString() : QStringLiteral("+"))
                       .arg(loss->value, 0, 'f', 2);
    QString name = (up ? tr("%1, up-link") : tr("%1, down-link")).arg(curves.name(id));
    if (loss->extrapolated) {
        text = tr("%1 (extrapolated)").arg(text);
        name = tr("%1 (extrapolated)").arg(name);
    }
    record.correction += (record.correction.isEmpty() ? QString() : QStringLiteral("; ")) + text;
    record.extrapolated = record.extrapolated || loss->extrapolated;
    m_desk.addDerived(up ? tr("Correct Up-link") : tr("Correct Down-link"),
                      {{name, LossCorrection::corrected(curves.points(id), *loss), {}, record}});
}
