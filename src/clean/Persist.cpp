#include "clean/Persist.h"

#include "clean/ExclusionJson.h"
#include "clean/FolderReadingJson.h"
#include "clean/RecordJson.h"
#include "clean/Reserve.h"
#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <map>
#include <string_view>
#include <utility>

namespace orlen::Persist {

namespace {

/// More than a lifetime's history; reading it takes little more memory than this.
constexpr std::size_t kLimit = 32'000'000;
/// Thousands of long paths.
constexpr std::size_t kExclusionsLimit = 4'000'000;
/// Twice as much as all readings that are kept, of as many folders as a scan lists.
constexpr std::size_t kFolderReadingsLimit = 8'000'000;
/// How many unreadable files of each kind are kept.
constexpr std::size_t kKeptAside = 3;

/// An array of the records, with the gap before each and after the last.
template <typename Record>
std::string asArray(const std::vector<Record>& records, std::string_view gap,
                    nlohmann::ordered_json (*encode)(const Record& record))
{
    using Json = nlohmann::ordered_json;
    std::string text = "[";
    for (const Record& record : records) {
        text.append(text.size() > 1 ? "," : "").append(gap);
        // Invalid UTF-8 becomes U+FFFD: one unreadable name must not cost the whole file.
        text += encode(record).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    return text.append(gap) + ']';
}

template <typename Record>
std::string asLine(const std::vector<Record>& records)
{
    return asArray<Record>(records, "", RecordJson::encode);
}

/// One to a line: this file is meant to be read by people as well.
std::string asLines(const std::vector<Exclusion>& exclusions)
{
    return asArray<Exclusion>(exclusions, "\n", ExclusionJson::encode);
}

enum class Worth { record, comfort };

template <typename Record>
struct Kind {
    std::string_view stem; ///< of the file's name
    RecordJson::Decoded<Record> (*decode)(std::string text);
    std::string (*encode)(const std::vector<Record>& records);
    std::size_t limit; ///< bytes of the file
    Worth worth = Worth::record;
};

constexpr Kind<CleanRecord> kHistory{"history", RecordJson::decodeHistory, asLine<CleanRecord>, kLimit};
constexpr Kind<Snapshot> kSnapshots{"scans", RecordJson::decodeSnapshots, asLine<Snapshot>, kLimit};
constexpr Kind<Exclusion> kExclusions{"exclusions", ExclusionJson::decode, asLines, kExclusionsLimit};
constexpr Kind<FolderReading> kFolderReadings{"folders", FolderReadingJson::decode, FolderReadingJson::encode,
                                              kFolderReadingsLimit, Worth::comfort};

std::string fileName(std::string_view stem)
{
    return std::string(stem) + ".json";
}

/// Why files could not be read when last loaded, by path: the caller's data lacks what they contain.
std::map<std::string, int>& failedLoads()
{
    static std::map<std::string, int> failures;
    return failures;
}

/// ENOENT if the file does not exist. ENOTDIR if it is a link into a missing folder, such as a disk that is
/// not plugged in today.
Result<std::string> readLinked(const std::string& path, std::size_t limit)
{
    const auto end = linkEnd(path);
    if (!end.ok())
        return Errno{end.error()};
    auto text = readWholeFile(end.value(), limit);
    if (text.error() != ENOENT && text.error() != ENOTDIR)
        return text;
    const bool isHidden =
        end.value() != path && !isListable(PathText::join(PathText::parent(end.value()), "."));
    return Errno{isHidden ? ENOTDIR : ENOENT};
}

template <typename Record>
Loaded<Record> load(const Kind<Record>& kind)
{
    const std::string path = PathText::join(dir(), fileName(kind.stem));
    failedLoads().erase(path);
    // Probes a network disk that holds the folder; reading then finds it answering or not.
    (void)Reachability::admit(dir());
    auto text = readLinked(path, kind.limit);
    if (text.error() == EFBIG)
        return {{}, Problem::damaged};
    if (text.error() == ENOENT)
        return {};
    if (!text.ok()) {
        failedLoads()[path] = text.error();
        return {{}, Problem::unreadable, text.error()};
    }
    auto decoded = kind.decode(std::move(text).value());
    return {std::move(decoded.records), decoded.isWhole ? Problem::none : Problem::damaged};
}

/// "20250301T093000Z"
std::string stampOf(TimePoint time)
{
    std::string text = isoText(time);
    std::erase_if(text, [](char c) { return c == '-' || c == ':'; });
    return text;
}

/// Renames the file and removes the oldest of those set aside before.
Result<void> setAside(const std::string& file, std::string_view stem)
{
    const std::string folder(PathText::parent(file));
    const std::string start = std::string(stem) + ".unreadable-";
    const std::string aside = start + stampOf(std::chrono::system_clock::now()) + ".json";
    if (auto renamed = OwnFile::rename(file, aside); !renamed.ok())
        return renamed;
    std::vector<std::string> names = listNames(folder);
    std::erase_if(names, [&](const std::string& name) {
        return !name.starts_with(start) || name.size() != aside.size() || !name.ends_with(".json");
    });
    std::sort(names.begin(), names.end(), std::greater());
    for (std::size_t i = kKeptAside; i < names.size(); ++i)
        (void)OwnFile::remove(PathText::join(folder, names[i]));
    return {};
}

/// Makes sure that nothing is lost when `file`, which `path` leads to, is overwritten.
template <typename Record>
Result<void> makeReplaceable(const std::string& path, const std::string& file, const Kind<Record>& kind)
{
    if (const auto status = statusOf(file); status.error() == ENOENT)
        return {};
    if (const auto failed = failedLoads().find(path); failed != failedLoads().end())
        return Errno{failed->second};
    auto text = readWholeFile(file, kind.limit);
    if (!text.ok() && text.error() != EFBIG)
        return Errno{text.error()};
    if (text.ok() && kind.decode(std::move(text).value()).isWhole)
        return {};
    return setAside(file, kind.stem);
}

template <typename Record>
Result<void> save(const std::vector<Record>& records, const Kind<Record>& kind)
{
    const auto folder = makeDir();
    if (!folder.ok())
        return Errno{folder.error()};
    const std::string path = PathText::join(folder.value(), fileName(kind.stem));
    const auto file = linkEnd(path);
    if (!file.ok())
        return Errno{file.error()};
    const std::string text = kind.encode(records);
    // It could not be read again.
    if (text.size() > kind.limit)
        return Errno{EFBIG};
    if (auto ready = makeReplaceable(path, file.value(), kind); !ready.ok())
        return ready;
    const auto write = [&] { return OwnFile::replace(file.value(), text); };
    auto written = kind.worth == Worth::comfort ? write() : Reserve::withRoom(Reserve::Use::record, write);
    if (written.ok())
        failedLoads().erase(path);
    return written;
}

} // namespace

std::string dir()
{
    return PathText::join(Places::current().data.front(), "Orlen");
}

Result<std::string> makeDir()
{
    if (!Places::current().isHomeUsable)
        return Errno{EPERM};
    std::string folder = dir();
    if (const auto reachable = Reachability::admit(folder); !reachable.ok())
        return Errno{reachable.error()};
    if (const auto made = makeFolders(folder, 0700); !made.ok())
        return Errno{made.error()};
    return folder;
}

bool isReachable()
{
    return Reachability::admit(dir()).ok();
}

Result<void> saveHistory(const std::vector<CleanRecord>& history)
{
    return save(history, kHistory);
}

Result<void> saveSnapshots(const std::vector<Snapshot>& snapshots)
{
    return save(snapshots, kSnapshots);
}

Loaded<CleanRecord> loadHistory()
{
    return load(kHistory);
}

Loaded<Snapshot> loadSnapshots()
{
    return load(kSnapshots);
}

Result<void> saveExclusions(const std::vector<Exclusion>& exclusions)
{
    return exclusions.size() > ExclusionJson::kMost ? Errno{EFBIG} : save(exclusions, kExclusions);
}

Loaded<Exclusion> loadExclusions()
{
    return load(kExclusions);
}

Result<void> saveFolderReadings(const std::vector<FolderReading>& readings)
{
    return save(readings, kFolderReadings);
}

Loaded<FolderReading> loadFolderReadings()
{
    return load(kFolderReadings);
}

} // namespace orlen::Persist
