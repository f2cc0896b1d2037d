#pragma once

#include <QByteArray>
#include <QList>

namespace sim {

class Instrument;

/// What takes the instrument seconds and is answered when it is done.
enum class Operation { None, Zeroing, Calibration };

/// What a command leads to.
struct Answer
{
    QByteArray line;                       ///< the reply without its newline; empty: none
    Operation operation = Operation::None; ///< what has been started instead
};

/// Ways in which an instrument takes a command other than usual.
struct Quirks
{
    bool refuseSettings = false;
    bool numericFrequencyOnly = false; ///< knows "FREQ 2.45" (GHz) and not "FREQ 2.45GHz"
};

/// Gives a command line to an instrument and words its reply.
class CommandInterpreter
{
public:
    explicit CommandInterpreter(Instrument &instrument);

    /// \a line without its line end. Blank lines have no answer; what is not understood is answered
    /// with an error line, which never holds the letters of a confirmation.
    Answer execute(const QByteArray &line, const Quirks &quirks = {});

    /// The line that reports how \a operation ended.
    static QByteArray result(Operation operation, bool success);

    /// The first word of \a line in capitals: "FREQ" for a setting, "FREQ?" for a query.
    static QByteArray header(const QByteArray &line);
    /// Whether \a line changes a setting, as queries, zeroing and calibration do not.
    static bool isSetting(const QByteArray &line);
    /// Whether \a line sets the frequency with a unit behind the number.
    static bool isTextFrequency(const QByteArray &line);
    /// Every header that the instrument knows.
    static QList<QByteArray> headers();

private:
    QByteArray query(const QByteArray &name) const;
    QByteArray set(const QByteArray &name, const QByteArray &value);
    QByteArray setFrequency(const QByteArray &value);
    QByteArray setOffset(QByteArray value);
    QByteArray setAverageCount(const QByteArray &value);
    QByteArray setPowerUnit(const QByteArray &value);
    QByteArray setRelative(const QByteArray &value);

    Instrument &m_instrument;
};

} // namespace sim
