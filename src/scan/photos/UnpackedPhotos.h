#pragma once

#include "scan/photos/FineCheck.h"
#include "scan/photos/PhotoAnalyzer.h"

#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

namespace orlen {

/// The tiles of photos and their previews, so that most are unpacked once: the previews of the photos looked
/// at lately (70 MB), and the tiles of those that were last prepared. Borrows the photos, which have prints.
/// Reading from any thread, while none prepares.
class UnpackedPhotos {
public:
    explicit UnpackedPhotos(const std::vector<PhotoInfo>& photos) : m_photos(photos) {}

    /// Unpacks what is not here, on all cores, and forgets other tiles. Each photo once.
    void prepare(std::span<const std::size_t> photos);

    /// Unpacked now if need be.
    [[nodiscard]] FineCheck::Preview preview(std::size_t photo) const;
    [[nodiscard]] FeaturePrint::Tile tile(std::size_t photo) const;

private:
    const std::vector<PhotoInfo>& m_photos;
    std::unordered_map<std::size_t, FineCheck::Preview> m_previews;
    std::unordered_map<std::size_t, FeaturePrint::Tile> m_tiles;
};

} // namespace orlen
