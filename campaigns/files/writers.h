#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

/// One file that a writer leaves behind.
struct WrittenFile
{
    enum class Kind {
        Whole, ///< replaced: the old content or the new one
        Lines, ///< lines are added, of which each is there or not
    };

    QString path; ///< relative to the folder in which everything happens
    Kind kind = Kind::Whole;
    QByteArray lineEnd;  ///< of Lines
    bool isFree = false; ///< Lines that nobody foresees: those of the log
};

/// A part of our programs that writes files.
struct Writer
{
    /// Writes in the current directory what belongs to \a round, by the path that the programs take
    /// themselves. Calls \a begin once, when everything is prepared.
    using Act = std::function<void(int round, const std::function<void()> &begin)>;

    QByteArray name;
    QVector<WrittenFile> files;
    bool startsEmpty = false; ///< the files do not exist when it goes wrong
    bool isSlow = false;      ///< has a window
    /// What the user reads when something was not written, as a regular expression; empty where
    /// there is nobody to tell.
    QString complaint;
    Act act;
    bool isOnShare = false; ///< see SystemCalls::Plan
};

/// Everything that our programs write. Needs a QApplication when it acts.
QVector<Writer> allWriters();
