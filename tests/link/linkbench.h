#pragma once

#include "Logic/seriallogic.h"
#include "fakeinstrument.h"
#include "testfiles.h"

#include <QIODevice>
#include <QStringList>

#include <functional>

/// What a test does with a link.
using Action = std::function<void(SerialLogic &)>;

/// The call of \a slot with \a values.
template<typename... Arguments, typename... Values>
Action call(void (SerialLogic::*slot)(Arguments...), const Values &...values)
{
    return [=](SerialLogic &link) { (link.*slot)(values...); };
}

constexpr int serial = 0;
constexpr int tcp = 1;

/// The global data of tests that run over both transports: the column \a mode.
void addBothRoads();

/// The answer that is \a line and a newline.
Answer says(const QByteArray &line);

/// A link with a record of everything that it tells.
class RecordedLink
{
public:
    explicit RecordedLink(int linkMode);

    /// The port or socket that the link uses.
    QIODevice *device() const;
    /// Whether the device at this end of the line is up.
    bool isUp() const;
    /// Lets reads give up after a moment, for answers that never come.
    void shortenReading();
    /// The update signals in order, as "frequency 2.45 'GHz', zeroed".
    QString told() const { return m_told.join(QLatin1String(", ")); }

    const int mode;
    const QString notOpen; ///< what the user is told of a command without a line
    LinkWaits waits;
    SerialLogic link;

    QStringList errors;    ///< the messages for the user
    QStringList displayed; ///< the lines for the on-screen log

private:
    template<typename... Values>
    void record(void (SerialLogic::*signal)(Values...), const char *format);

    QStringList m_told;
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
