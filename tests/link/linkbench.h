#pragma once

#include "Logic/seriallogic.h"
#include "fakeinstrument.h"

#include <QIODevice>
#include <QStringList>

class QTestData;

/// The answer that is \a line and a newline.
Answer says(const char *line);

/// A row of a test that runs over both roads; its first column is \a linkMode.
QTestData &newRow(int linkMode, const char *name = "");

/// The text of a literal in UTF-8.
inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A link with a record of everything that it tells.
class RecordedLink
{
public:
    /// \a linkMode is 0 for serial, 1 for TCP.
    explicit RecordedLink(int linkMode);

    /// The port or socket that the link uses.
    QIODevice *device() const;
    /// Whether the device at this end of the line is up.
    bool isUp() const;
    /// Lets reads give up after a moment, for answers that never come.
    void shortenReading();

    const int mode;
    LinkWaits waits;
    SerialLogic link;

    QStringList values;    ///< the update signals in order, as "frequency 2.45 'GHz'"
    QStringList errors;    ///< the messages for the user
    QStringList displayed; ///< the lines for the on-screen log

private:
    void record();
};

/// A recorded link and the fake instrument at its other end.
class LinkBench : public RecordedLink
{
public:
    explicit LinkBench(int linkMode, const QList<Answer> &answers = {});

    /// Opens the link to the instrument.
    bool open();
    /// Lets the further pieces of an answer follow, each when the one before it has arrived.
    void letPiecesFollow();

    FakeInstrument instrument;
};
