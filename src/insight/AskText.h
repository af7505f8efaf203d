#pragma once

#include "insight/Predictor.h"
#include "model/FileEntry.h"
#include "model/Finding.h"
#include "model/Message.h"
#include "model/OrlenCategory.h"
#include "scan/StorageBreakdown.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What several answers say. Any thread.
namespace orlen::AskText {

/// The last path component on one line, since a file name may contain line breaks.
[[nodiscard]] std::string fileName(const FileEntry& entry);

/// The largest categories, at most 4: "Apps 12 GB, Media 3 GB".
[[nodiscard]] Several largestCategories(const StorageBreakdown& breakdown);

/// "Apps 12 GB"
[[nodiscard]] Message sized(const std::pair<const OrlenCategory, std::int64_t>& category);

/// "name (12 GB)"
[[nodiscard]] Message sized(Value name, std::int64_t bytes);

/// "Log files: 12 MB — rated Safe." and the finding's reason.
[[nodiscard]] Message rated(const Finding& finding);

/// Headline and detail.
[[nodiscard]] Message forecast(const Prediction& prediction);

/// One behind the other.
[[nodiscard]] Message sentences(std::vector<Message> messages);
/// One below the other.
[[nodiscard]] Message lines(std::vector<Message> messages);

/// The words of a question in lower case, without punctuation.
[[nodiscard]] std::string plainWords(std::string_view question);

} // namespace orlen::AskText
