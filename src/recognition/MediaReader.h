#pragma once

#include "platform/images/MediaFacts.h"

#include <optional>

/// Reads what sound files and films tell of themselves. They are untrusted, so only the recognizer, a process
/// with limits, calls this.
namespace orlen::MediaReader {

/// Of an open file; its format is detected from the content. Nothing if it is none of the known ones; empty
/// without the library (see MediaLibrary).
[[nodiscard]] std::optional<MediaFacts> read(int descriptor);

} // namespace orlen::MediaReader
