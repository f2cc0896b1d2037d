#pragma once

#include "storage/writecheck.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One thing that was looked at, in words for whoever has to do with the machine. Plain English, as
/// everything on the command line.
struct Finding
{
    enum class Verdict {
        Ok,
        Note, ///< worth knowing; the console works without
        Wrong
    };

    Verdict verdict = Verdict::Ok;
    QString text;
    QString advice; ///< what to do about it; empty when there is nothing to do
};

/// A serial port as this user finds it.
struct PortFacts
{
    QString name;
    QString path;
    QString description;    ///< may be empty
    QString group;          ///< whose members may open it; empty where there is none
    bool isAdapter = false; ///< plugged in, and not merely built into the machine
    bool mayBeOpened = true;
};

/// What came of asking an instrument who it is.
struct AnswerFacts
{
    QString address;
    bool serial = false;
    QString error;    ///< what the link complained about; empty when it did not
    QString identity; ///< empty when nothing answered
};

/// What the facts mean, and how it is said.
namespace Diagnosis {

Finding ofPlace(const WriteCheck::Place &place);
Finding ofPort(const PortFacts &port);
Finding ofAnswer(const AnswerFacts &answer);
/// \a chinese: whether the console is set to Chinese, and so needs the font.
Finding ofChineseFont(bool found, bool chinese);
/// \a missing: the kinds of pictures that cannot be read or written.
Finding ofPictures(const QStringList &missing);

/// The line of \a finding, and below it what to do.
QString line(const Finding &finding);

/// Whether nothing among \a findings is wrong.
bool isSound(const QVector<Finding> &findings);

/// The last line of the report.
QString summary(const QVector<Finding> &findings);

} // namespace Diagnosis
