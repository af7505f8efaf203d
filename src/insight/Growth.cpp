#include "insight/Growth.h"

#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

constexpr std::int64_t kLeast = 10'000'000;
constexpr std::size_t kMost = 50;
/// A folder unknown before had less than the least size that was listed then. Counting it as new is at most
/// this much wrong: a quarter.
constexpr std::int64_t kTimesUnknown = 4;

/// A folder's size before; nothing when too little is known of it.
std::optional<std::int64_t> sizeIn(const FolderReading& before, const FolderSize& folder)
{
    const auto found = std::ranges::lower_bound(before.folders, folder.path, {}, &FolderSize::path);
    if (found != before.folders.end() && found->path == folder.path)
        return found->bytes;
    return folder.bytes / kTimesUnknown >= before.least ? std::optional<std::int64_t>(0) : std::nullopt;
}

/// What is told of the folders in a folder so far.
struct Told {
    std::vector<Growth::Folder> folders;
    std::int64_t bytes = 0;
};

/// Goes from the innermost folders outwards. Each hands up what explains its growth best: the folders in it
/// that are told, when they make up more than half of it, else itself.
std::vector<Growth::Folder> told(const FolderReading& before, const FolderReading& after)
{
    std::map<std::string_view, Told> known;
    std::vector<const FolderSize*> inwardsFirst;
    for (const FolderSize& folder : after.folders) {
        known.try_emplace(folder.path);
        inwardsFirst.push_back(&folder);
    }
    std::ranges::stable_sort(inwardsFirst, std::greater(),
                             [](const FolderSize* folder) { return folder->path.size(); });
    Told all;
    for (const FolderSize* folder : inwardsFirst) {
        Told mine = std::move(known[folder->path]);
        const auto size = sizeIn(before, *folder);
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

Growth compared(const FolderReading& before, const FolderReading& after)
{
    Growth growth{before.date, after.date, told(before, after)};
    std::ranges::sort(growth.folders, [](const Growth::Folder& a, const Growth::Folder& b) {
        return a.bytes() != b.bytes() ? a.bytes() > b.bytes() : a.path < b.path;
    });
    if (growth.folders.size() > kMost)
        growth.folders.resize(kMost);
    return growth;
}

} // namespace

Moment Growth::start() const
{
    constexpr std::chrono::days kDay{1};
    return {since, until - since < kDay ? Moment::Form::minute : Moment::Form::longDay};
}

std::optional<Growth> Growth::between(std::span<const FolderReading> readings, TimePoint from, TimePoint to)
{
    const auto behind = [&](TimePoint time) {
        return std::ranges::upper_bound(readings, time, {}, &FolderReading::date) - readings.begin();
    };
    const auto first = std::max<std::ptrdiff_t>(behind(from) - 1, 0);
    const auto last = behind(to) - 1;
    if (last <= first)
        return std::nullopt;
    return compared(readings[static_cast<std::size_t>(first)], readings[static_cast<std::size_t>(last)]);
}

std::optional<Growth> Growth::sinceLastScan(std::span<const FolderReading> readings)
{
    if (readings.size() < 2)
        return std::nullopt;
    return compared(readings[readings.size() - 2], readings.back());
}

} // namespace orlen
