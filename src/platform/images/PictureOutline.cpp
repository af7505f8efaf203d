#include "platform/images/PictureOutline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace orlen {

namespace {

constexpr int kMiddle = 128;
constexpr int kPixels = PictureOutline::kBlock * PictureOutline::kBlock; ///< of a block

/// The variance of a block's pixels, times the squared number of pixels.
int spreadOf(const PictureOutline::Half& pixels, std::size_t left, std::size_t top)
{
    int sum = 0;
    int squares = 0;
    for (std::size_t y = top; y < top + PictureOutline::kBlock; ++y) {
        for (std::size_t x = left; x < left + PictureOutline::kBlock; ++x) {
            const int level = pixels[y * PictureOutline::kSide + x] - kMiddle;
            sum += level;
            squares += level * level;
        }
    }
    return kPixels * squares - sum * sum;
}

} // namespace

PictureOutline::PictureOutline(const TileCode::Tile& tile)
{
    constexpr int kLeastSpread = 2 * kPixels * 2 * kPixels;
    constexpr float kMostTexture = std::numeric_limits<std::uint8_t>::max();
    const Half pixels = halved(tile);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        m_rows[i / kSide] |= std::uint64_t{pixels[i] < kMiddle} << i % kSide;
    std::vector<std::pair<int, Block>> found;
    for (std::size_t top = 0; top < kSide; top += kBlock) {
        for (std::size_t left = 0; left < kSide; left += kBlock) {
            const int spread = spreadOf(pixels, left, top);
            const float texture = std::sqrt(static_cast<float>(spread)) / kPixels;
            if (spread >= kLeastSpread)
                found.push_back({spread,
                                 {static_cast<std::uint8_t>(left), static_cast<std::uint8_t>(top),
                                  static_cast<std::uint8_t>(std::min(2 * texture, kMostTexture))}});
        }
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const auto& one) { return one.first; });
    m_count = static_cast<std::uint8_t>(std::min(found.size(), kMostBlocks));
    std::transform(found.begin(), found.begin() + m_count, m_blocks.begin(),
                   [](const auto& one) { return one.second; });
}

PictureOutline::PictureOutline(const Rows& rows, std::span<const Block> blocks)
    : m_rows(rows), m_count(static_cast<std::uint8_t>(std::min(blocks.size(), kMostBlocks)))
{
    std::ranges::copy(blocks.first(m_count), m_blocks.begin());
}

PictureOutline::Half PictureOutline::halved(const TileCode::Tile& tile)
{
    Half half{};
    for (std::size_t y = 0; y < kSide; ++y) {
        for (std::size_t x = 0; x < kSide; ++x) {
            const std::uint8_t* at = &tile[2 * y * TileCode::kSide + 2 * x];
            half[y * kSide + x] = static_cast<std::uint8_t>(
                (at[0] + at[1] + at[TileCode::kSide] + at[TileCode::kSide + 1] + 2) / 4);
        }
    }
    return half;
}

} // namespace orlen
