#pragma once

#include "patterns/formats/cut.h"

namespace PatternFormats {

/// Tells the format of \a bytes by what they hold.
Format recognise(const QByteArray &bytes);

/// Reads \a bytes, which are UTF-8 or Latin-1. \a fileName without folder and suffix names what the
/// file itself does not name. A file of no known format gives Format::None and nothing else.
PatternFile read(const QByteArray &bytes, const QString &fileName);

} // namespace PatternFormats
