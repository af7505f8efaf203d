#pragma once

#include "clean/CleanRecord.h"

#include <cstdint>
#include <stop_token>

namespace orlen {
class WordSearch;
}

/// Where the items of past clean-ups are now.
namespace orlen::Whereabouts {

enum class Place {
    inTrash,  ///< still in the Trash
    restored, ///< was put back
    gone,     ///< neither: the Trash was emptied, or the item was moved
};

/// Blocks on the disk; any thread.
[[nodiscard]] Place of(const TrashedItem& item);

/// Of a record's items.
struct Sums {
    int inTrash = 0;
    std::int64_t bytesInTrash = 0;
    /// Bytes of what is neither in the Trash nor back in its place.
    std::int64_t bytesFreed = 0;

    friend bool operator==(const Sums&, const Sums&) = default;
};
/// Blocks on the disk; any thread. Incomplete if stopped.
[[nodiscard]] Sums sumsOf(const CleanRecord& record, const std::stop_token& stop);

/// Whether the words are in the item's name or path. Pure.
[[nodiscard]] bool isFound(const TrashedItem& item, const WordSearch& search);

} // namespace orlen::Whereabouts
