// In which encoding a text of curves is written.

#include "2d/data/curvetext.h"

#include <QTextCodec>

namespace {

bool isUtf8(const QByteArray &bytes)
{
    int following = 0;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (following > 0) {
            if ((code & 0xC0) != 0x80)
                return false;
            --following;
        } else if (code >= 0x80) {
            if (code < 0xC2 || code > 0xF4)
                return false;
            following = code >= 0xF0 ? 3 : code >= 0xE0 ? 2 : 1;
        }
    }
    return following == 0;
}

/// Whether all bytes beyond ASCII come in the pairs that make the common Chinese characters. A pair
/// within a word of small letters is two letters of western Europe.
bool looksLikeGbk(const QByteArray &bytes)
{
    const auto isHigh = [&](int i) {
        return i < bytes.size() && static_cast<unsigned char>(bytes.at(i)) >= 0x80;
    };
    const auto isSmall = [&](int i) {
        return i >= 0 && i < bytes.size() && bytes.at(i) >= 'a' && bytes.at(i) <= 'z';
    };
    for (int i = 0; i < bytes.size(); ++i) {
        if (!isHigh(i))
            continue;
        const int start = i;
        for (; isHigh(i); i += 2) {
            const auto lead = static_cast<unsigned char>(bytes.at(i));
            const auto trail =
                i + 1 < bytes.size() ? static_cast<unsigned char>(bytes.at(i + 1)) : 0U;
            if (lead < 0xA1 || lead > 0xF7 || trail < 0xA1 || trail > 0xFE)
                return false;
        }
        if (isSmall(start - 1) && isSmall(i))
            return false;
    }
    return true;
}

} // namespace

namespace CurveText {

QByteArray asUtf8(const QByteArray &bytes, QString *encoding)
{
    if (encoding)
        encoding->clear();
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return bytes.mid(3);
    if (const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, nullptr))
        return codec->toUnicode(bytes).toUtf8();
    if (isUtf8(bytes))
        return bytes;
    const bool isGbk = looksLikeGbk(bytes);
    const QTextCodec *codec = QTextCodec::codecForName(isGbk ? "GB18030" : "windows-1252");
    if (!codec)
        return bytes;
    if (encoding)
        *encoding = isGbk ? QStringLiteral("GBK") : QStringLiteral("Windows-1252");
    return codec->toUnicode(bytes).toUtf8();
}

} // namespace CurveText
