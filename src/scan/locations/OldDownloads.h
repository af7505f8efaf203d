#pragma once

#include "model/FileEntry.h"
#include "platform/values/Time.h"

#include <stop_token>
#include <vector>

namespace orlen {
class RecentDocuments;
class SourceReader;
class UnreadableFolders;
} // namespace orlen

/// What has been lying in the Downloads folders.
namespace orlen::OldDownloads {

/// The items last opened (else last changed) more than 30 days before `now`, with the
/// date of the opening, if there was one. Blocks on the disk; any thread. A stopped search returns what it
/// has. `unreadable`, when not null, is told of folders that could not be read.
[[nodiscard]] std::vector<FileEntry> entries(const SourceReader& reader, TimePoint now,
                                             const RecentDocuments& recent, UnreadableFolders* unreadable,
                                             const std::stop_token& stop);

} // namespace orlen::OldDownloads
