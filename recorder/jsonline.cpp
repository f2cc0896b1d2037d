#include "recorder/jsonline.h"

#include <QJsonArray>
#include <QJsonDocument>

JsonLine &JsonLine::add(const char *key, const QString &text)
{
    const QByteArray quoted = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return addRaw(key, quoted.mid(1, quoted.size() - 2));
}

JsonLine &JsonLine::addNumber(const char *key, const std::optional<QString> &digits)
{
    return digits ? addRaw(key, digits->toLatin1()) : addNull(key);
}

JsonLine &JsonLine::add(const char *key, bool value)
{
    return addRaw(key, value ? "true" : "false");
}

JsonLine &JsonLine::addNull(const char *key)
{
    return addRaw(key, "null");
}

JsonLine &JsonLine::add(const char *key, const JsonLine &object)
{
    return addRaw(key, object.object());
}

JsonLine &JsonLine::append(const JsonLine &other)
{
    if (!m_members.isEmpty() && !other.m_members.isEmpty())
        m_members += ',';
    m_members += other.m_members;
    return *this;
}

JsonLine &JsonLine::addRaw(const char *key, const QByteArray &value)
{
    if (!m_members.isEmpty())
        m_members += ',';
    m_members += '"' + QByteArray(key) + "\":" + value;
    return *this;
}
