#include "patterns/formats/cut.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PatternFormats)
};

/// What a key is in words; the key itself where only its maker knows.
QString label(const QString &key)
{
    if (key == QStringLiteral("MAKE") || key == QStringLiteral("ANTMAN"))
        return Text::tr("Maker");
    if (key == QStringLiteral("MODNUM"))
        return Text::tr("Model");
    if (key == QStringLiteral("POLARIZATION") || key == QStringLiteral("POLARI"))
        return Text::tr("Polarisation");
    if (key == QStringLiteral("COMMENT") || key.startsWith(QStringLiteral("DESCR")))
        return Text::tr("Comment");
    return key;
}

} // namespace

namespace PatternFormats {

const QVector<QPointF> &Cut::of(Component component) const
{
    if (component == Component::Vertical)
        return vertical;
    return component == Component::Horizontal ? horizontal : points;
}

QString suffixOf(Component component)
{
    if (component == Component::Total)
        return {};
    return component == Component::Vertical ? Text::tr(", vertical") : Text::tr(", horizontal");
}

QString Problem::sentence() const
{
    return line == 0 ? text : Text::tr("Line %1: %2").arg(line).arg(text);
}

bool PatternFile::hasComponents() const
{
    return std::any_of(cuts.begin(), cuts.end(), [](const Cut &cut) {
        return !cut.vertical.isEmpty() && !cut.horizontal.isEmpty();
    });
}

bool PatternFile::offersChoice() const
{
    return format == Format::Nec && (cuts.size() > cutsWithoutAsking || hasComponents());
}

QString detail(const Details &details, const QStringList &keys)
{
    for (const Detail &one : details) {
        if (keys.contains(one.key) && !one.value.isEmpty())
            return one.value;
    }
    return {};
}

QString describe(const Details &details)
{
    QStringList lines;
    for (const Detail &one : details) {
        if (!one.value.isEmpty())
            lines.append(Text::tr("%1: %2").arg(label(one.key), one.value));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace PatternFormats
