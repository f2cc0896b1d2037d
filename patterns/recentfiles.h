#pragma once

#include <QStringList>

/// The curve files opened last, the latest first.
class RecentFiles
{
public:
    static constexpr int limit = 8;

    RecentFiles() = default;
    /// Takes a stored list: doubles and whatever is beyond the limit are left out.
    explicit RecentFiles(const QStringList &stored);

    /// Puts \a path (made absolute) in front.
    void add(const QString &path);
    /// Forgets \a path, for instance because it is gone.
    void remove(const QString &path);
    void clear() { m_paths.clear(); }
    const QStringList &paths() const { return m_paths; }

private:
    QStringList m_paths;
};
