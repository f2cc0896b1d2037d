#include "result.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

const QStringList Result::checks{QStringLiteral("crash"), QStringLiteral("hang"),
                                 QStringLiteral("boxes"), QStringLiteral("state"),
                                 QStringLiteral("rows"),  QStringLiteral("reopen"),
                                 QStringLiteral("reach")};

void Result::add(const char *check, const QStringList &texts)
{
    QStringList different = texts;
    different.removeDuplicates(); // a fault that lasts shows in every row
    for (const QString &text : qAsConst(different))
        failures.append({QString::fromLatin1(check), text});
}

QByteArray Result::toLine() const
{
    QJsonObject counts;
    for (auto fault = faults.begin(); fault != faults.end(); ++fault)
        counts.insert(fault.key(), fault.value());
    QJsonArray list;
    for (const Failure &failure : failures)
        list.append(QJsonArray{failure.check, failure.text});
    const QJsonObject object{{QStringLiteral("name"), name},   {QStringLiteral("faults"), counts},
                             {QStringLiteral("links"), links}, {QStringLiteral("rows"), rows},
                             {QStringLiteral("boxes"), boxes}, {QStringLiteral("failures"), list}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

Result Result::fromLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    Result result;
    result.name = object.value(QStringLiteral("name")).toString();
    const QJsonObject counts = object.value(QStringLiteral("faults")).toObject();
    for (auto fault = counts.begin(); fault != counts.end(); ++fault)
        result.faults.insert(fault.key(), fault.value().toInt());
    result.links = object.value(QStringLiteral("links")).toInt();
    result.rows = object.value(QStringLiteral("rows")).toInt();
    result.boxes = object.value(QStringLiteral("boxes")).toInt();
    const QJsonArray list = object.value(QStringLiteral("failures")).toArray();
    for (const QJsonValue &failure : list)
        result.failures.append(
            {failure.toArray().at(0).toString(), failure.toArray().at(1).toString()});
    return result;
}
