#pragma once

#include "model/FileEntry.h"
#include "model/FindingKind.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// One group of entries of one kind. There is at most one finding of each kind in a result.
struct Finding {
    /// Takes its texts from the catalogue and sorts the entries largest first (equal sizes keep their order).
    /// Rated `review` without a reason until the Rater decides; cleanable unless the kind is `trash`.
    Finding(FindingKind kind, std::vector<FileEntry> items);

    FindingKind kind;
    Text title;
    Text explanation;
    std::string symbol;
    OrlenCategory category;
    Rating rating = Rating::review;
    Text reason;
    std::vector<FileEntry> items;
    bool cleanable = true; ///< whether its entries may be moved to the Trash at all

    /// Identity: the kind's raw value.
    [[nodiscard]] std::string_view id() const { return rawValue(kind); }
    /// The entry's own rating, else the finding's.
    [[nodiscard]] Rating effectiveRating(const FileEntry& entry) const
    {
        return entry.rating.value_or(rating);
    }
    /// Bytes of the entries whose effective rating is `safe`; 0 when not cleanable.
    [[nodiscard]] std::int64_t safeSize() const;
    /// Bytes of all entries.
    [[nodiscard]] std::int64_t totalSize() const;

    /// Whether it deserves a card: what known places hold does only from 1 MB.
    [[nodiscard]] bool isNotable() const;

    friend bool operator==(const Finding&, const Finding&) = default;
};

/// Whether ticking all entries of a finding with this rating ticks the entry: not if it is rated Keep, or
/// only ever ticked alone.
[[nodiscard]] bool isTickedAlong(const FileEntry& entry, Rating findingRating);

/// Overflow-checked sum of the entries' sizes, bytes.
[[nodiscard]] std::int64_t sizeOf(const std::vector<FileEntry>& entries);

} // namespace orlen
