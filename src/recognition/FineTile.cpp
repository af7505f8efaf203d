#include "recognition/FineTile.h"

#include "recognition/GaussianBlur.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace orlen {

FeaturePrint::Tile FineTile::tileOf(const std::vector<float>& grey)
{
    constexpr float kSigma = 4;
    constexpr float kMiddle = 128;
    const std::vector<float> coarse = GaussianBlur::blurred(grey, FeaturePrint::kTileSide, kSigma);
    FeaturePrint::Tile tile{};
    for (std::size_t i = 0; i < tile.size(); ++i)
        tile[i] = static_cast<std::uint8_t>(std::clamp(std::lround(grey[i] - coarse[i] + kMiddle), 0L, 255L));
    return tile;
}

} // namespace orlen
