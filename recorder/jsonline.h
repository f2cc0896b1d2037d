#pragma once

#include <QString>

#include <optional>

/// Builds one line with a JSON object, its keys in the order in which they are added.
class JsonLine
{
public:
    JsonLine &add(const char *key, const QString &text);
    /// A number as it is written: digits, sign, point.
    JsonLine &addNumber(const char *key, const std::optional<QString> &digits);
    JsonLine &add(const char *key, bool value);
    /// A value that is missing.
    JsonLine &addNull(const char *key);
    /// \a object is another such line.
    JsonLine &add(const char *key, const JsonLine &object);

    /// Adds the members of \a other.
    JsonLine &append(const JsonLine &other);

    /// The object and a newline.
    QByteArray line() const { return object() + '\n'; }

private:
    QByteArray object() const { return '{' + m_members + '}'; }
    JsonLine &addRaw(const char *key, const QByteArray &value);

    QByteArray m_members;
};
