#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// The file "directorysizes" of a Trash, which caches the sizes of trashed folders for all programs.
/// Rewritten and renamed into place; failures are ignored, as they only cost others a measurement. Lines
/// whose info file is gone are dropped on the way. Any thread; blocks on the disk.
namespace orlen::DirectorySizes {

/// `trash` and `info` are open folders; `name` is the folder's name in "files"; `infoTime` is the
/// modification time of its info file, which tells readers whether the line is current.
void add(int trash, int info, std::string_view name, std::int64_t bytes, TimePoint infoTime);

/// Call after the info file of `name` was removed. Writes only if a line is stale.
void remove(int trash, int info, std::string_view name);

/// Whether a name in a Trash belongs to an interrupted rewrite.
[[nodiscard]] bool isUnfinished(std::string_view name);

/// The lines whose item `isKept` by its decoded name, each with a newline; the name of a malformed line is
/// empty. Pure.
[[nodiscard]] std::string linesOf(std::string_view text,
                                  const std::function<bool(const std::string&)>& isKept);

} // namespace orlen::DirectorySizes
