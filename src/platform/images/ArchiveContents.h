#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// What lies in an archive, in the order of the archive.
struct ArchiveContents {
    struct Item {
        std::string name;        ///< with its folders; any bytes but none at all
        std::int64_t bytes = -1; ///< unpacked; -1: the archive does not tell
        bool isFolder = false;

        friend bool operator==(const Item&, const Item&) = default;
    };
    enum class Extent : std::uint8_t {
        whole,
        beginning, ///< there is more, or it takes too long to tell
        damaged,   ///< what comes behind could not be read
    };

    static constexpr std::size_t kMostItems = 500;
    static constexpr std::size_t kLongestName = 400; ///< bytes; longer names are cut in front

    std::vector<Item> items;
    Extent extent = Extent::whole;

    friend bool operator==(const ArchiveContents&, const ArchiveContents&) = default;
};

} // namespace orlen
