#include "insight/Growth.h"

#include "insight/ReadingPair.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

constexpr std::int64_t kLeast = 10'000'000;
constexpr std::size_t kMost = 50;

/// What is told of the folders in a folder so far.
struct Told {
    std::vector<Growth::Folder> folders;
    std::int64_t bytes = 0;
};

/// Goes from the innermost folders outwards. Each hands up what explains its growth best: the folders in it
/// that are told, when they make up more than half of it, else itself.
std::vector<Growth::Folder> told(const ReadingPair& pair)
{
    std::map<std::string_view, Told> known;
    std::vector<const FolderSize*> inwardsFirst;
    for (const FolderSize& folder : pair.after.folders) {
        known.try_emplace(folder.path);
        inwardsFirst.push_back(&folder);
    }
    std::ranges::stable_sort(inwardsFirst, std::greater(),
                             [](const FolderSize* folder) { return folder->path.size(); });
    Told all;
    for (const FolderSize* folder : inwardsFirst) {
        Told mine = std::move(known[folder->path]);
        const auto size = pair.sizeBefore(*folder);
        const std::int64_t grown = size ? folder->bytes - *size : 0;
        if (grown >= kLeast && mine.bytes <= grown / 2)
            mine = {{{folder->path, *size, folder->bytes}}, grown};
        std::string_view at = PathText::parent(folder->path);
        while (at.size() > 1 && !known.contains(at))
            at = PathText::parent(at);
        Told& outer = known.contains(at) ? known[at] : all;
        outer.bytes = cappedAdd(outer.bytes, mine.bytes);
        std::ranges::move(mine.folders, std::back_inserter(outer.folders));
    }
    return std::move(all.folders);
}

} // namespace

Moment Growth::start() const
{
    return ReadingPair::start(since, until);
}

Growth Growth::between(const ReadingPair& pair)
{
    Growth growth{pair.before.date, pair.after.date, told(pair)};
    std::ranges::sort(growth.folders, [](const Growth::Folder& a, const Growth::Folder& b) {
        return a.bytes() != b.bytes() ? a.bytes() > b.bytes() : a.path < b.path;
    });
    if (growth.folders.size() > kMost)
        growth.folders.resize(kMost);
    return growth;
}

std::optional<Growth> Growth::between(std::span<const FolderReading> readings, TimePoint from, TimePoint to)
{
    const auto pair = ReadingPair::over(readings, from, to);
    return pair ? std::optional(between(*pair)) : std::nullopt;
}

std::optional<Growth> Growth::sinceLastScan(std::span<const FolderReading> readings)
{
    const auto pair = ReadingPair::last(readings);
    return pair ? std::optional(between(*pair)) : std::nullopt;
}

} // namespace orlen
