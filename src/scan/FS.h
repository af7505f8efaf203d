#pragma once

#include "model/FileEntry.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class MountTable;
class RecentDocuments;
class UnreadableFolders;

/// Measures and dates paths. Stateless; any thread. Blocks on the disk: never call from the main thread.
/// Trees are measured by the shared pool of disk workers; a measurement that is stopped returns what it has.
namespace FS {

/// Allocated bytes of a file, or of all regular files below a folder. Links are not followed, and mounted
/// network and pseudo file systems are not entered. 0 for what is missing or cannot be read.
[[nodiscard]] std::int64_t allocatedSize(const std::string& path, const std::stop_token& stop = {});

/// When the user last opened a file: the later of what the desktop's list of recent documents tells and the
/// access time, which does not count on a mount that keeps none; else the modification time; nothing for what
/// does not exist.
[[nodiscard]] std::optional<TimePoint> lastOpened(const std::string& path, const RecentDocuments& recent,
                                                  const MountTable& mounts);

struct LastUse {
    TimePoint date;         ///< as `lastOpened` gives it
    bool isOpening = false; ///< whether it tells of an opening, not of the last modification
};
/// The same, and what it tells of.
[[nodiscard]] std::optional<LastUse> lastUse(const std::string& path, const RecentDocuments& recent,
                                             const MountTable& mounts);

/// The path with its allocated size, modification date (absent when it cannot be read) and the note; an empty
/// note gives none.
[[nodiscard]] FileEntry entry(const std::string& path, std::string_view note,
                              const std::stop_token& stop = {}, UnreadableFolders* unreadable = nullptr);

/// The same for many paths, in their order, measured together. `unreadable` is told of folders that could not
/// be read.
[[nodiscard]] std::vector<FileEntry> entries(std::span<const std::string> paths, std::string_view note,
                                             const std::stop_token& stop = {},
                                             UnreadableFolders* unreadable = nullptr);

} // namespace FS
} // namespace orlen
