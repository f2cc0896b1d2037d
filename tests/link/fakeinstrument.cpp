#include "fakeinstrument.h"

#include "ptylink.h"
#include "tcplink.h"

#include <QEventLoop>
#include <QFile>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

/// The instrument's end of the line, with the script of what is said on it.
class FakeWire : public QObject
{
public:
    virtual void open() = 0;
    /// Waits for the client, which may be connected before this thread has heard of it.
    virtual bool reachClient() { return link != nullptr; }

    void write(const QByteArray &bytes)
    {
        if (reachClient())
            link->send(bytes);
    }

    void hangUp()
    {
        if (reachClient())
            link.reset();
    }

    void sendNextPiece()
    {
        if (!m_pieces.isEmpty())
            write(m_pieces.takeFirst());
    }

    QString name;
    int value = 0;
    QList<Answer> answers;
    QList<QByteArray> lines;

protected:
    void use(sim::Link *wire)
    {
        link.reset(wire);
        connect(wire, &sim::Link::received, this, &FakeWire::take);
    }

    std::unique_ptr<sim::Link> link;

private:
    void take(const QByteArray &bytes)
    {
        m_received += bytes;
        for (int end = m_received.indexOf('\n'); end >= 0; end = m_received.indexOf('\n')) {
            lines.append(m_received.left(end + 1));
            m_received.remove(0, end + 1);
            const Answer answer = answers.isEmpty() ? Answer() : answers.takeFirst();
            m_pieces = answer.pieces;
            sendNextPiece();
            if (answer.hangsUp)
                link->drop();
        }
    }

    QByteArray m_received;
    QList<QByteArray> m_pieces;
};

namespace {

class TcpWire : public FakeWire
{
public:
    void open() override
    {
        m_server.listen(QHostAddress::LocalHost);
        name = m_server.serverAddress().toString();
        value = m_server.serverPort();
        connect(&m_server, &QTcpServer::newConnection, this,
                [this] { use(new sim::TcpLink(m_server.nextPendingConnection())); });
    }

    bool reachClient() override { return link || m_server.waitForNewConnection(5000); }

private:
    QTcpServer m_server{this};
};

class SerialWire : public FakeWire
{
public:
    void open() override
    {
        auto *terminal = new sim::PtyLink;
        QString error;
        if (!terminal->open(&error))
            qFatal("%s", qPrintable(error));
        name = terminal->path();
        value = 115200;
        // Somebody else has the port open as well, so that it is watched from the start.
        const int file = ::open(QFile::encodeName(name).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        QEventLoop watched;
        connect(terminal, &sim::Link::received, &watched, &QEventLoop::quit);
        if (::write(file, "?", 1) == 1)
            watched.exec();
        use(terminal);
        connect(terminal, &sim::PtyLink::destroyed, this, [file] { ::close(file); });
    }
};

} // namespace

FakeInstrument::FakeInstrument(int linkMode, const QList<Answer> &answers)
    : m_wire(linkMode == 0 ? static_cast<FakeWire *>(new SerialWire) : new TcpWire)
{
    m_wire->answers = answers;
    m_wire->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_wire, &QObject::deleteLater);
    m_thread.start();
    runInThread([this] { m_wire->open(); });
}

FakeInstrument::~FakeInstrument()
{
    m_thread.quit();
    m_thread.wait();
}

QString FakeInstrument::name() const
{
    return m_wire->name;
}

int FakeInstrument::value() const
{
    return m_wire->value;
}

QList<QByteArray> FakeInstrument::lines() const
{
    QList<QByteArray> lines;
    runInThread([this, &lines] { lines = m_wire->lines; });
    return lines;
}

void FakeInstrument::say(const QByteArray &bytes)
{
    runInThread([this, &bytes] { m_wire->write(bytes); });
}

void FakeInstrument::sendNextPiece()
{
    runInThread([this] { m_wire->sendNextPiece(); });
}

void FakeInstrument::hangUp()
{
    runInThread([this] { m_wire->hangUp(); });
}

template<typename Work>
void FakeInstrument::runInThread(Work work) const
{
    QMetaObject::invokeMethod(m_wire, work, Qt::BlockingQueuedConnection);
}

DeafHost::DeafHost()
{
    m_server.listen(QHostAddress::LocalHost);
    // Little room, so that it is soon full; connections inherit it.
    const int room = 4096;
    setsockopt(int(m_server.socketDescriptor()), SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
}
