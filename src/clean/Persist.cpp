#include "clean/Persist.h"

#include "clean/RecordJson.h"
#include "clean/Reserve.h"
#include "platform/FileContent.h"
#include "platform/Folder.h"
#include "platform/PathText.h"
#include "platform/Places.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace orlen::Persist {

namespace {

constexpr const char* kHistory = "history.json";
constexpr const char* kSnapshots = "scans.json";
/// Far beyond a lifetime's history; a file of another size was not written by this program.
constexpr std::size_t kReadLimit = 256'000'000;

template <typename Record>
Result<void> save(const std::vector<Record>& records, const char* name)
{
    auto array = nlohmann::ordered_json::array();
    for (const Record& record : records)
        array.push_back(RecordJson::encode(record));
    // Bytes that are not UTF-8 become U+FFFD: one illegible name must not cost the whole file.
    const std::string text = array.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    return Reserve::withRoom(Reserve::Use::record,
                             [&] { return replaceFile(PathText::join(dir(), name), text); });
}

std::string read(const char* name)
{
    return readSmallFile(PathText::join(dir(), name), kReadLimit).value_or("");
}

} // namespace

std::string dir()
{
    std::string folder = PathText::join(Places::current().data.front(), "Orlen");
    (void)makeFolders(folder, 0700);
    return folder;
}

Result<void> saveHistory(const std::vector<CleanRecord>& history)
{
    return save(history, kHistory);
}

void saveSnapshots(const std::vector<Snapshot>& snapshots)
{
    (void)save(snapshots, kSnapshots);
}

std::vector<CleanRecord> loadHistory()
{
    return RecordJson::decodeHistory(read(kHistory)).value_or(std::vector<CleanRecord>());
}

std::vector<Snapshot> loadSnapshots()
{
    return RecordJson::decodeSnapshots(read(kSnapshots)).value_or(std::vector<Snapshot>());
}

} // namespace orlen::Persist
