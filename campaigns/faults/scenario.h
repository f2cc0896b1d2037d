#pragma once

#include "Logic/linkmode.h"

#include <QStringList>
#include <QVector>

/// What the user does, or what somebody does to the instrument meanwhile.
enum class Deed {
    Open,
    OpenNowhere, ///< opens a port or an address behind which there is nothing
    Poll,        ///< waits until the console was told of one more reading, or the link ended
    SetFrequency,
    SetOffset,
    SetAverageCount,
    RelativeOn,
    RelativeOff,
    ShowWatts,
    ShowDbm,
    Zero,
    Calibrate,
    Record,
    Close,
    ReadAndClose,     ///< closes with a reading just under way, before anything else can happen
    StopInstrument,   ///< ends the instrument's process
    OccupyInstrument, ///< another client takes the instrument's one connection
    LeaveInstrument,  ///< and gives it back
};

/// How the link has to stand when all deeds are done and the console has come to rest.
enum class Ending { Open, Closed, Either };

/// One row of the campaign; its name alone says everything about it.
struct Scenario
{
    QString name;  ///< "tcp/GET?, third/drop-inside", or "tcp/random/SEED"
    QString group; ///< what the report counts it under
    LinkMode mode = serialLink;
    QStringList faults; ///< as the simulator takes them
    QVector<Deed> deeds;
    Ending outcome = Ending::Either;
    int errorBoxes = -1;      ///< how many there must be; -1: it depends
    bool reachesFault = true; ///< whether the faults must have befallen something
};
