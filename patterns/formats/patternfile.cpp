#include "patterns/formats/patternfile.h"

#include "patterns/formats/msiformat.h"
#include "patterns/formats/necformat.h"
#include "patterns/formats/nsmaformat.h"
#include "patterns/formats/textfields.h"

#include <QCoreApplication>

namespace {

struct FileText
{
    Q_DECLARE_TR_FUNCTIONS(PatternFormats)
};

} // namespace

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

Written write(Format format, const std::optional<Cut> &horizontal,
              const std::optional<Cut> &vertical)
{
    QVector<Cut> cuts;
    for (const std::optional<Cut> &cut : {horizontal, vertical}) {
        if (cut && !cut->points.isEmpty())
            cuts.append(*cut);
    }
    if (cuts.isEmpty())
        return {{}, FileText::tr("There is no curve to write.")};
    if (format == Format::Nsma)
        return {NsmaFormat::write(cuts), {}};
    if (format == Format::Nec)
        return {NecFormat::write(cuts), {}};
    if (cuts.size() < 2)
        return {{}, FileText::tr("An MSI file needs a horizontal and a vertical curve.")};
    const QString &frequency = cuts.first().frequency;
    return MsiFormat::write({MsiFormat::commonName(cuts.first().name, cuts.last().name),
                             frequency.isEmpty() ? cuts.last().frequency : frequency,
                             cuts.first().details, cuts.first().points, cuts.last().points});
}

} // namespace PatternFormats
