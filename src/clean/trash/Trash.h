#pragma once

#include "platform/files/FileStatus.h"
#include "platform/values/Result.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

/// The freedesktop.org Trash: the home Trash in the data folder, and ".Trash" folders at the top of other
/// volumes. An item is moved by a single rename on its file system or not at all: never copied, never
/// deleted. Its info file is written and synced first, so that a process killed at any moment leaves the item
/// in its place or in the Trash with its info file. Any thread; blocks on the disk.
namespace orlen::Trash {

/// Moves an entry (a link itself, not its target) to the Trash and returns its new path. `bytes`: its size on
/// disk, recorded for a folder; nothing if unknown. `stamp`: what the path must still refer to; nothing:
/// anything.
///
/// ENOENT: nothing at `path`. ESTALE: not what `stamp` describes. EBUSY: a program is writing to it. EPERM:
/// the entry is protected where its path really leads, is inside a Trash, or contains the Trash. EACCES: the
/// system refuses. EXDEV: its volume has no usable Trash. EILSEQ: the new path would not be UTF-8. Otherwise
/// the errno of the step that failed. On failure the entry stays where it was.
[[nodiscard]] Result<std::string> moveIn(const std::string& path, std::optional<std::int64_t> bytes = {},
                                         const std::optional<FileStamp>& stamp = {});

/// How an item is recognised when it is put back.
struct Recognition {
    /// The item's identity when it was moved; nothing if not recorded.
    std::optional<LastingIdentity> identity;
    /// When the clean-up that moved it finished.
    TimePoint noLaterThan;
};

/// Moves `trashed` back to `original`, creating missing parents, and removes its info file. ESTALE: the name
/// in the Trash now belongs to something else. ENOENT: nothing at `trashed`. EPERM: `original` is protected
/// where its path really leads. EACCES: the system refuses. EEXIST: something is at `original`.
[[nodiscard]] Result<void> moveBack(const std::string& trashed, const std::string& original,
                                    const Recognition& recognition);

/// The identity of what is at `trashed`, directly in a Trash's "files"; nothing if there is nothing.
[[nodiscard]] std::optional<LastingIdentity> identityOf(const std::string& trashed);

/// An item to look for, by identity, and where it was found.
struct Sought {
    struct Found {
        std::string trashed; ///< its path in the Trash
        TimePoint time;      ///< when its info file was written
    };
    LastingIdentity identity;
    std::optional<Found> found;
};

/// Looks for items, keyed by original path, in the home Trash and in those of their volumes. Removes info
/// files that name one of these places without an item, and unfinished files this program has left in the
/// Trashes since `begun`: nobody else may be moving these items.
void find(std::map<std::string, Sought>& items, TimePoint begun);

/// Removes the info file of an item that has left the Trash, if it names this place.
void forget(const std::string& trashed, const std::string& original);

/// The original place in the info file of an item directly in a Trash's "files"; empty without a readable
/// info file. Decoded bytes, not necessarily UTF-8.
[[nodiscard]] std::string originalPath(const std::string& trashed);

/// Whether the home Trash is reachable; false on a network disk that is gone, where nothing can be moved.
/// Waits for at most one probe.
[[nodiscard]] bool isReachable();

/// The home Trash folder, which contains "files" and "info"; it may not exist.
[[nodiscard]] std::string homeFolder();

} // namespace orlen::Trash
