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
struct TreeSize;

/// Measures and dates paths. Stateless; any thread. Blocks on the disk: never call from the main thread. The
/// shared disk workers measure trees; a stopped measurement returns what it has.
namespace FS {

/// Allocated bytes of a file, or of all regular files below a folder, each counted once. Links are not
/// followed; mounted network and pseudo file systems are not entered. 0 if it is missing or cannot be read.
[[nodiscard]] std::int64_t allocatedSize(const std::string& path, const std::stop_token& stop = {});

/// When the user last opened a file: the later of the desktop's list of recent documents and the access time,
/// which is ignored on a mount with "noatime"; failing both, the modification time. Nothing if the file does
/// not exist.
[[nodiscard]] std::optional<TimePoint> lastOpened(const std::string& path, const RecentDocuments& recent,
                                                  const MountTable& mounts);

struct LastUse {
    TimePoint date;         ///< as for `lastOpened`
    bool isOpening = false; ///< true if opened, false if modified
};
/// The same, and which of the two it is.
[[nodiscard]] std::optional<LastUse> lastUse(const std::string& path, const RecentDocuments& recent,
                                             const MountTable& mounts);

/// Gives the entry the bytes it frees, and a note if that is less than it holds because other names lead to
/// its files: for a folder when over a tenth is missing, for a file always.
void setSize(FileEntry& entry, const TreeSize& size);

/// The path with the bytes it frees, modification date (absent if unreadable) and notes.
[[nodiscard]] FileEntry entry(const std::string& path, const std::vector<Message>& notes,
                              const std::stop_token& stop = {}, UnreadableFolders* unreadable = nullptr);

/// The same for many paths, in order, measured together. `unreadable` collects folders that could not be
/// read.
[[nodiscard]] std::vector<FileEntry> entries(std::span<const std::string> paths,
                                             const std::vector<Message>& notes,
                                             const std::stop_token& stop = {},
                                             UnreadableFolders* unreadable = nullptr);

} // namespace FS
} // namespace orlen
