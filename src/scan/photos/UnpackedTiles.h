#pragma once

#include "scan/photos/PhotoAnalyzer.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace orlen {

/// The tiles of photos that were asked for last, and of those that will be asked for again, so that few are
/// unpacked more than once. 100 MB at most. Borrows the photos. Any thread.
class UnpackedTiles {
public:
    using Shared = std::shared_ptr<const FeaturePrint::Tile>;

    explicit UnpackedTiles(const std::vector<PhotoInfo>& photos) : m_photos(photos) {}

    /// By its index in the list; null without a print.
    [[nodiscard]] Shared of(std::size_t photo);
    /// Has its tile outlast others if it is still there and room is left for them.
    void keep(std::size_t photo);

private:
    static constexpr std::size_t kMost = 6'144;
    static constexpr std::size_t kMostLasting = kMost / 8 * 7;

    struct Entry {
        Shared tile;
        bool isLasting = false;
    };
    [[nodiscard]] std::size_t freed();

    const std::vector<PhotoInfo>& m_photos;
    std::mutex m_mutex; ///< for what follows
    std::unordered_map<std::size_t, Entry> m_tiles;
    std::vector<std::size_t> m_kept; ///< photos, the oldest at `m_oldest`
    std::size_t m_oldest = 0;
    std::size_t m_lasting = 0;
};

} // namespace orlen
