#include "trial.h"

#include "Logic/seriallogic.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QRadioButton>

namespace {

constexpr int patience = 10000; // ms
constexpr int silence = 200;    // ms, several times what any hastened timer takes

} // namespace

Trial::Trial(const Scenario &scenario)
    : m_scenario(scenario)
    , m_instrument(scenario.mode, scenario.faults)
    , m_witness(m_console, m_instrument)
    , m_user(m_console, m_instrument, m_witness)
{}

Result Trial::run()
{
    if (m_instrument.start(true)) {
        sufferFaults();
        checkRest();
        checkOutcome();
        checkClosing();
        checkNewLink();
    } else {
        m_result.add("reach", {QStringLiteral("the simulator did not start")});
    }
    m_console.end();
    m_result.add("hang", m_user.hangs());
    m_result.add("boxes", m_witness.faultsOfBoxes());
    m_result.add("rows", m_witness.faultsOfRows());
    m_result.faults = m_instrument.befallen();
    m_result.rows = m_witness.rows();
    m_result.boxes = m_witness.boxes().size();
    if (m_scenario.reachesFault && m_result.faults.isEmpty())
        m_result.add("reach", {QStringLiteral("no fault befell anything")});
    return m_result;
}

void Trial::sufferFaults()
{
    for (const Deed deed : qAsConst(m_scenario.deeds)) {
        m_user.perform(deed);
        m_result.links += deed == Deed::Open || deed == Deed::OpenNowhere ? 1 : 0;
    }
}

QStringList Trial::faultsOfState() const
{
    QStringList faults = m_console.faultsOfState(m_user.seesOpenLink());
    // Relative readings have no other unit.
    if (m_console.find<QRadioButton>("radioButtonRelativeON")->isChecked())
        faults.removeAll(QStringLiteral("groupBoxUnit"));
    return faults;
}

void Trial::checkRest()
{
    // A link that is shown as open must be one: the instrument goes on being asked.
    const int polls = m_instrument.polls();
    const auto isAsked = [&] { return m_instrument.polls() > polls; };
    waitFor([&] { return !m_user.seesOpenLink() || isAsked(); }, patience);
    if (m_user.seesOpenLink() && !isAsked())
        m_result.add("state", {QStringLiteral("shown as open, but nobody asks the instrument")});
    waitFor([this] { return faultsOfState().isEmpty(); }, patience);
    m_result.add("state", faultsOfState());
}

void Trial::checkOutcome()
{
    const bool open = m_user.seesOpenLink();
    if ((m_scenario.outcome == Ending::Open && !open) ||
        (m_scenario.outcome == Ending::Closed && open))
        m_result.add("state", {QStringLiteral("ended ") + m_console.text("labelLink")});
    if (m_scenario.errorBoxes >= 0 && m_witness.errorBoxes() != m_scenario.errorBoxes)
        m_result.add("boxes", {QStringLiteral("%1 error boxes instead of %2: ")
                                   .arg(m_witness.errorBoxes())
                                   .arg(m_scenario.errorBoxes) +
                               m_witness.boxes().join(QStringLiteral("; "))});
}

void Trial::checkClosing()
{
    const int boxes = m_witness.boxes().size();
    m_user.perform(Deed::Close);
    const int rows = m_witness.rows();
    const int polls = m_witness.polls();
    QTest::qWait(silence);
    m_witness.readRows();
    if (m_witness.boxes().size() > boxes)
        m_result.add("boxes",
                     {QStringLiteral("a box after the close: ") + m_witness.boxes().last()});
    if (m_witness.rows() > rows)
        m_result.add("rows",
                     {QStringLiteral("%1 rows after the close").arg(m_witness.rows() - rows)});
    if (m_witness.polls() > polls)
        m_result.add("state", {QStringLiteral("polled after the close")});
    m_result.add("state", faultsOfState());
}

void Trial::open()
{
    if (!m_instrument.isSound() && !m_instrument.start(false)) {
        m_result.add("reach", {QStringLiteral("the sound simulator did not start")});
        return;
    }
    m_console.window().findChild<SerialLogic *>()->setWaits(LinkWaits());
    m_witness.expectNoFaults();
    m_user.perform(Deed::Open);
    ++m_result.links;
}

void Trial::checkNewLink()
{
    const int boxes = m_witness.boxes().size();
    open();
    waitFor([this] { return m_witness.trueRows() > 0; }, patience);
    if (!m_user.seesOpenLink())
        m_result.add("reopen", {QStringLiteral("not open: ") + m_console.text("labelLink")});
    if (m_witness.trueRows() == 0)
        m_result.add("reopen", {QStringLiteral("no true reading was recorded")});
    m_result.add("reopen", faultsOfState() + faultsOfPanel());
    if (m_witness.boxes().size() > boxes)
        m_result.add("reopen", {m_witness.boxes().last()});
}

QStringList Trial::faultsOfPanel()
{
    QStringList faults;
    const auto compare = [&](const char *query, const QString &shown) {
        const QString held = m_instrument.lastReply(QLatin1String(query));
        if (shown != held)
            faults.append(
                QStringLiteral("%1 shows %2 for %3").arg(QLatin1String(query), shown, held));
    };
    const auto isChecked = [this](const char *button) {
        return m_console.find<QRadioButton>(button)->isChecked();
    };
    const QString unit = m_console.find<QComboBox>("comboBoxUnit")->currentText();
    const double frequency = m_console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value();
    compare("*IDN?", m_console.text("labelIdentity"));
    compare("FREQ?", QString::number(frequency, 'g', 12) + unit);
    compare("OFFS?", QString::number(m_console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->value(),
                                     'f', 2) +
                         QStringLiteral("dB"));
    compare("AVER:COUN?",
            QString::number(m_console.find<QSpinBox>("spinBoxAverageCount")->value()));
    compare("REL?",
            isChecked("radioButtonRelativeON") ? QStringLiteral("ON") : QStringLiteral("OFF"));
    compare("UNIT:POW?", isChecked("radioButtondBm") ? QStringLiteral("dBm") : QStringLiteral("W"));
    return faults;
}
