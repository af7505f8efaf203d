#include "scan/photos/QuickLook.h"

#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <span>
#include <tuple>

// A tile is centred around a middle grey, so whether a pixel is darker says most of what the correlation of
// two blocks finds out: the fewer of their bits differ, the more they are alike. As in FineCheck, one motion
// is fitted to where the blocks are found, and it matters how much of the structure follows it.
//
// The rows of a block are the bytes of one number, and so are those below each other at any place. How many
// bits differ and how far the block would have moved make up one number, too, of which the least is sought.

namespace orlen {

namespace {

struct Move {
    std::int8_t right = 0; ///< pixels
    std::int8_t down = 0;  ///< pixels
};

/// All moves of up to that many pixels each way, and which of two that match equally well is taken: the
/// shorter one.
template <int reach>
struct Moves {
    static constexpr int kSide = 2 * reach + 1;

    constexpr Moves()
    {
        for (int i = 0; i < kSide * kSide; ++i)
            inOrder[static_cast<std::size_t>(i)] = {static_cast<std::int8_t>(i / kSide - reach),
                                                    static_cast<std::int8_t>(i % kSide - reach)};
        const auto length = [](int way) { return way < 0 ? -way : way; };
        std::ranges::sort(inOrder, {}, [&](Move move) {
            return std::tuple(length(move.right) + length(move.down), move.right, move.down);
        });
        for (std::size_t i = 0; i < inOrder.size(); ++i)
            rank[static_cast<std::size_t>(inOrder[i].right + reach)]
                [static_cast<std::size_t>(inOrder[i].down + reach)] = static_cast<std::uint8_t>(i);
    }

    std::array<Move, std::size_t{kSide} * kSide> inOrder{};
    std::array<std::array<std::uint8_t, kSide>, kSide> rank{}; ///< by the way right, then down
};

/// Whether the processor counts bits in one instruction.
bool hasBitCount()
{
#ifdef __x86_64__
    static const bool has = __builtin_cpu_supports("popcnt") != 0;
    return has;
#else
    return true;
#endif
}

} // namespace

QuickLook::QuickLook(const PictureOutline& outline) : m_outline(outline)
{
    // Sixteen pixels at a time, of which eight are taken from eight places on.
    constexpr std::size_t kByte = 8;
    for (std::size_t first = 0; first < m_rows.size(); first += kByte) {
        std::array<std::uint16_t, PictureOutline::kSide> wide{};
        for (std::size_t y = 0; y < wide.size(); ++y)
            wide[y] = static_cast<std::uint16_t>(outline.rows()[y] >> first);
        for (std::size_t left = first; left < std::min(first + kByte, m_rows.size()); ++left) {
            for (std::size_t y = 0; y < wide.size(); ++y)
                m_rows[left][y] = static_cast<std::uint8_t>(wide[y] >> (left - first));
        }
    }
}

/// Where fewest bits differ; of some such places, the one nearest to the block's own.
[[gnu::always_inline]] inline BlockFind QuickLook::find(PictureOutline::Block block,
                                                        const QuickLook& other) const
{
    static constexpr Moves<kReach> kMoves;
    constexpr unsigned kRankBits = 7;
    constexpr float kByChance = PictureOutline::kBlock * PictureOutline::kBlock / 2.0F; // bits that differ
    constexpr float kScale = static_cast<float>(FeaturePrint::kTileSide) / PictureOutline::kSide;
    const std::uint64_t own = pixels(block.left, block.top);
    const int top = std::max(block.top - kReach, 0);
    const int bottom = std::min(block.top + kReach, kPlaces - 1);
    unsigned least = std::numeric_limits<unsigned>::max();
    for (int x = std::max(block.left - kReach, 0); x <= std::min(block.left + kReach, kPlaces - 1); ++x) {
        const int right = x - block.left + kReach;
        const int down = top - block.top + kReach;
        const std::uint8_t* rank =
            &kMoves.rank[static_cast<std::size_t>(right)][static_cast<std::size_t>(down)];
        for (int y = top; y <= bottom; ++y, ++rank) {
            const auto different = static_cast<unsigned>(std::popcount(own ^ other.pixels(x, y)));
            least = std::min(least, different << kRankBits | *rank);
        }
    }
    const Move move = kMoves.inOrder[least % (1U << kRankBits)];
    const auto fewest = static_cast<float>(least >> kRankBits);
    return {.block = {static_cast<int>(kScale) * block.left, static_cast<int>(kScale) * block.top},
            .moveX = kScale * static_cast<float>(move.right),
            .moveY = kScale * static_cast<float>(move.down),
            .texture = static_cast<float>(block.texture),
            .correlation = std::max(0.0F, 1 - fewest / kByChance)};
}

QuickLook::Finds QuickLook::findsIn(const QuickLook& other) const
{
    Finds finds;
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks())
        finds[count++] = find(block, other);
    return finds;
}

#ifdef __x86_64__
[[gnu::target("popcnt")]]
#endif
QuickLook::Finds
QuickLook::countedFindsIn(const QuickLook& other) const
{
    Finds finds;
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks())
        finds[count++] = find(block, other);
    return finds;
}

float QuickLook::shareIn(const QuickLook& other) const
{
    const Finds finds = hasBitCount() ? countedFindsIn(other) : findsIn(other);
    const auto found = std::span(finds).first(m_outline.blocks().size());
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
