#pragma once

#include <QString>

#include <memory>
#include <optional>

class QLockFile;

/// Keeps every other program that asks for the same lock away, as long as this lives. The system
/// itself takes it back from a program that dies.
class FileLock
{
public:
    /// \a path is a file that is made for the purpose and taken away again.
    explicit FileLock(const QString &path);
    ~FileLock();
    Q_DISABLE_COPY(FileLock)

    /// Why the lock cannot be had; nothing when it is held.
    const std::optional<QString> &obstacle() const { return m_obstacle; }
    /// Whether it is still the one that others find.
    bool isHeld() const;

private:
    const QString m_path;
    std::optional<QString> m_obstacle;
    int m_file = -1;
    std::unique_ptr<QLockFile> m_lockFile; // where the system has no better one
};
