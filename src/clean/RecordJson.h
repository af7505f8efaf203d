#pragma once

#include "clean/CleanRecord.h"
#include "clean/Snapshot.h"
#include "model/FileEntry.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string_view>
#include <vector>

/// The JSON form of the persisted records: keys are the field names, dates ISO 8601 in UTC with whole
/// seconds, optional keys left out when absent. Pure; any thread.
namespace orlen::RecordJson {

[[nodiscard]] nlohmann::ordered_json encode(const FileEntry& entry);
[[nodiscard]] nlohmann::ordered_json encode(const TrashedItem& item);
[[nodiscard]] nlohmann::ordered_json encode(const CleanRecord& record);
[[nodiscard]] nlohmann::ordered_json encode(const Snapshot& snapshot);

/// Strict: nothing when the text is no JSON array, any required key of any element is missing or of the wrong
/// type, or the sizes could not be summed in 64 bits.
[[nodiscard]] std::optional<std::vector<CleanRecord>> decodeHistory(std::string_view text);
[[nodiscard]] std::optional<std::vector<Snapshot>> decodeSnapshots(std::string_view text);

} // namespace orlen::RecordJson
