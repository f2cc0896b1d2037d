#pragma once

#include <QMetaType>

/// What became of a command.
enum class Outcome {
    Ok,      ///< answered as the command is to be answered
    Timeout, ///< no line came in time
    Garbled, ///< a line came that is no answer to it, or holds no value where one belongs
    Refused, ///< the instrument said no
    Link,    ///< it could not be sent, or the link was lost before the answer
};

Q_DECLARE_METATYPE(Outcome)
