#include "patterns/formats/patternfile.h"

#include "patterns/formats/msiformat.h"
#include "patterns/formats/necformat.h"
#include "patterns/formats/nsmaformat.h"
#include "patterns/formats/textfields.h"

namespace PatternFormats {

Format recognise(const QByteArray &bytes)
{
    const QByteArray text = decoded(bytes);
    // A remark in a header may speak of radiation patterns; a section's heading is unmistakable.
    if (MsiFormat::matches(text, true))
        return Format::Msi;
    if (NsmaFormat::matches(text))
        return Format::Nsma;
    if (NecFormat::matches(text))
        return Format::Nec;
    return MsiFormat::matches(text, false) ? Format::Msi : Format::None;
}

PatternFile read(const QByteArray &bytes, const QString &fileName)
{
    const QByteArray text = decoded(bytes);
    switch (recognise(text)) {
    case Format::Msi:
        return MsiFormat::read(text, fileName);
    case Format::Nsma:
        return NsmaFormat::read(text, fileName);
    case Format::Nec:
        return NecFormat::read(text, fileName);
    default:
        return {};
    }
}

} // namespace PatternFormats
