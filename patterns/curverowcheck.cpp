#include "patterns/curverowcheck.h"

#include <algorithm>
#include <cmath>

namespace {

bool isPlain(char character)
{
    return (character >= '0' && character <= '9') || character == '.' || character == '-';
}

/// Plain digits are numbers without a closer look, which a million rows would feel.
bool isPlainNumber(const char *begin, const char *end)
{
    const auto dots = std::count(begin, end, '.');
    const char *digits = begin != end && *begin == '-' ? begin + 1 : begin;
    return digits != end && dots <= 1 && end - digits > dots && std::all_of(digits, end, isPlain) &&
           std::find(digits, end, '-') == end;
}

void checkField(const char *begin, const char *end, CurveRowCheck &check, bool &counted)
{
    if (counted || isPlainNumber(begin, end))
        return;
    bool isNumber = false;
    const double value =
        QByteArray::fromRawData(begin, int(end - begin)).trimmed().toDouble(&isNumber);
    if (!isNumber)
        ++check.noNumbers;
    else if (!std::isfinite(value))
        ++check.notFinite;
    counted = !isNumber || !std::isfinite(value);
}

void checkRow(const char *begin, const char *end, CurveRowCheck &check)
{
    if (end != begin && end[-1] == '\r')
        --end;
    if (begin == end)
        return;
    const char *comma = std::find(begin, end, ',');
    if (comma == end) {
        ++check.tooShort;
        return;
    }
    const char *second = std::find(comma + 1, end, ',');
    if (second != end)
        ++check.moreFields;
    bool counted = false;
    checkField(begin, comma, check, counted);
    checkField(comma + 1, second, check, counted);
}

} // namespace

CurveRowCheck checkCurveRows(const QByteArray &bytes)
{
    CurveRowCheck check;
    const char *const last = bytes.constData() + bytes.size();
    int line = 0;
    for (const char *begin = bytes.constData(); begin < last;) {
        const char *end = std::find(begin, last, '\n');
        if (++line > 3)
            checkRow(begin, end, check);
        begin = end + 1;
    }
    return check;
}
