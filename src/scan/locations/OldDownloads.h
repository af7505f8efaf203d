#pragma once

#include "model/FileEntry.h"
#include "platform/Time.h"

#include <stop_token>
#include <vector>

namespace orlen {
class RecentDocuments;
class SourceReader;
} // namespace orlen

/// What has been lying in the Downloads folders.
namespace orlen::OldDownloads {

/// The items last opened (else last changed) more than 30 days before `now`, with that date. Blocks on the
/// disk; any thread. A stopped search returns what it has.
[[nodiscard]] std::vector<FileEntry> entries(const SourceReader& reader, TimePoint now,
                                             const RecentDocuments& recent, const std::stop_token& stop);

} // namespace orlen::OldDownloads
