#pragma once

#include "clean/FolderReading.h"
#include "clean/RecordJson.h"

#include <string>
#include <vector>

/// The JSON form of folder readings: {"paths": […], "readings": [{"date", "least", "folders", "bytes"}]}. A
/// path stands in it once; "folders" holds the numbers of paths, "bytes" what each of them held. Pure; any
/// thread.
namespace orlen::FolderReadingJson {

/// More folders in a reading, or more paths in all, are not read.
inline constexpr std::size_t kMostFolders = 2'000;
inline constexpr std::size_t kMostPaths = 50'000;

[[nodiscard]] std::string encode(const std::vector<FolderReading>& readings);

/// The readings, sorted by date. One in which anything is wrong is left out; without sound paths all are.
[[nodiscard]] RecordJson::Decoded<FolderReading> decode(std::string text);

} // namespace orlen::FolderReadingJson
