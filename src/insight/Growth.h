#pragma once

#include "clean/FolderReading.h"
#include "model/Message.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orlen {

struct ReadingPair;

/// What grew between two scans.
struct Growth {
    struct Folder {
        std::string path;
        std::int64_t before = 0; ///< bytes; 0 for one that was not there, or far smaller than now
        std::int64_t now = 0;    ///< bytes

        [[nodiscard]] std::int64_t bytes() const { return now - before; }
        friend bool operator==(const Folder&, const Folder&) = default;
    };

    TimePoint since; ///< of the earlier scan
    TimePoint until; ///< of the later one
    /// Those that grew by at least 10,000,000 bytes, the most grown first, at most 50. Nothing is told twice:
    /// a folder is left out when folders in it explain most of its growth, and those when they do not.
    std::vector<Folder> folders;

    friend bool operator==(const Growth&, const Growth&) = default;

    /// `since` for a message: with the time of day if that is needed to tell the scans apart.
    [[nodiscard]] Moment start() const;

    /// Compares the last scan of a period with the last one before it, or with the first of all when there is
    /// none. Nothing when that leaves nothing to compare. The readings are sorted by date. Pure; any thread.
    [[nodiscard]] static std::optional<Growth> between(std::span<const FolderReading> readings,
                                                       TimePoint from, TimePoint to = TimePoint::max());
    [[nodiscard]] static Growth between(const ReadingPair& pair);
    /// Compares the last two scans.
    [[nodiscard]] static std::optional<Growth> sinceLastScan(std::span<const FolderReading> readings);
};

} // namespace orlen
