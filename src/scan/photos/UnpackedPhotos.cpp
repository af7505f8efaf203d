#include "scan/photos/UnpackedPhotos.h"

#include "scan/photos/OnAllCores.h"

namespace orlen {

void UnpackedPhotos::prepare(std::span<const std::size_t> photos)
{
    constexpr std::size_t kMostPreviews = 16'384;
    if (m_previews.size() + photos.size() > kMostPreviews)
        m_previews.clear();
    m_tiles.clear();
    // The entries first: what is looked up afterwards stays where it is.
    std::vector<std::size_t> missing;
    for (const std::size_t photo : photos) {
        if (m_previews.try_emplace(photo).second) {
            m_tiles.try_emplace(photo);
            missing.push_back(photo);
        }
    }
    onAllCores(missing.size(), [&](std::size_t i) {
        FeaturePrint::Tile& tile = m_tiles.find(missing[i])->second;
        tile = m_photos[missing[i]].print->tile();
        m_previews.find(missing[i])->second = FineCheck::previewOf(tile);
    });
}

FineCheck::Preview UnpackedPhotos::preview(std::size_t photo) const
{
    const auto found = m_previews.find(photo);
    return found != m_previews.end() ? found->second : FineCheck::previewOf(tile(photo));
}

FeaturePrint::Tile UnpackedPhotos::tile(std::size_t photo) const
{
    const auto found = m_tiles.find(photo);
    return found != m_tiles.end() ? found->second : m_photos[photo].print->tile();
}

} // namespace orlen
