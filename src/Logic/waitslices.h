#pragma once

#include <functional>
#include <utility>

class QIODevice;
class QTcpSocket;

/// How the link waits: at one go, or in parts with a look between them at whether the wait is
/// cancelled.
class WaitSlices
{
public:
    /// Waits for so many ms at most; true when what was waited for is there.
    using Wait = std::function<bool(int)>;
    using Question = std::function<bool()>;

    /// Lets every wait look at \a isCancelled some twenty times a second.
    void setCancel(Question isCancelled) { m_isCancelled = std::move(isCancelled); }
    bool canBeCancelled() const { return bool(m_isCancelled); }

    /// Calls \a wait with times in ms that add up to \a total until it is true. One that can be
    /// cancelled also ends, with false, once \a isUp is false.
    bool wait(int total, const Wait &wait, const Question &isUp) const;
    /// The same; \a tellBusy hears when a wait that can be felt begins (true) and ends. The many
    /// short ones are not told, so that the pointer does not flicker with every reading.
    bool wait(int total, const Wait &wait, const Question &isUp,
              const std::function<void(bool)> &tellBusy) const;
    /// Whether \a socket is connected before \a total ms are over. A wait that can be cancelled
    /// runs an event loop.
    bool waitForConnection(QTcpSocket &socket, int total) const;
    /// Whether all that was written to \a device has left before \a ms are over.
    bool waitForWrite(QIODevice &device, int ms) const;

private:
    Question m_isCancelled;
};
