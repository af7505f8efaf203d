#include "scan/photos/UnpackedTiles.h"

namespace orlen {

UnpackedTiles::Shared UnpackedTiles::of(std::size_t photo)
{
    if (!m_photos[photo].print)
        return nullptr;
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = m_tiles.find(photo); found != m_tiles.end())
            return found->second.tile;
    }
    auto tile = std::make_shared<const FeaturePrint::Tile>(m_photos[photo].print->tile());
    const std::scoped_lock lock(m_mutex);
    if (!m_tiles.try_emplace(photo, Entry{tile}).second)
        return tile;
    if (m_kept.size() < kMost)
        m_kept.push_back(photo);
    else
        m_kept[freed()] = photo;
    return tile;
}

/// The place of the oldest that need not last, which is gone.
std::size_t UnpackedTiles::freed()
{
    while (true) {
        const std::size_t place = m_oldest;
        m_oldest = (m_oldest + 1) % kMost;
        const auto found = m_tiles.find(m_kept[place]);
        if (found->second.isLasting)
            continue;
        m_tiles.erase(found);
        return place;
    }
}

void UnpackedTiles::keep(std::size_t photo)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_tiles.find(photo);
    if (found == m_tiles.end() || found->second.isLasting || m_lasting == kMostLasting)
        return;
    found->second.isLasting = true;
    ++m_lasting;
}

} // namespace orlen
