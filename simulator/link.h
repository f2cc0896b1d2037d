#pragma once

#include <QByteArray>
#include <QObject>

namespace sim {

/// A way to a client, whatever carries it. Nothing here ever blocks.
class Link : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Who or what is at the other end, for the trace.
    virtual QByteArray name() const = 0;
    virtual void send(const QByteArray &bytes) = 0;
    /// Breaks the connection, after what has been sent so far.
    virtual void drop() = 0;

signals:
    void received(const QByteArray &bytes);
    /// The client has gone, or has been dropped.
    void closed();
};

} // namespace sim
