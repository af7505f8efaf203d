#include "insight/ReadingPair.h"

#include <algorithm>
#include <chrono>

namespace orlen {

namespace {

/// A folder unknown to a reading had less than the least size that is listed there. Counting it as nothing is
/// at most this much wrong: a quarter.
constexpr std::int64_t kTimesUnknown = 4;

/// The size in a reading of a folder that the other one lists; nothing when too little is known of it.
std::optional<std::int64_t> sizeIn(const FolderReading& reading, const FolderSize& folder)
{
    const auto found = std::ranges::lower_bound(reading.folders, folder.path, {}, &FolderSize::path);
    if (found != reading.folders.end() && found->path == folder.path)
        return found->bytes;
    return folder.bytes / kTimesUnknown >= reading.least ? std::optional<std::int64_t>(0) : std::nullopt;
}

} // namespace

std::optional<ReadingPair> ReadingPair::over(std::span<const FolderReading> readings, TimePoint from,
                                             TimePoint to)
{
    const auto behind = [&](TimePoint time) {
        return std::ranges::upper_bound(readings, time, {}, &FolderReading::date) - readings.begin();
    };
    const auto first = std::max<std::ptrdiff_t>(behind(from) - 1, 0);
    const auto last = behind(to) - 1;
    if (last <= first)
        return std::nullopt;
    return ReadingPair{readings[static_cast<std::size_t>(first)], readings[static_cast<std::size_t>(last)]};
}

std::optional<ReadingPair> ReadingPair::last(std::span<const FolderReading> readings)
{
    if (readings.size() < 2)
        return std::nullopt;
    return ReadingPair{readings[readings.size() - 2], readings.back()};
}

std::optional<std::int64_t> ReadingPair::sizeBefore(const FolderSize& folder) const
{
    return sizeIn(before, folder);
}

ReadingPair::Changes ReadingPair::changes() const
{
    Changes changes;
    for (const FolderSize& folder : after.folders) {
        if (const auto size = sizeIn(before, folder))
            changes.emplace(folder.path, folder.bytes - *size);
    }
    for (const FolderSize& folder : before.folders) {
        if (const auto size = sizeIn(after, folder))
            changes.emplace(folder.path, *size - folder.bytes);
    }
    return changes;
}

Moment ReadingPair::start(TimePoint since, TimePoint until)
{
    constexpr std::chrono::days kDay{1};
    return {since, until - since < kDay ? Moment::Form::minute : Moment::Form::longDay};
}

} // namespace orlen
