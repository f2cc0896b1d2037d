#include "linkbench.h"

#include <QSerialPort>
#include <QTcpSocket>
#include <QtTest>

namespace {

QString asText(const QString &text)
{
    return text;
}

QString asText(double number)
{
    return QString::number(number);
}

} // namespace

void addBothRoads()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("serial") << serial;
    QTest::newRow("TCP") << tcp;
}

Answer says(const QByteArray &line)
{
    return Answer{{line + '\n'}};
}

RecordedLink::RecordedLink(int linkMode)
    : mode(linkMode)
    , notOpen(mode == serial ? text("Please open the serial port first.")
                             : text("Please connect first."))
{
    using Link = SerialLogic;
    link.setLinkMode(linkMode);
    QObject::connect(&link, &Link::errors, &link, [this](const QString &line) { errors << line; });
    QObject::connect(&link, &Link::displayLog, &link,
                     [this](const QString &line) { displayed << line; });
    record(&Link::updateIDN, "identity '%1'");
    record(&Link::updateFrequency, "frequency %1 '%2'");
    record(&Link::updateOffset, "offset %1");
    record(&Link::updatePowUnit, "unit '%1'");
    record(&Link::updateMeasureState, "state '%1'");
    record(&Link::updateAverageCount, "count %1");
    record(&Link::updatePower, "power %1 '%2'");
    record(&Link::updateSetZeroSuccess, "zeroed");
    record(&Link::updateSetZeroFailed, "not zeroed");
    record(&Link::updateCalibrationSuccess, "calibrated");
    record(&Link::updateCalibrationFailed, "not calibrated");
}

QIODevice *RecordedLink::device() const
{
    if (mode == serial)
        return link.findChild<QSerialPort *>();
    return link.findChild<QTcpSocket *>();
}

bool RecordedLink::isUp() const
{
    if (mode == serial)
        return device()->isOpen();
    return link.findChild<QTcpSocket *>()->state() == QAbstractSocket::ConnectedState;
}

void RecordedLink::shortenReading()
{
    waits.reading = 50;
    link.setWaits(waits);
}

template<typename... Values>
void RecordedLink::record(void (SerialLogic::*signal)(Values...), const char *format)
{
    QObject::connect(&link, signal, &link, [this, format](const Values &...values) {
        QString told = QString::fromLatin1(format);
        if constexpr (sizeof...(values) > 0)
            told = told.arg(asText(values)...);
        m_told.append(told);
    });
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
