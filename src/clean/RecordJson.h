#pragma once

#include "clean/CleanRecord.h"
#include "clean/Snapshot.h"
#include "model/FileEntry.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

/// The JSON form of persisted records: keys are field names, dates are ISO 8601 in UTC with whole seconds,
/// and absent optional values are left out. Pure; any thread.
namespace orlen::RecordJson {

[[nodiscard]] nlohmann::ordered_json encode(const FileEntry& entry);
[[nodiscard]] nlohmann::ordered_json encode(const TrashedItem& item);
[[nodiscard]] nlohmann::ordered_json encode(const CleanRecord& record);
[[nodiscard]] nlohmann::ordered_json encode(const Snapshot& snapshot);

/// What was decoded.
template <typename Record>
struct Decoded {
    std::vector<Record> records; ///< the readable ones, in order
    /// Whether nothing was lost. False if the text is not a JSON array, a record or item lacked a required
    /// key or had one of the wrong type, a number was out of range, or a broken part was skipped.
    bool isWhole = true;
};

/// Sizes are limited to 0 to `kMostBytes`, so that they can be summed. Needs little more memory than the text
/// and its largest record.
[[nodiscard]] Decoded<CleanRecord> decodeHistory(std::string text);
[[nodiscard]] Decoded<Snapshot> decodeSnapshots(std::string text);

} // namespace orlen::RecordJson
