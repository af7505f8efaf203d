#pragma once

#include "platform/values/Result.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// Writes, renames and removes files of the program's own and nothing else: a file of the user's is never
/// opened for writing. Links are not followed. Any thread; blocks on the disk.
namespace orlen::OwnFile {

/// Replaces the file by `bytes`: written beside it, synced, renamed over it, so that a reader never sees half
/// of it. The new file has `mode`. On failure the old file stays as it was.
[[nodiscard]] Result<void> replace(const std::string& path, const std::string& bytes, unsigned mode = 0600);

/// The same for a file too large to be held: `next` gives one piece after the other, each good until the next
/// call, and an empty one at the end.
[[nodiscard]] Result<void>
replaceByPieces(const std::string& path, const std::function<std::string_view()>& next, unsigned mode = 0600);

/// Writes a new file in the same way. EEXIST when the name is taken, even by a dangling link.
[[nodiscard]] Result<void> writeNew(const std::string& path, const std::string& bytes, unsigned mode = 0600);

/// Gives the file another name in its folder. EEXIST when that name is taken.
[[nodiscard]] Result<void> rename(const std::string& path, const std::string& newName);

/// The same, replacing whatever has that name.
[[nodiscard]] Result<void> renameOver(const std::string& path, const std::string& newName);

/// Removes the file, or a link in its place; never a folder. ENOENT when there is none.
[[nodiscard]] Result<void> remove(const std::string& path);

/// Grows the file to `length` bytes that no file system can store in less, creating it if necessary. On
/// failure it keeps the length it had reached.
[[nodiscard]] Result<void> fill(const std::string& path, std::int64_t length);

/// Cuts the file to `length` bytes.
[[nodiscard]] Result<void> shorten(const std::string& path, std::int64_t length);

/// Removes unfinished files that `replace` and `writeNew` left in a folder when their process was killed.
void removeUnfinished(const std::string& folder);

} // namespace orlen::OwnFile
