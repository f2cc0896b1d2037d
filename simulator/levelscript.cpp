#include "levelscript.h"

#include <QFile>
#include <QStringList>

#include <cmath>
#include <tuple>

namespace sim {

std::optional<LevelScript> LevelScript::fromFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("Cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    auto script = fromText(QString::fromUtf8(file.readAll()), error);
    if (!script)
        *error = path + QStringLiteral(", ") + *error;
    return script;
}

std::optional<LevelScript> LevelScript::fromText(const QString &text, QString *error)
{
    LevelScript script;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).simplified();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const auto step = readStep(line);
        const bool inOrder =
            step && (script.m_steps.isEmpty() || step->second >= script.m_steps.last().second);
        if (!inOrder) {
            *error = (step ? tr("line %1: \"%2\" comes before the line above it")
                           : tr("line %1: \"%2\" is none of \"SECONDS level DBM\", \"SECONDS ramp "
                                "FROM TO OVER\", \"SECONDS overload\" and \"SECONDS off\""))
                         .arg(i + 1)
                         .arg(line);
            return std::nullopt;
        }
        script.m_steps.append(*step);
    }
    return script;
}

std::optional<LevelScript::Step> LevelScript::readStep(const QString &line)
{
    QStringList words = line.split(QLatin1Char(' '));
    if (words.size() < 2)
        return std::nullopt;
    const QString kind = words.takeAt(1);
    QVector<double> numbers;
    for (const QString &word : qAsConst(words)) {
        bool isNumber = false;
        numbers.append(word.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.last()))
            return std::nullopt;
    }
    if (numbers.first() < 0.0)
        return std::nullopt;

    Step step;
    step.second = numbers.first();
    if (kind == QLatin1String("level") && numbers.size() == 2)
        step.from = step.to = numbers.at(1);
    else if (kind == QLatin1String("ramp") && numbers.size() == 4 && numbers.at(3) >= 0.0)
        std::tie(step.from, step.to, step.over) =
            std::make_tuple(numbers.at(1), numbers.at(2), numbers.at(3));
    else if (kind == QLatin1String("overload") && numbers.size() == 1)
        step.overload = true;
    else if (kind == QLatin1String("off") && numbers.size() == 1)
        step.from = step.to = noiseFloor;
    else
        return std::nullopt;
    return step;
}

Input LevelScript::at(qint64 ms, const Input &before) const
{
    const double now = static_cast<double>(ms) / 1000.0;
    const Step *current = nullptr;
    for (const Step &step : m_steps) {
        if (step.second <= now)
            current = &step;
    }
    if (!current)
        return before;
    const double passed = now - current->second;
    const double share = passed < current->over ? passed / current->over : 1.0;
    return {current->from + share * (current->to - current->from), current->overload};
}

} // namespace sim
