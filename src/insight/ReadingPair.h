#pragma once

#include "clean/FolderReading.h"
#include "model/Message.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>

namespace orlen {

/// Two scans to compare. Pure; any thread. Valid as long as the readings are.
struct ReadingPair {
    const FolderReading& before;
    const FolderReading& after;

    /// The last scan of a period and the last one before it, or the first of all when there is none. Nothing
    /// when that leaves nothing to compare. The readings are sorted by date.
    [[nodiscard]] static std::optional<ReadingPair> over(std::span<const FolderReading> readings,
                                                         TimePoint from, TimePoint to = TimePoint::max());
    /// The last two scans.
    [[nodiscard]] static std::optional<ReadingPair> last(std::span<const FolderReading> readings);

    /// The size, before, of a folder of `after`; 0 for one that was not there, or far smaller. Nothing when
    /// too little is known of it.
    [[nodiscard]] std::optional<std::int64_t> sizeBefore(const FolderSize& folder) const;

    using Changes = std::map<std::string, std::int64_t, std::less<>>;
    /// What each folder gained or, negative, lost, with what is in it: bytes by path. Without folders of
    /// which too little is known.
    [[nodiscard]] Changes changes() const;

    /// When the first of two scans was, for a message: with the time of day if that is needed to tell them
    /// apart.
    [[nodiscard]] static Moment start(TimePoint since, TimePoint until);
};

} // namespace orlen
