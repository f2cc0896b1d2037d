#pragma once

#include "patterns/formats/cut.h"

namespace PatternFormats {

/// Tells the format of \a bytes by what they hold.
Format recognise(const QByteArray &bytes);

/// Reads \a bytes, which are UTF-8 or Latin-1. \a fileName without folder and suffix names what the
/// file itself does not name. A file of no known format gives Format::None and nothing else.
PatternFile read(const QByteArray &bytes, const QString &fileName);

/// A file of \a format with one or both of the cuts, as they stand. A format may refuse them: MSI
/// takes two, and only such as go round the circle.
Written write(Format format, const std::optional<Cut> &horizontal,
              const std::optional<Cut> &vertical);

} // namespace PatternFormats
