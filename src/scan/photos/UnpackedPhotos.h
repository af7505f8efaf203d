#pragma once

#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/PictureOutline.h"

#include <cstddef>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace orlen {

/// The outlines of photos, so that most tiles are unpacked once, and the tiles of those that were last
/// prepared. 0.7 kB for each photo. Borrows the photos, which have prints. Reading from any thread, while
/// none prepares.
class UnpackedPhotos {
public:
    explicit UnpackedPhotos(const std::vector<PhotoInfo>& photos)
        : m_photos(photos), m_outlines(photos.size())
    {
    }

    /// Unpacks what has no outline yet, on all cores, and forgets other tiles. Each photo once.
    void prepare(std::span<const std::size_t> photos);

    /// Of a photo that was prepared.
    [[nodiscard]] const PictureOutline& outline(std::size_t photo) const { return *m_outlines[photo]; }
    /// Unpacked now if need be.
    [[nodiscard]] FeaturePrint::Tile tile(std::size_t photo) const;

private:
    const std::vector<PhotoInfo>& m_photos;
    std::vector<std::optional<PictureOutline>> m_outlines; ///< per photo
    std::unordered_map<std::size_t, FeaturePrint::Tile> m_tiles;
};

} // namespace orlen
