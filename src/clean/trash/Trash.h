#pragma once

#include "platform/files/FileStatus.h"
#include "platform/values/Result.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

/// The freedesktop.org Trash: the home Trash in the data folder, and ".Trash" folders at the top of other
/// volumes. An item is moved by one rename on its own file system or not at all: never copied, never deleted.
/// Its info file is written and synced before the item moves, so that a kill at any moment leaves the item
/// either in its place or in the Trash with its info file. Any thread; blocks on the disk.
namespace orlen::Trash {

/// Moves an entry (a link itself, not its target) to the Trash and returns its new path there. `bytes`: what
/// it occupies, told to other programs for a folder; nothing when not known. `stamp`: what must still stand
/// there; nothing: whatever does.
///
/// ENOENT: nothing at `path`. ESTALE: something else than `stamp` tells. EBUSY: a program is writing to it.
/// EPERM: the entry is protected where its path really leads, lies in a Trash, or holds the Trash. EACCES:
/// the system refuses. EXDEV: its volume has no usable Trash. EILSEQ: the new path would not be UTF-8.
/// Otherwise the errno of the step that failed. After a failure the entry is where it was.
[[nodiscard]] Result<std::string> moveIn(const std::string& path, std::optional<std::int64_t> bytes = {},
                                         const std::optional<FileStamp>& stamp = {});

/// By what an item is recognised when it is put back.
struct Recognition {
    /// What the item was when it was moved; nothing when it was not noted.
    std::optional<LastingIdentity> identity;
    /// When the clean-up that moved it finished.
    TimePoint noLaterThan;
};

/// Moves `trashed` back to `original` and removes its info file. ESTALE: the name in the Trash now belongs to
/// something else. ENOENT: nothing at `trashed`. EPERM: `original` is protected where its path really leads.
/// EACCES: the system refuses. EEXIST: something is at `original`. Missing parents of `original` are made.
[[nodiscard]] Result<void> moveBack(const std::string& trashed, const std::string& original,
                                    const Recognition& recognition);

/// What stands at `trashed`, for a path directly in a Trash's "files" folder; nothing when nothing does.
[[nodiscard]] std::optional<LastingIdentity> identityOf(const std::string& trashed);

/// An item whose place and identity are known, and where it was found.
struct Sought {
    struct Found {
        std::string trashed; ///< its path in the Trash
        TimePoint time;      ///< when its info file was written
    };
    LastingIdentity identity;
    std::optional<Found> found;
};

/// Looks for items in the home Trash and in those of the volumes that hold their places, keyed by original
/// path. Info files that name one of these places without an item beside them are removed, and so is what
/// killed writings of this program left in the Trashes since `begun`: nobody else may be moving these items.
void find(std::map<std::string, Sought>& items, TimePoint begun);

/// Removes the info file of an item that has left the Trash, when it names this place.
void forget(const std::string& trashed, const std::string& original);

/// The original place that an item's info file tells, for a path directly in a Trash's "files" folder;
/// empty when there is no readable info file. Bytes as decoded, not necessarily UTF-8.
[[nodiscard]] std::string originalPath(const std::string& trashed);

/// Whether the home Trash's place answers; false on a network disk that is gone, where no item can be moved.
/// Waits for a probe at most.
[[nodiscard]] bool isReachable();

/// The home Trash folder (the one that holds "files" and "info"), whether it exists or not.
[[nodiscard]] std::string homeFolder();

} // namespace orlen::Trash
