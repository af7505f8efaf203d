#pragma once

#include "model/FileEntry.h"
#include "platform/values/Time.h"

#include <stop_token>
#include <string>
#include <vector>

namespace orlen {
class RecentDocuments;
class SourceReader;
class UnreadableFolders;
} // namespace orlen

/// Old items in the Downloads folders.
namespace orlen::OldDownloads {

/// The items last opened, or else changed, more than 30 days before `now`, with the date of opening if known.
/// Blocks on the disk; any thread. If stopped, returns what it has. `unreadable`, if not null, collects
/// folders that could not be read.
[[nodiscard]] std::vector<FileEntry> entries(const SourceReader& reader, TimePoint now,
                                             const RecentDocuments& recent, UnreadableFolders* unreadable,
                                             const std::stop_token& stop);

/// Whether an item of a Downloads folder is old in this sense. Blocks on the disk.
[[nodiscard]] bool isOld(const std::string& path, TimePoint now, const RecentDocuments& recent);

} // namespace orlen::OldDownloads
