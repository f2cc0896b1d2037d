#include "fakeinstrument.h"

#include <QFile>
#include <QSocketNotifier>
#include <QTcpSocket>

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

/// One end of the line, with the script of what is said on it.
class FakeWire : public QObject
{
public:
    virtual void open() = 0;
    virtual void write(const QByteArray &bytes) = 0;
    virtual void hangUp() = 0;

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
                hangUp();
        }
    }

private:
    QByteArray m_received;
    QList<QByteArray> m_pieces;
};

namespace {

class TcpWire : public FakeWire
{
public:
    void open() override
    {
        m_server = new QTcpServer(this);
        m_server->listen(QHostAddress::LocalHost);
        name = m_server->serverAddress().toString();
        value = m_server->serverPort();
        connect(m_server, &QTcpServer::newConnection, this, [this] {
            m_client = m_server->nextPendingConnection();
            connect(m_client, &QTcpSocket::readyRead, this, [this] { take(m_client->readAll()); });
        });
    }

    void write(const QByteArray &bytes) override
    {
        if (!reachClient())
            return;
        m_client->write(bytes);
        while (m_client->bytesToWrite() > 0 && m_client->waitForBytesWritten()) {
        }
    }

    void hangUp() override
    {
        if (reachClient())
            m_client->disconnectFromHost();
    }

private:
    /// The client may be connected before this thread has heard of it.
    bool reachClient() { return m_client || m_server->waitForNewConnection(5000); }

    QTcpServer *m_server = nullptr;
    QTcpSocket *m_client = nullptr;
};

class SerialWire : public FakeWire
{
public:
    ~SerialWire() override { closeEnds(); }

    void open() override
    {
        m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            qFatal("no pseudo terminal to be had");
        const QByteArray path = ptsname(m_master);
        // The far end stays open here as well: without a user the near end would read as hung up.
        m_slave = ::open(path.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios settings{};
        tcgetattr(m_slave, &settings);
        cfmakeraw(&settings);
        tcsetattr(m_slave, TCSANOW, &settings);
        name = QFile::decodeName(path);
        value = 115200;

        m_notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, [this] {
            std::array<char, 4096> bytes{};
            const ssize_t count = ::read(m_master, bytes.data(), bytes.size());
            if (count > 0)
                take(QByteArray(bytes.data(), int(count)));
        });
    }

    void write(const QByteArray &bytes) override
    {
        if (::write(m_master, bytes.constData(), size_t(bytes.size())) != bytes.size())
            qFatal("the pseudo terminal took less than %d bytes", bytes.size());
    }

    void hangUp() override
    {
        m_notifier->setEnabled(false);
        closeEnds();
    }

private:
    void closeEnds()
    {
        for (int *end : {&m_slave, &m_master}) {
            if (*end >= 0)
                ::close(*end);
            *end = -1;
        }
    }

    QSocketNotifier *m_notifier = nullptr;
    int m_master = -1;
    int m_slave = -1;
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
