#pragma once

#include "model/Finding.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What a scan says of files and folders, by their paths. Of several ratings of one path the most careful
/// counts. A plain value; any thread.
class RatedPaths {
public:
    RatedPaths() = default;
    /// Takes what of the findings can be cleaned.
    explicit RatedPaths(const std::vector<Finding>& findings);

    /// The rating of an item of this size, in bytes: its own or that of the folder it is listed with; for a
    /// folder of which at least half is listed, that of most of these bytes. Nothing otherwise.
    [[nodiscard]] std::optional<Rating> ratingOf(std::string_view path, std::int64_t size) const;

private:
    struct Item {
        std::string path;
        std::int64_t size = 0;
        Rating rating = Rating::review;
    };

    /// The first item that the path does not come behind.
    [[nodiscard]] std::vector<Item>::const_iterator from(std::string_view path) const;
    [[nodiscard]] std::optional<Rating> ratingOfMost(std::string_view folder, std::int64_t size) const;

    std::vector<Item> m_items; ///< in path order, each path once
};

} // namespace orlen
