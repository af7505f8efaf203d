#pragma once

#include "model/FileEntry.h"
#include "model/OrlenCategory.h"
#include "scan/StorageBreakdown.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Text formatting shared by answers and the language model's view of the scan. Pure; any thread.
namespace orlen::AskText {

/// For a question about findings before the first scan.
inline constexpr std::string_view kNoScan =
    "I don't have scan results yet. Run a Smart Scan from the Home screen and ask me again.";

[[nodiscard]] std::string joined(const std::vector<std::string>& parts, std::string_view separator);

/// The last path component on one line, since a file name may contain line breaks.
[[nodiscard]] std::string fileName(const FileEntry& entry);

/// The largest categories, at most 4: "Apps 12 GB, Media 3 GB".
[[nodiscard]] std::string largestCategories(const StorageBreakdown& breakdown);

/// "Apps 12 GB"
[[nodiscard]] std::string sized(const std::pair<const OrlenCategory, std::int64_t>& category);

/// "name (12 GB)"
[[nodiscard]] std::string sized(std::string_view name, std::int64_t bytes);

} // namespace orlen::AskText
