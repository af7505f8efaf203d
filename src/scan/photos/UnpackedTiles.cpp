#include "scan/photos/UnpackedTiles.h"

namespace orlen {

UnpackedTiles::Shared UnpackedTiles::of(std::size_t photo)
{
    if (!m_photos[photo].print)
        return nullptr;
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = m_tiles.find(photo); found != m_tiles.end())
            return found->second;
    }
    auto tile = std::make_shared<const FeaturePrint::Tile>(m_photos[photo].print->tile());
    const std::scoped_lock lock(m_mutex);
    if (!m_tiles.try_emplace(photo, tile).second)
        return tile;
    if (m_kept.size() < kMost) {
        m_kept.push_back(photo);
    } else {
        m_tiles.erase(m_kept[m_oldest]);
        m_kept[m_oldest] = photo;
        m_oldest = (m_oldest + 1) % kMost;
    }
    return tile;
}

} // namespace orlen
