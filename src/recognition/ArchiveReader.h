#pragma once

#include "platform/images/ArchiveContents.h"

#include <optional>

/// Lists archives without unpacking them. They are untrusted, so only the recognizer, a process with limits,
/// calls this.
namespace orlen::ArchiveReader {

/// Call once per process, before files can no longer be opened.
void prepare();

/// The first items of the archive in an open file: as many as fit and a second or two give. Nothing if it is
/// no archive, or nothing of it can be read.
[[nodiscard]] std::optional<ArchiveContents> read(int descriptor);

} // namespace orlen::ArchiveReader
