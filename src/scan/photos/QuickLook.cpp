#include "scan/photos/QuickLook.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <span>
#include <tuple>

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

constexpr int kFarthest = 5; ///< pixels that a block may have moved
constexpr Moves<kFarthest> kBlockMoves;
constexpr unsigned kRankBits = 8;

#ifdef __x86_64__

constexpr std::size_t kAtATime = 16;

/// For each way down the ranks of the ways to the right, and something where there is none.
constexpr auto kRanksOfWays = [] {
    std::array<std::array<std::uint8_t, kAtATime>, Moves<kFarthest>::kSide> ranks{};
    for (std::size_t down = 0; down < ranks.size(); ++down) {
        for (std::size_t right = 0; right < ranks.size(); ++right)
            ranks[down][right] = kBlockMoves.rank[right][down];
    }
    return ranks;
}();

/// How many bits of any four differ from those that come first.
constexpr auto kDifferentBits = [] {
    constexpr unsigned kFours = 16;
    std::array<std::array<std::uint8_t, kFours>, kFours> different{};
    for (unsigned one = 0; one < kFours; ++one) {
        for (unsigned other = 0; other < kFours; ++other)
            different[one][other] = static_cast<std::uint8_t>(std::popcount(one ^ other));
    }
    return different;
}();

/// Looks for a block at sixteen places beside each other, of which the first eleven count, in one row after
/// the other. The left halves of its rows are in the lower half of the lanes, the right ones in the upper.
class WideBlock {
public:
    static constexpr int kRows = PictureOutline::kBlock;
    static constexpr int kRowsNeeded = kRows + 2 * kFarthest;

    ORLEN_WIDE WideBlock(const PictureOutline::Rows& rows, PictureOutline::Block block)
    {
        for (std::size_t i = 0; i < kRows; ++i) {
            const std::uint64_t pixels = rows[block.top + i] >> block.left;
            m_rows[i] = halves(kDifferentBits[pixels % 16].data(), kDifferentBits[pixels / 16 % 16].data());
        }
    }

    /// Those that moved from `first` to `last` down, at least two ways. `fours` are those of the leftmost
    /// place in the topmost row that is needed, which is `above` rows above the block.
    ORLEN_WIDE void look(const std::uint8_t* fours, int above, int first, int last)
    {
        __m256i rows[kRowsNeeded]; // each for up to eight rows of places
#pragma GCC unroll 18
        for (int i = 0; i < kRowsNeeded; ++i, fours += PictureOutline::kSide)
            rows[i] = halves(fours, fours + 4);
        // At an edge some are looked at again, which changes nothing.
        for (int down = -kFarthest; down <= kFarthest; down += 2) {
            const int one = std::clamp(down, first, last - 1);
            lookAtTwo(rows + above + one, kRanksOfWays[static_cast<std::size_t>(one + kFarthest)].data());
        }
    }

    /// Of the places from one to another.
    [[nodiscard]] ORLEN_WIDE unsigned least(int first, int last) const
    {
        constexpr std::int16_t kHalf = kAtATime / 2;
        const __m128i lanes = _mm_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7);
        const __m128i left = within(folded(m_left), lanes, first, last);
        const __m128i right =
            within(folded(m_right), _mm_add_epi16(lanes, _mm_set1_epi16(kHalf)), first, last);
        return static_cast<std::uint16_t>(_mm_cvtsi128_si32(_mm_minpos_epu16(_mm_min_epu16(left, right))));
    }

private:
    ORLEN_WIDE static __m256i halves(const std::uint8_t* lower, const std::uint8_t* upper)
    {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(lower));
        const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(upper));
        return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
    }
    /// How many bits differ in a row of places, for either half.
    ORLEN_WIDE [[nodiscard]] __m256i different(const __m256i* rows) const
    {
        __m256i sums = _mm256_shuffle_epi8(m_rows[0], rows[0]);
        for (std::size_t i = 1; i < kRows; ++i)
            sums = _mm256_add_epi8(sums, _mm256_shuffle_epi8(m_rows[i], rows[i]));
        return sums;
    }
    /// At two rows of places.
    ORLEN_WIDE void lookAtTwo(const __m256i* rows, const std::uint8_t* rankOfBoth)
    {
        const __m256i one = different(rows);
        const __m256i other = different(rows + 1);
        const __m256i sums = _mm256_add_epi8(_mm256_permute2x128_si256(one, other, 0x20),
                                             _mm256_permute2x128_si256(one, other, 0x31));
        const __m256i ranks = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(rankOfBoth));
        m_left = _mm256_min_epu16(m_left, _mm256_unpacklo_epi8(ranks, sums));
        m_right = _mm256_min_epu16(m_right, _mm256_unpackhi_epi8(ranks, sums));
    }
    ORLEN_WIDE static __m128i folded(__m256i found)
    {
        return _mm_min_epu16(_mm256_castsi256_si128(found), _mm256_extracti128_si256(found, 1));
    }
    ORLEN_WIDE static __m128i within(__m128i found, __m128i lanes, int first, int last)
    {
        const __m128i isOutside =
            _mm_or_si128(_mm_cmpgt_epi16(_mm_set1_epi16(static_cast<std::int16_t>(first)), lanes),
                         _mm_cmpgt_epi16(lanes, _mm_set1_epi16(static_cast<std::int16_t>(last))));
        return _mm_or_si128(found, isOutside);
    }

    __m256i m_rows[kRows];
    // The least at the left places and at the right ones, each of both rows that are looked at.
    __m256i m_left = _mm256_set1_epi16(-1);
    __m256i m_right = _mm256_set1_epi16(-1);
};

/// From each of sixteen pixels on, four of them. `pixels` has eight bytes of a row.
ORLEN_WIDE inline __m256i foursOf(__m256i pixels, __m256i bytes)
{
    // Shifted to the upper end of sixteen bits, as far as each pixel is from there, and back.
    const __m256i shifts = _mm256_broadcastsi128_si256(
        _mm_setr_epi16(1 << 12, 1 << 11, 1 << 10, 1 << 9, 1 << 8, 1 << 7, 1 << 6, 1 << 5));
    return _mm256_srli_epi16(_mm256_mullo_epi16(_mm256_shuffle_epi8(pixels, bytes), shifts), 12);
}

// The widest lanes hold a block's rows each, at eight places below each other. There are eleven, so for the
// last three the rows are counted apart, and the least is sought in two of the four words of each lane.

constexpr std::size_t kWords = 32;
constexpr std::size_t kWordsOfPlace = 4;

/// For each word which of the places it is of.
constexpr auto kPlaceOfWord = [] {
    std::array<std::uint16_t, kWords> places{};
    for (std::size_t word = 0; word < kWords; ++word) {
        const std::size_t lane = word / kWordsOfPlace;
        const std::size_t half = word % kWordsOfPlace;
        places[word] = static_cast<std::uint16_t>(half < 2 ? lane + 8 * half : kWords);
    }
    return places;
}();

/// The ranks of the ways down, for each way to the right.
constexpr auto kRanksOfWords = [] {
    std::array<std::array<std::uint16_t, kWords>, Moves<kFarthest>::kSide> ranks{};
    for (std::size_t right = 0; right < ranks.size(); ++right) {
        for (std::size_t word = 0; word < kWords; ++word) {
            if (const std::size_t down = kPlaceOfWord[word]; down < ranks.size())
                ranks[right][word] = kBlockMoves.rank[right][down];
        }
    }
    return ranks;
}();

/// The bytes of eight numbers, each from one further on.
constexpr auto kBytesOfPlaces = [] {
    std::array<std::uint8_t, 64> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i / 8 + i % 8);
    return bytes;
}();

/// As WideBlock.
class WidestBlock {
public:
    ORLEN_WIDEST explicit WidestBlock(std::uint64_t own)
        : m_own(_mm512_set1_epi64(static_cast<std::int64_t>(own)))
    {
    }

    /// At eleven places below each other, that far right.
    ORLEN_WIDEST void look(const std::uint8_t* column, std::size_t right)
    {
        const __m512i pixels = _mm512_loadu_si512(column);
        const __m512i bytes = _mm512_loadu_si512(kBytesOfPlaces.data());
        const __m512i bytesOfLast = _mm512_add_epi8(bytes, _mm512_set1_epi8(8));
        const __m512i first = _mm512_slli_epi64(different(_mm512_permutexvar_epi8(bytes, pixels)), kRankBits);
        const __m512i second =
            _mm512_slli_epi64(different(_mm512_permutexvar_epi8(bytesOfLast, pixels)), 16 + kRankBits);
        const __m512i ranks = _mm512_loadu_si512(kRanksOfWords[right].data());
        m_least = _mm512_min_epu16(m_least, _mm512_or_si512(_mm512_or_si512(first, second), ranks));
    }

    /// Of the places from one to another.
    [[nodiscard]] ORLEN_WIDEST unsigned least(int first, int last) const
    {
        const __m512i places = _mm512_sub_epi16(_mm512_loadu_si512(kPlaceOfWord.data()),
                                                _mm512_set1_epi16(static_cast<std::int16_t>(first)));
        const __mmask32 isOutside =
            _mm512_cmpgt_epu16_mask(places, _mm512_set1_epi16(static_cast<std::int16_t>(last - first)));
        const __m512i within = _mm512_mask_blend_epi16(isOutside, m_least, _mm512_set1_epi16(-1));
        const __m256i half =
            _mm256_min_epu16(_mm512_castsi512_si256(within), _mm512_extracti64x4_epi64(within, 1));
        const __m128i quarter =
            _mm_min_epu16(_mm256_castsi256_si128(half), _mm256_extracti128_si256(half, 1));
        return static_cast<std::uint16_t>(_mm_cvtsi128_si32(_mm_minpos_epu16(quarter)));
    }

private:
    ORLEN_WIDEST [[nodiscard]] __m512i different(__m512i rows) const
    {
        return _mm512_popcnt_epi64(_mm512_xor_si512(rows, m_own));
    }

    __m512i m_own;
    __m512i m_least = _mm512_set1_epi16(-1);
};

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
    const Move move = kBlockMoves.inOrder[least % (1U << kRankBits)];
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
            const auto& ranks = kBlockMoves.rank[static_cast<std::size_t>(right)];
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
        const int top = std::clamp(block.top - kFarthest, 0, PictureOutline::kSide - WideBlock::kRowsNeeded);
        WideBlock sought(m_outline.rows(), block);
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
        WidestBlock sought(pixels(block.left, block.top));
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
