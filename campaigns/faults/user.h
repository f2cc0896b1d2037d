#pragma once

#include "modalscript.h"
#include "scenario.h"

#include <QStringList>
#include <QTimer>

class ConsoleTester;
class Instrument;
class Witness;

/// Carries out the deeds of a scenario at the console, answers its boxes, and notes whenever a deed
/// took longer than the console may make anybody wait.
class User
{
public:
    User(const ConsoleTester &console, Instrument &instrument, Witness &witness);

    /// One deed; one that the console does not offer at the moment is left out.
    void perform(Deed deed);

    /// Whether the console says that the link is open.
    bool seesOpenLink() const;
    QStringList hangs() const { return m_hangs; }

private:
    void dispatch(Deed deed);
    void open();
    void openNowhere();
    void close();
    void poll();
    void set(Deed deed);
    void hastenTimers();
    ModalScript::Step answer();

    const ConsoleTester &m_console;
    Instrument &m_instrument;
    Witness &m_witness;
    ModalScript m_script;
    QTimer m_hastening;
    QStringList m_hangs;
};
