#include "user.h"

#include "Logic/seriallogic.h"
#include "consoletester.h"
#include "instrument.h"
#include "witness.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QMessageBox>

#include <array>

namespace {

constexpr int mostBoxes = 100;
constexpr int boxTime = 60;        // ms that a box stays on the screen
constexpr int pollPatience = 3000; // ms

/// A hundredth to a thousandth of the time that the console takes between two of the same.
struct Pace
{
    const char *timer;
    int interval; // ms
};
constexpr std::array<Pace, 4> paces{
    {{"readTimer", 20}, {"firstSaveTimer", 40}, {"saveTimer", 60}, {"loadingTimer", 120}}};

/// No deed sends more than six commands or waits for more than one task of 30 ticks; each command
/// waits for its write, thrice over TCP, and for up to two pieces of its reply. The rest is for a
/// machine that is busy with other things.
constexpr LinkWaits waits{1000, 300, 200, 600, 100};
constexpr int longestDeed =
    2 * waits.connecting + 6 * (3 * waits.tcpWriting + 2 * waits.reading) + 30 * 120 + 5000;

} // namespace

User::User(const ConsoleTester &console, Instrument &instrument, Witness &witness)
    : m_console(console)
    , m_instrument(instrument)
    , m_witness(witness)
    , m_script(QVector<ModalScript::Step>(mostBoxes, answer()))
{
    m_console.window().findChild<SerialLogic *>()->setWaits(waits);
    QObject::connect(&m_hastening, &QTimer::timeout, &m_console.window(),
                     [this] { hastenTimers(); });
    m_hastening.start(5);
}

void User::hastenTimers()
{
    for (const Pace &pace : paces) {
        auto *timer = m_console.find<QTimer>(pace.timer);
        if (timer->isActive() && timer->interval() > pace.interval)
            timer->setInterval(pace.interval);
    }
}

ModalScript::Step User::answer()
{
    return [this](QWidget *window) {
        ModalScript::leaveOpen(window);
        const auto *box = qobject_cast<QMessageBox *>(window);
        if (!box)
            return; // the wait for a result, which nobody can answer
        m_witness.sawBox(box->windowTitle(), box->text());
        // Not at once: what must not go on behind a box has time to.
        QTimer::singleShot(boxTime, window, &QWidget::close);
    };
}

bool User::seesOpenLink() const
{
    return m_console.text("labelLink").contains(QStringLiteral("blue"));
}

void User::perform(Deed deed)
{
    QElapsedTimer time;
    time.start();
    dispatch(deed);
    if (time.elapsed() > longestDeed)
        m_hangs.append(QStringLiteral("deed %1 took %2 ms").arg(int(deed)).arg(time.elapsed()));
    m_witness.readRows();
}

void User::dispatch(Deed deed)
{
    switch (deed) {
    case Deed::Open:
        return open();
    case Deed::OpenNowhere:
        return openNowhere();
    case Deed::Close:
        return close();
    case Deed::ReadAndClose:
        m_console.window().readValue();
        return close();
    case Deed::Poll:
        return poll();
    case Deed::StopInstrument:
        return m_instrument.stop();
    case Deed::OccupyInstrument:
        return m_instrument.occupy();
    case Deed::LeaveInstrument:
        return m_instrument.leave();
    default:
        return set(deed);
    }
}

void User::open()
{
    const bool serial = m_instrument.mode() == serialLink;
    const char *action = serial ? "actionCommunication_by_Serial" : "actionCommunication_by_LAN";
    if (!m_console.find<QAction>(action)->isChecked())
        m_console.trigger(action);
    const QString port = m_instrument.port();
    m_witness.linkBegins();
    m_console.window().openPort(port, m_instrument.portValue());
}

void User::openNowhere()
{
    const bool serial = m_instrument.mode() == serialLink;
    if (!serial)
        m_console.trigger("actionCommunication_by_LAN");
    m_witness.linkBegins();
    // Port 1 of the loopback address is refused at once.
    m_console.window().openPort(
        serial ? QStringLiteral("/dev/no such port") : QStringLiteral("127.0.0.1"), 1);
}

void User::close()
{
    if (m_instrument.mode() == serialLink)
        m_console.click("btnClose");
    else
        m_console.trigger("actionDisconnect");
}

void User::poll()
{
    const int before = m_witness.readings();
    waitFor([&] { return m_witness.readings() > before || !seesOpenLink(); }, pollPatience);
}

void User::set(Deed deed)
{
    if (!m_console.isEnabled("groupBoxSystem"))
        return;
    switch (deed) {
    case Deed::SetFrequency:
        m_console.find<QComboBox>("comboBoxUnit")->setCurrentText(QStringLiteral("MHz"));
        m_console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->setValue(2450);
        return m_console.click("btnSetFreq");
    case Deed::SetOffset:
        m_console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->setValue(3.5);
        return m_console.click("btnSetOffset");
    case Deed::SetAverageCount:
        m_console.find<QSpinBox>("spinBoxAverageCount")->setValue(4);
        return m_console.click("btnSetAverageCount");
    case Deed::RelativeOn:
        return m_console.click("radioButtonRelativeON");
    case Deed::RelativeOff:
        return m_console.click("radioButtonRelativeOFF");
    case Deed::ShowWatts:
        return m_console.click("radioButtonW");
    case Deed::ShowDbm:
        return m_console.click("radioButtondBm");
    case Deed::Record:
        return m_console.click("btnReset");
    case Deed::Zero:
    case Deed::Calibrate:
        m_witness.taskBegins();
        return m_console.click(deed == Deed::Zero ? "btnSetZero" : "btnCalibration");
    default:
        Q_UNREACHABLE();
    }
}
