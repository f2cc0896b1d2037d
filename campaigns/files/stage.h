#pragma once

#include "systemcalls.h"
#include "writers.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

/// The content of all files of a folder by their path in it.
using Files = QMap<QString, QByteArray>;

/// What a writer did, as far as it can be seen from outside.
struct Performance
{
    int status = 0;       ///< as waitpid tells it
    QVector<Call> calls;  ///< all, in their order
    QVector<Call> failed; ///< those that were refused
    QByteArray said;      ///< everything on standard error
    Files files;          ///< afterwards
};

/// The folder in which writers act, each time in a process of its own that ends there.
class Stage
{
public:
    /// \a folder is emptied again and again.
    explicit Stage(QString folder);

    /// Puts \a before into the otherwise empty folder and lets \a writer write what belongs to
    /// \a round, with one call going wrong as \a plan says.
    Performance perform(const Writer &writer, int round, const Files &before,
                        const SystemCalls::Plan &plan = {}) const;

private:
    void clear(const Files &before) const;
    Files content() const;

    QString m_folder;
};
