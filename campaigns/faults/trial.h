#pragma once

#include "consoletester.h"
#include "instrument.h"
#include "result.h"
#include "scenario.h"
#include "user.h"
#include "witness.h"

/// One scenario at one console: the deeds under faults, a close, a new link to a sound instrument,
/// and the end of the console, with the checks that belong to each.
class Trial
{
public:
    explicit Trial(const Scenario &scenario);

    Result run();

private:
    void sufferFaults();
    void checkRest();
    void checkOutcome();
    void checkClosing();
    void checkNewLink();
    QStringList faultsOfState() const;
    QStringList faultsOfPanel();
    void open();

    Scenario m_scenario;
    Instrument m_instrument;
    ConsoleTester m_console;
    Witness m_witness;
    User m_user;
    Result m_result;
};
