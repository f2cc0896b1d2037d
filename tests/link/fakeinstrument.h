#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTcpServer>
#include <QThread>

/// What the instrument does about one command line.
struct Answer
{
    /// The first goes out at once, each further one when `FakeInstrument::sendNextPiece` is called.
    QList<QByteArray> pieces;
    /// Whether the line is cut right behind the first piece.
    bool hangsUp = false;
};

class FakeWire;

/// An instrument that follows a script: the first command line gets the first answer, and so on;
/// lines beyond the script get none. It lives in a thread of its own, so that the link may block.
class FakeInstrument
{
public:
    /// \a linkMode as the link counts: 0 is at the end of a pseudo terminal, 1 of a TCP connection.
    explicit FakeInstrument(int linkMode, const QList<Answer> &answers = {});
    ~FakeInstrument();
    Q_DISABLE_COPY_MOVE(FakeInstrument)

    /// What `SerialLogic::openPort` needs to reach it.
    QString name() const;
    int value() const;

    /// The complete lines that came so far, with their newlines.
    QList<QByteArray> lines() const;

    /// Says something without being asked; back when the bytes are on their way.
    void say(const QByteArray &bytes);
    /// Sends the next piece of the answer that is under way, if there is one.
    void sendNextPiece();
    /// Pulls the cable.
    void hangUp();

private:
    template<typename Work>
    void runInThread(Work work) const;

    QThread m_thread;
    FakeWire *m_wire; // goes with the thread
};

/// A host that takes connections and never reads a byte.
class DeafHost
{
public:
    DeafHost();
    int port() const { return m_server.serverPort(); }

private:
    QTcpServer m_server;
};
