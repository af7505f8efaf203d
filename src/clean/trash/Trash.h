#pragma once

#include "platform/Result.h"
#include "platform/Time.h"

#include <cstdint>
#include <optional>
#include <string>

/// The freedesktop.org Trash: the home Trash in the data folder, and ".Trash" folders at the top of other
/// volumes. An item is moved by one rename on its own file system or not at all: never copied, never deleted.
/// Its info file is written and synced before the item moves, so that a kill at any moment leaves the item
/// either in its place or in the Trash with its info file. Any thread; blocks on the disk.
namespace orlen::Trash {

/// Moves an entry (a link itself, not its target) to the Trash and returns its new path there. `bytes`: what
/// it occupies, told to other programs for a folder; nothing when not known. ENOENT: nothing at `path`.
/// EPERM: the entry is protected where its path really leads, lies in a Trash, or holds the Trash. EXDEV: its
/// volume has no usable Trash. EILSEQ: the new path would not be UTF-8. Otherwise the errno of the step that
/// failed. After a failure the entry is where it was.
[[nodiscard]] Result<std::string> moveIn(const std::string& path, std::optional<std::int64_t> bytes = {});

/// Moves `trashed` back to `original` and removes its info file. `trashedNoLaterThan`: when the clean-up that
/// moved it finished; an info file for another place or a later time means that the name now belongs to
/// something else (ESTALE). ENOENT: nothing at `trashed`. EPERM: `original` is protected where its path
/// really leads. EEXIST: something is at `original`. Missing parents of `original` are made.
[[nodiscard]] Result<void> moveBack(const std::string& trashed, const std::string& original,
                                    TimePoint trashedNoLaterThan);

/// The original place that an item's info file tells, for a path directly in a Trash's "files" folder;
/// empty when there is no readable info file. Bytes as decoded, not necessarily UTF-8.
[[nodiscard]] std::string originalPath(const std::string& trashed);

/// The home Trash folder (the one that holds "files" and "info"), whether it exists or not.
[[nodiscard]] std::string homeFolder();

} // namespace orlen::Trash
