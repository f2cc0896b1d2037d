#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace sim {

/// What can go wrong with an instrument or on the way to it.
enum class FaultKind {
    NoReply,
    Late,
    Pieces,
    TwoLines,
    NoNewline,
    Garbage,
    Refuse,
    NumericFrequency,
    DropBefore,
    DropInside,
    DropAfter,
    CalSilent,
    CalFail,
};

/// A fault, and which of the commands that it concerns it befalls.
struct Fault
{
    FaultKind kind = FaultKind::NoReply;
    bool ofRotator = false;   ///< else of the instrument
    int amount = 0;           ///< Late: ms; Pieces: ms between two; Garbage: bytes
    QByteArray only;          ///< the header of the one command it befalls; empty: any
    int after = 0;            ///< how many commands pass unharmed first
    int every = 1;            ///< then each how-manieth is befallen
    int times = 0;            ///< how often at most; 0: no limit
    double probability = 1.0; ///< of befalling a command that is due

    /// Whether this can do anything to the command in \a line at all; others do not count.
    bool concerns(const QByteArray &line) const;
};

/// Reads "KIND[:PARAM][,only=COMMAND][,after=N][,every=N][,times=N][,p=0..1]". Returns nothing, and
/// an explanation in \a error, for anything else.
std::optional<Fault> parseFault(const QString &text, QString *error);
/// The same for a fault of the turntable, where COMMAND is one of its letters.
std::optional<Fault> parseRotatorFault(const QString &text, QString *error);

/// The name of \a kind, as parseFault() reads it.
QByteArray faultName(FaultKind kind);

/// The kinds and qualifiers, a line each, for the help.
QString faultHelp();

} // namespace sim
