#include "scan/photos/QuickLook.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/BlockMoves.h"
#include "scan/photos/CommonMotion.h"
#include "scan/photos/WideBlock.h"
#include "scan/photos/WidestBlock.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <span>

#ifdef __x86_64__
#include <immintrin.h>
#endif

// A tile is centred around a middle grey, so whether a pixel is darker says most of what the correlation of
// two blocks finds out: the fewer of their bits differ, the more they are alike. As in FineCheck, one motion
// is fitted to where the blocks are found, and it matters how much of the structure follows it.
//
// How many bits differ and how far the block would have moved make up one number, too, of which the least is
// sought. On any processor, the rows of a block are the bytes of one number, and so are those below each
// other at any place. In wide lanes, four pixels of a row are looked up in a table of how many differ, at all
// places beside each other at a time. The widest count the bits of such numbers, at all places below each
// other.

namespace orlen {

namespace {

using BlockMoves::kFarthest;
using BlockMoves::kRankBits;

#ifdef __x86_64__

/// From each of sixteen pixels on, four of them. `pixels` has eight bytes of a row.
ORLEN_WIDE inline __m256i foursOf(__m256i pixels, __m256i bytes)
{
    // Shifted to the upper end of sixteen bits, as far as each pixel is from there, and back.
    const __m256i shifts = _mm256_broadcastsi128_si256(
        _mm_setr_epi16(1 << 12, 1 << 11, 1 << 10, 1 << 9, 1 << 8, 1 << 7, 1 << 6, 1 << 5));
    return _mm256_srli_epi16(_mm256_mullo_epi16(_mm256_shuffle_epi8(pixels, bytes), shifts), 12);
}

#endif

} // namespace

QuickLook::QuickLook(const PictureOutline& outline) : m_outline(outline), m_width(WideLanes::width())
{
    switch (m_width) {
    case WideLanes::Width::widest:
        fillColumnsInWidestLanes();
        break;
    case WideLanes::Width::wide:
        fillFours();
        break;
    case WideLanes::Width::narrow:
        fillColumns();
    }
}

ORLEN_WIDEST void QuickLook::fillColumnsInWidestLanes()
{
    fillColumns();
}

ORLEN_INLINE void QuickLook::fillColumns()
{
    // Sixteen pixels at a time, of which eight are taken from eight places on.
    constexpr std::size_t kByte = 8;
    std::uint8_t* next = m_pixels.data() + kMargin;
    for (std::size_t first = 0; first < kPlaces; first += kByte) {
        std::array<std::uint16_t, PictureOutline::kSide> wide{};
        for (std::size_t y = 0; y < wide.size(); ++y)
            wide[y] = static_cast<std::uint16_t>(m_outline.rows()[y] >> first);
        for (std::size_t left = first; left < std::min<std::size_t>(first + kByte, kPlaces); ++left) {
            for (std::size_t y = 0; y < wide.size(); ++y)
                next[y] = static_cast<std::uint8_t>(wide[y] >> (left - first));
            next += PictureOutline::kSide;
        }
    }
}

ORLEN_WIDE void QuickLook::fillFours()
{
#ifdef __x86_64__
    // The byte that each pixel is in and the next one. The last one's is nothing.
    const __m256i evens = _mm256_setr_m128i(_mm_set1_epi16(0x0100), _mm_set1_epi16(0x0302));
    const __m256i odds = _mm256_add_epi8(evens, _mm256_set1_epi8(1));
    std::uint8_t* next = m_pixels.data() + kMargin;
    for (const std::uint64_t& row : m_outline.rows()) {
        const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&row));
        const __m256i pixels = _mm256_broadcastsi128_si256(bytes);
        for (const char half : {'\0', '\4'}) {
            const __m256i from = _mm256_set1_epi8(half);
            const __m256i fours = _mm256_packus_epi16(foursOf(pixels, _mm256_add_epi8(evens, from)),
                                                      foursOf(pixels, _mm256_add_epi8(odds, from)));
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(next), fours);
            next += PictureOutline::kSide / 2;
        }
    }
#endif
}

/// The least comes from how many bits differ, above the rank of the move.
BlockFind QuickLook::found(PictureOutline::Block block, unsigned least)
{
    constexpr float kByChance = PictureOutline::kBlock * PictureOutline::kBlock / 2.0F; // bits that differ
    constexpr float kScale = static_cast<float>(FeaturePrint::kTileSide) / PictureOutline::kSide;
    const BlockMoves::Move move = BlockMoves::kAll.inOrder[least % (1U << kRankBits)];
    const auto fewest = static_cast<float>(least >> kRankBits);
    return {.block = {static_cast<int>(kScale) * block.left, static_cast<int>(kScale) * block.top},
            .moveX = kScale * static_cast<float>(move.right),
            .moveY = kScale * static_cast<float>(move.down),
            .texture = static_cast<float>(block.texture),
            .correlation = std::max(0.0F, 1 - fewest / kByChance)};
}

/// Where fewest bits differ; of some such places, the one nearest to the block's own.
QuickLook::Finds QuickLook::findsIn(const QuickLook& other) const
{
    Finds finds;
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks()) {
        const std::uint64_t own = pixels(block.left, block.top);
        const int bottom = std::min(block.top + kFarthest, kPlaces - 1);
        unsigned least = std::numeric_limits<unsigned>::max();
        for (int x = std::max(block.left - kFarthest, 0); x <= std::min(block.left + kFarthest, kPlaces - 1);
             ++x) {
            const int right = x - block.left + kFarthest;
            const auto& ranks = BlockMoves::kAll.rank[static_cast<std::size_t>(right)];
            for (int y = std::max(block.top - kFarthest, 0); y <= bottom; ++y) {
                const auto different = static_cast<unsigned>(std::popcount(own ^ other.pixels(x, y)));
                const int down = y - block.top + kFarthest;
                const unsigned rank = ranks[static_cast<std::size_t>(down)];
                least = std::min(least, different << kRankBits | rank);
            }
        }
        finds[count++] = found(block, least);
    }
    return finds;
}

ORLEN_WIDE QuickLook::Finds QuickLook::findsInWideLanes(const QuickLook& other) const
{
    Finds finds;
#ifdef __x86_64__
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks()) {
        const int left = block.left - kFarthest;
        const int top =
            std::clamp(block.top - kFarthest, 0, PictureOutline::kSide - BlockMoves::WideBlock::kRowsNeeded);
        BlockMoves::WideBlock sought(m_outline.rows(), block);
        sought.look(other.fours(left, top), block.top - top, std::max(-kFarthest, -block.top),
                    std::min(kFarthest, kPlaces - 1 - block.top));
        finds[count++] =
            found(block, sought.least(std::max(0, -left), std::min(2 * kFarthest, kPlaces - 1 - left)));
    }
#else
    finds = findsIn(other);
#endif
    return finds;
}

ORLEN_WIDEST QuickLook::Finds QuickLook::findsInWidestLanes(const QuickLook& other) const
{
    Finds finds;
#ifdef __x86_64__
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks()) {
        BlockMoves::WidestBlock sought(pixels(block.left, block.top));
        const int left = block.left - kFarthest;
        const int top = block.top - kFarthest;
        const int last = std::min(2 * kFarthest, kPlaces - 1 - left);
        for (int right = std::max(0, -left); right <= last; ++right)
            sought.look(other.column(left + right, top), static_cast<std::size_t>(right));
        finds[count++] =
            found(block, sought.least(std::max(0, -top), std::min(2 * kFarthest, kPlaces - 1 - top)));
    }
#else
    finds = findsIn(other);
#endif
    return finds;
}

QuickLook::Finds QuickLook::allFindsIn(const QuickLook& other) const
{
    switch (m_width) {
    case WideLanes::Width::widest:
        return findsInWidestLanes(other);
    case WideLanes::Width::wide:
        return findsInWideLanes(other);
    case WideLanes::Width::narrow:
        break;
    }
    return findsIn(other);
}

/// The share of either one's structure that is found in the other one under a common motion.
float QuickLook::sharedBy(const QuickLook& one, const QuickLook& other)
{
    const Finds finds = one.allFindsIn(other);
    const Finds otherFinds = other.allFindsIn(one);
    const auto found = std::span(finds).first(one.m_outline.blocks().size());
    const auto otherFound = std::span(otherFinds).first(other.m_outline.blocks().size());
    const auto [motion, otherMotion] = CommonMotion::fitted(found, otherFound);
    return (motion.followingShare(found) + otherMotion.followingShare(otherFound)) / 2;
}

float QuickLook::hope(const QuickLook& one, const QuickLook& other)
{
    constexpr std::size_t kLeastBlocks = 4; // to tell a common motion from chance
    constexpr float kHopeless = 0.17F;      // 1 of 2,000 changed copies has less, 6 of 10 others do
    if (std::max(one.m_outline.blocks().size(), other.m_outline.blocks().size()) < kLeastBlocks)
        return 1;
    const float share = sharedBy(one, other);
    return share < kHopeless ? 0 : share;
}

} // namespace orlen
