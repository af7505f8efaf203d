#pragma once

#include "model/FileEntry.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Similar photos of which one is kept.
struct PhotoSet {
    std::string keeperName;           ///< file name of the photo that stays; empty: not told
    std::string keeper;               ///< its path; empty when it was not found
    std::vector<std::size_t> entries; ///< numbers of the others, in their order

    friend bool operator==(const PhotoSet&, const PhotoSet&) = default;
};

/// Puts the entries of a finding of similar photos together again. An entry tells only the name of the photo
/// that its set keeps; where that is, is looked up beside the entries. Any thread.
namespace PhotoSets {

using Exists = std::function<bool(const std::string& path)>;

/// The file name in "Similar to NAME — keeping the sharpest"; nothing in any other note.
[[nodiscard]] std::optional<std::string_view> keeperName(const FileEntry& entry);

/// The sets in the order of their first entries; an entry that tells of no keeper is a set of its own.
/// `exists` is asked for each possible place of a keeper once: it may block on the disk.
[[nodiscard]] std::vector<PhotoSet> of(std::span<const FileEntry> entries, const Exists& exists);

} // namespace PhotoSets

} // namespace orlen
