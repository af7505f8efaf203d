#include "scan/photos/UnpackedPhotos.h"

#include "scan/photos/OnAllCores.h"

namespace orlen {

void UnpackedPhotos::prepare(std::span<const std::size_t> photos)
{
    m_tiles.clear();
    // The entries first: what is looked up afterwards stays where it is.
    std::vector<std::size_t> missing;
    for (const std::size_t photo : photos) {
        if (!m_outlines[photo]) {
            m_tiles.try_emplace(photo);
            missing.push_back(photo);
        }
    }
    onAllCores(missing.size(), [&](std::size_t i) {
        FeaturePrint::Tile& tile = m_tiles.find(missing[i])->second;
        tile = m_photos[missing[i]].print->tile();
        m_outlines[missing[i]].emplace(tile);
    });
}

FeaturePrint::Tile UnpackedPhotos::tile(std::size_t photo) const
{
    const auto found = m_tiles.find(photo);
    return found != m_tiles.end() ? found->second : m_photos[photo].print->tile();
}

} // namespace orlen
