#include "scan/photos/QuickLook.h"

#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <span>

// A tile is centred around a middle grey, so whether a pixel is darker says most of what the correlation of
// two blocks finds out: the fewer of their bits differ, the more they are alike. As in FineCheck, one motion
// is fitted to where the blocks are found, and it matters how much of the structure follows it.
//
// A row of a block is a byte. The places below each other are beside each other in memory, and their bits are
// counted together, one place in each lane.

namespace orlen {

namespace {

constexpr std::size_t kBlock = PictureOutline::kBlock;

using ByteLanes [[gnu::vector_size(16)]] = std::uint8_t;
/// The same bytes, which are shifted faster.
using WordLanes [[gnu::vector_size(16)]] = std::uint16_t;
using Counts = std::array<std::uint8_t, sizeof(ByteLanes)>;

/// How many bits of a block differ at each of some places below each other.
ByteLanes differences(const std::uint8_t* block, const std::uint8_t* places)
{
    constexpr std::uint16_t kTwos = 0x5555;
    constexpr std::uint16_t kFours = 0x3333;
    constexpr std::uint16_t kEights = 0x0f0f;
    constexpr std::size_t kTogether = 2; // rows, of which no more bits differ than four bits can tell
    WordLanes all{};
    for (std::size_t first = 0; first < kBlock; first += kTogether) {
        WordLanes some{};
        for (std::size_t y = first; y < first + kTogether; ++y) {
            ByteLanes there{};
            std::memcpy(&there, places + y, sizeof there);
            auto bits = std::bit_cast<WordLanes>(there ^ block[y]);
            bits -= (bits >> 1) & kTwos;
            some += (bits & kFours) + ((bits >> 2) & kFours);
        }
        all += (some & kEights) + ((some >> 4) & kEights);
    }
    return std::bit_cast<ByteLanes>(all);
}

} // namespace

QuickLook::QuickLook(const PictureOutline& outline) : m_outline(outline)
{
    for (std::size_t left = 0; left < m_rows.size(); ++left) {
        for (std::size_t y = 0; y < outline.rows().size(); ++y)
            m_rows[left][kReach + y] = static_cast<std::uint8_t>(outline.rows()[y] >> left);
    }
}

/// Where fewest bits differ; of some such places, the one nearest to the block's own.
BlockFind QuickLook::find(PictureOutline::Block block, const QuickLook& other) const
{
    constexpr std::uint8_t kOutside = std::numeric_limits<std::uint8_t>::max();
    constexpr float kByChance = kBlock * kBlock / 2.0F; // bits that differ
    constexpr float kScale = static_cast<float>(FeaturePrint::kTileSide) / PictureOutline::kSide;
    const int left = std::max(block.left - kReach, 0);
    const int right = std::min(block.left + kReach, kPlaces - 1);
    Counts outside{};
    for (int y = 0; y < kLanes; ++y) {
        const int top = block.top + y - kReach;
        outside[static_cast<std::size_t>(y)] = y > 2 * kReach || top < 0 || top >= kPlaces ? kOutside : 0;
    }
    std::array<ByteLanes, 2 * kReach + 1> different{};
    ByteLanes least = ByteLanes{} + kOutside;
    for (int x = left; x <= right; ++x) {
        ByteLanes& column = different[static_cast<std::size_t>(x - left)];
        column = differences(rows(block.left, block.top), other.rows(x, block.top - kReach)) |
                 std::bit_cast<ByteLanes>(outside);
        least = column < least ? column : least;
    }
    const std::uint8_t fewest = std::ranges::min(std::bit_cast<Counts>(least));
    int moveX = kLanes;
    int moveY = kLanes;
    for (int x = left; x <= right; ++x) {
        const ByteLanes& column = different[static_cast<std::size_t>(x - left)];
        if (std::bit_cast<std::array<std::uint64_t, 2>>(column == fewest) == std::array<std::uint64_t, 2>{})
            continue;
        for (int y = -kReach; y <= kReach; ++y) {
            const int across = x - block.left;
            if (column[y + kReach] == fewest &&
                std::abs(across) + std::abs(y) < std::abs(moveX) + std::abs(moveY)) {
                moveX = across;
                moveY = y;
            }
        }
    }
    return {.block = {static_cast<int>(kScale) * block.left, static_cast<int>(kScale) * block.top},
            .moveX = kScale * static_cast<float>(moveX),
            .moveY = kScale * static_cast<float>(moveY),
            .texture = static_cast<float>(block.texture),
            .correlation = std::max(0.0F, 1 - static_cast<float>(fewest) / kByChance)};
}

float QuickLook::shareIn(const QuickLook& other) const
{
    std::array<BlockFind, PictureOutline::kMostBlocks> finds;
    const auto end =
        std::ranges::transform(m_outline.blocks(), finds.begin(), [&](PictureOutline::Block block) {
            return find(block, other);
        }).out;
    const std::span<const BlockFind> found(finds.begin(), end);
    return CommonMotion::fitted(found).followingShare(found);
}

float QuickLook::hope(const QuickLook& one, const QuickLook& other)
{
    constexpr std::size_t kLeastBlocks = 4; // to tell a common motion from chance
    constexpr float kHopeless = 0.17F;      // 1 of 2,000 changed copies has less, 6 of 10 others do
    if (std::max(one.m_outline.blocks().size(), other.m_outline.blocks().size()) < kLeastBlocks)
        return 1;
    const float share = (one.shareIn(other) + other.shareIn(one)) / 2;
    return share < kHopeless ? 0 : share;
}

} // namespace orlen
