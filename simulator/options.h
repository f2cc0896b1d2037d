#pragma once

#include "fault.h"

#include <QHostAddress>
#include <QList>
#include <QStringList>

namespace sim {

/// Everything that can be chosen on the command line.
struct Options
{
    QHostAddress address{QHostAddress::LocalHost};
    quint16 port = 5001;  ///< 0: one that is free
    bool serial = false;  ///< also offer a pseudo terminal
    double level = -20.0; ///< dBm
    double noise = 0.05;  ///< dB, of a single reading
    quint32 seed = 1;
    bool microSign = false;
    int operationTime = 3000; ///< ms that zeroing and calibration take
    bool trace = false;
    QList<Fault> faults;
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
