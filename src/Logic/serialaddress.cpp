#include "Logic/serialaddress.h"

#include <QRegularExpression>
#include <QStringList>

SerialAddress SerialAddress::read(const QString &text)
{
    SerialAddress address;
    address.port = text;
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    bool isNumber = false;
    const int baudRate = text.mid(colon + 1).toInt(&isNumber);
    if (colon >= 0 && isNumber) {
        address.baudRate = baudRate;
        address.port = text.left(colon);
    }
    return address;
}

bool SerialAddress::isPort(const QStringList &known) const
{
    static const QRegularExpression form(QStringLiteral("[/\\\\]|^COM\\d+$|^tty"),
                                         QRegularExpression::CaseInsensitiveOption);
    return known.contains(port) || form.match(port).hasMatch();
}
