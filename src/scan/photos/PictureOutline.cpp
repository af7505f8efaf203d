#include "scan/photos/PictureOutline.h"

#include "scan/photos/FineCheck.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace orlen {

PictureOutline::PictureOutline(const FeaturePrint::Tile& tile)
{
    constexpr std::uint8_t kMiddle = 128;
    constexpr float kMostTexture = std::numeric_limits<std::uint8_t>::max();
    const FineCheck::Preview preview = FineCheck::previewOf(tile);
    for (std::size_t i = 0; i < preview.size(); ++i)
        m_rows[i / kSide] |= std::uint64_t{preview[i] < kMiddle} << i % kSide;
    const CoarseSearch search(preview);
    const std::vector<TilePlace>& blocks = search.texturedBlocks();
    m_count = static_cast<std::uint8_t>(std::min(blocks.size(), kMostBlocks));
    std::transform(blocks.begin(), blocks.begin() + m_count, m_blocks.begin(), [&](TilePlace block) {
        return Block{static_cast<std::uint8_t>(block.x), static_cast<std::uint8_t>(block.y),
                     static_cast<std::uint8_t>(std::min(2 * search.texture(block), kMostTexture))};
    });
}

} // namespace orlen
