#pragma once

#include "fault.h"

#include <QHostAddress>
#include <QList>
#include <QStringList>

#include <optional>

namespace sim {

/// Everything that can be chosen on the command line.
struct Options
{
    QHostAddress address{QHostAddress::LocalHost};
    quint16 port = 5001;  ///< 0: one that is free
    bool serial = false;  ///< also offer a pseudo terminal
    double level = -20.0; ///< dBm
    QString pattern;      ///< curve file whose levels take the place of level; empty: none
    QString script;       ///< file with levels over the time; empty: none
    std::optional<quint16> rotatorPort; ///< 0: one that is free; nothing: no rotator
    double rotatorSpeed = 6.0;          ///< degrees a second
    QString replay;                     ///< a console's log to answer from; empty: none
    bool replayTiming = false;
    double noise = 0.05; ///< dB, of a single reading
    quint32 seed = 1;
    bool microSign = false;
    int operationTime = 3000; ///< ms that zeroing and calibration take
    bool trace = false;
    QList<Fault> faults;
    QList<Fault> rotatorFaults;
};

/// What the program is to do after reading its command line.
struct CommandLine
{
    enum class Action { Run, PrintAndSucceed, PrintAndFail };

    Action action = Action::Run;
    Options options;
    QString text; ///< what to print unless the action is Run
};

/// Reads \a arguments, the first of which is the program's name.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace sim
