#include "patterns/maskfile.h"

#include "patterns/formats/cut.h"
#include "patterns/formats/textfields.h"

#include <QCoreApplication>

using namespace PatternFormats;

namespace {

struct MaskText
{
    Q_DECLARE_TR_FUNCTIONS(Mask)
};

std::optional<QPointF> cornerIn(std::string_view line)
{
    QByteArray blanks(line.data(), static_cast<int>(line.size()));
    blanks.replace(',', ' ').replace(';', ' ');
    const std::vector<std::string_view> fields =
        fieldsOf(std::string_view(blanks.constData(), static_cast<std::size_t>(blanks.size())));
    if (fields.size() != 2)
        return std::nullopt;
    const std::optional<double> angle = toNumber(fields[0]);
    const std::optional<double> level = toNumber(fields[1]);
    return angle && level ? std::optional<QPointF>(QPointF(*angle, *level)) : std::nullopt;
}

} // namespace

Mask readMask(const QByteArray &bytes)
{
    const QByteArray text = decoded(bytes);
    TextLines lines(text);
    Mask mask;
    while (lines.next()) {
        const std::string_view line = lines.line();
        if (line.empty() || line.front() == '#')
            continue;
        const std::optional<QPointF> corner = cornerIn(line);
        if (!corner && mask.corners.isEmpty())
            continue;
        if (!corner)
            return {{},
                    Problem{lines.number(), MaskText::tr("Not an angle and a level.")}.sentence()};
        if (!mask.corners.isEmpty() && corner->x() < mask.corners.last().x())
            return {{},
                    Problem{lines.number(), MaskText::tr("The angles do not ascend.")}.sentence()};
        mask.corners.append(*corner);
    }
    if (mask.corners.size() < 2)
        return {{}, MaskText::tr("A mask takes two rows of an angle and a level at least.")};
    return mask;
}
