#pragma once

#include "clean/CleanRecord.h"
#include "clean/Snapshot.h"
#include "model/FileEntry.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

/// The JSON form of the persisted records: keys are the field names, dates ISO 8601 in UTC with whole
/// seconds, optional keys left out when absent. Pure; any thread.
namespace orlen::RecordJson {

[[nodiscard]] nlohmann::ordered_json encode(const FileEntry& entry);
[[nodiscard]] nlohmann::ordered_json encode(const TrashedItem& item);
[[nodiscard]] nlohmann::ordered_json encode(const CleanRecord& record);
[[nodiscard]] nlohmann::ordered_json encode(const Snapshot& snapshot);

/// What a text held.
template <typename Record>
struct Decoded {
    std::vector<Record> records; ///< the legible ones, in their order
    /// Whether they are all that the text says. False when it is no JSON array, when a record or an item was
    /// left out because a required key was missing or of the wrong type, when a number was cut to what is
    /// possible, and when a broken place was passed over.
    bool isWhole = true;
};

/// Sizes are cut to 0 to `kMostBytes`, and so that those of all items can be summed. Needs little more memory
/// than the text and its largest record.
[[nodiscard]] Decoded<CleanRecord> decodeHistory(std::string text);
[[nodiscard]] Decoded<Snapshot> decodeSnapshots(std::string text);

} // namespace orlen::RecordJson
