#include "linkbench.h"

#include <QSerialPort>
#include <QTcpSocket>
#include <QtTest>

Answer says(const char *line)
{
    return Answer{{QByteArray(line) + '\n'}};
}

QTestData &newRow(int linkMode, const char *name)
{
    return QTest::addRow("%s%s%s", linkMode == 0 ? "serial" : "TCP", *name ? ": " : "", name)
           << linkMode;
}

RecordedLink::RecordedLink(int linkMode)
    : mode(linkMode)
{
    link.setLinkMode(linkMode);
    record();
}

QIODevice *RecordedLink::device() const
{
    if (mode == 0)
        return link.findChild<QSerialPort *>();
    return link.findChild<QTcpSocket *>();
}

bool RecordedLink::isUp() const
{
    if (mode == 0)
        return device()->isOpen();
    return link.findChild<QTcpSocket *>()->state() == QAbstractSocket::ConnectedState;
}

void RecordedLink::shortenReading()
{
    waits.reading = 50;
    link.setWaits(waits);
}

void RecordedLink::record()
{
    const auto put = [this](const char *format, const auto &...arguments) {
        values.append(QString::fromLatin1(format).arg(arguments...));
    };
    const auto note = [this](const char *what) { values.append(QString::fromLatin1(what)); };
    using Link = SerialLogic;
    QObject *const context = &link;
    QObject::connect(&link, &Link::errors, context,
                     [this](const QString &text) { errors << text; });
    QObject::connect(&link, &Link::displayLog, context,
                     [this](const QString &text) { displayed << text; });
    QObject::connect(&link, &Link::updateIDN, context,
                     [put](const QString &idn) { put("identity '%1'", idn); });
    QObject::connect(&link, &Link::updateFrequency, context,
                     [put](double value, const QString &unit) {
                         put("frequency %1 '%2'", QString::number(value), unit);
                     });
    QObject::connect(&link, &Link::updateOffset, context,
                     [put](double value) { put("offset %1", QString::number(value)); });
    QObject::connect(&link, &Link::updatePowUnit, context,
                     [put](const QString &unit) { put("unit '%1'", unit); });
    QObject::connect(&link, &Link::updateMeasureState, context,
                     [put](const QString &state) { put("state '%1'", state); });
    QObject::connect(&link, &Link::updateAverageCount, context,
                     [put](int count) { put("count %1", QString::number(count)); });
    QObject::connect(&link, &Link::updatePower, context, [put](double dbm, const QString &text) {
        put("power %1 '%2'", QString::number(dbm), text);
    });
    QObject::connect(&link, &Link::updateSetZeroSuccess, context, [note] { note("zeroed"); });
    QObject::connect(&link, &Link::updateSetZeroFailed, context, [note] { note("not zeroed"); });
    QObject::connect(&link, &Link::updateCalibrationSuccess, context,
                     [note] { note("calibrated"); });
    QObject::connect(&link, &Link::updateCalibrationFailed, context,
                     [note] { note("not calibrated"); });
}

LinkBench::LinkBench(int linkMode, const QList<Answer> &answers)
    : RecordedLink(linkMode)
    , instrument(linkMode, answers)
{}

bool LinkBench::open()
{
    return link.openPort(instrument.name(), instrument.value());
}

void LinkBench::letPiecesFollow()
{
    QObject::connect(device(), &QIODevice::readyRead, &link,
                     [this] { instrument.sendNextPiece(); });
}
