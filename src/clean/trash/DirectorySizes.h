#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// The file "directorysizes" of a Trash, in which programs share the sizes of trashed folders so that each
/// need not measure them. Rewritten whole and renamed into place; a failure only costs others that measuring
/// and is ignored. Lines whose info file is gone are dropped on the way. Any thread; blocks on the disk.
namespace orlen::DirectorySizes {

/// `trash` and `info` are open folders; `name` is the folder's name in "files", `infoTime` the modification
/// time of its info file, by which readers see whether the line is current.
void add(int trash, int info, std::string_view name, std::int64_t bytes, TimePoint infoTime);

/// After the info file of `name` was removed; nothing is written when no line is stale.
void remove(int trash, int info, std::string_view name);

/// Whether a name in a Trash is that of a rewriting that did not come to its end.
[[nodiscard]] bool isUnfinished(std::string_view name);

/// The lines of such a file whose item `isKept` by its decoded name, which is empty for a malformed line;
/// each ends in a newline. Pure.
[[nodiscard]] std::string linesOf(std::string_view text,
                                  const std::function<bool(const std::string&)>& isKept);

} // namespace orlen::DirectorySizes
