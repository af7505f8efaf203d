#include "scan/photos/PageCheck.h"

#include "platform/images/FeaturePrint.h"
#include "scan/photos/BlockSearch.h"
#include "scan/photos/CommonMotion.h"
#include "scan/photos/GreyPicture.h"
#include "scan/photos/WordSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// First the motion between the pages is found on pictures as small as a print's tile, where only lines of
// text can be seen, and undone. Then each block with ink is looked for near its place, in finer and finer
// pictures. In a copy all blocks are found about equally well, however blurred it is. On another page of the
// same layout most are found as well, but those with a date, a name or a sum are not.

namespace orlen {

namespace {

constexpr int kTile = FeaturePrint::kTileSide;

FeaturePrint::Tile tileOf(const GreyPicture& picture)
{
    constexpr int kReach = 6; ///< pixels, of what counts as around
    constexpr float kMiddle = 128;
    const GreyPicture small = picture.resized(kTile, kTile);
    FeaturePrint::Tile tile{};
    for (int y = 0; y < kTile; ++y) {
        for (int x = 0; x < kTile; ++x) {
            float sum = 0;
            int count = 0;
            for (int row = std::max(y - kReach, 0); row <= std::min(y + kReach, kTile - 1); ++row) {
                for (int column = std::max(x - kReach, 0); column <= std::min(x + kReach, kTile - 1);
                     ++column) {
                    sum += small.row(row)[column];
                    ++count;
                }
            }
            const float value = small.row(y)[x] - sum / static_cast<float>(count) + kMiddle;
            tile[static_cast<std::size_t>(y) * kTile + static_cast<std::size_t>(x)] =
                static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
        }
    }
    return tile;
}

/// A picture laid over another one of its size by motions found on tiles.
class Overlaid {
public:
    explicit Overlaid(GreyPicture picture) : m_picture(std::move(picture)) {}

    void add(const CommonMotion& motion) { m_motions.push_back(motion); }

    /// Where what is seen at a point comes from.
    [[nodiscard]] CommonMotion::Point source(float x, float y) const
    {
        const float right = static_cast<float>(m_picture.width()) / kTile;
        const float down = static_cast<float>(m_picture.height()) / kTile;
        for (auto motion = m_motions.rbegin(); motion != m_motions.rend(); ++motion) {
            const CommonMotion::Point move =
                motion->moveAt((x + 0.5F) / right - 0.5F, (y + 0.5F) / down - 0.5F);
            x += move.x * right;
            y += move.y * down;
        }
        return {.x = x, .y = y};
    }

    [[nodiscard]] GreyPicture seen() const
    {
        if (m_motions.empty())
            return m_picture;
        GreyPicture result(m_picture.width(), m_picture.height());
        for (int y = 0; y < result.height(); ++y) {
            for (int x = 0; x < result.width(); ++x) {
                const CommonMotion::Point from = source(static_cast<float>(x), static_cast<float>(y));
                result.row(y)[x] = m_picture.at(from.x, from.y);
            }
        }
        return result;
    }

    /// Whether a block lies well inside both pictures: at their edges one shows what the other has lost.
    [[nodiscard]] bool isInside(TilePlace block) const
    {
        constexpr int kFar = WordSearch::kBlock - 1;
        for (const TilePlace corner :
             {TilePlace{0, 0}, TilePlace{kFar, 0}, TilePlace{0, kFar}, TilePlace{kFar, kFar}}) {
            const auto x = static_cast<float>(block.x + corner.x);
            const auto y = static_cast<float>(block.y + corner.y);
            if (!contains({.x = x, .y = y}) || !contains(source(x, y)))
                return false;
        }
        return true;
    }

private:
    [[nodiscard]] bool contains(CommonMotion::Point point) const
    {
        constexpr float kEdge = 0.045F;
        const auto isWithin = [](float at, int length) {
            const auto most = static_cast<float>(length - 1);
            return at >= kEdge * most && at <= (1 - kEdge) * most;
        };
        return isWithin(point.x, m_picture.width()) && isWithin(point.y, m_picture.height());
    }

    GreyPicture m_picture;
    std::vector<CommonMotion> m_motions; ///< in the order they were found
};

Overlaid laidOver(GreyPicture other, const GreyPicture& page)
{
    constexpr int kReaches[] = {13, 4}; ///< pixels of a tile
    const FineSearch search(tileOf(page));
    const std::vector<TilePlace>& blocks = search.texturedBlocks();
    Overlaid overlaid(std::move(other));
    for (const int reach : kReaches) {
        const FineSearch there(tileOf(overlaid.seen()));
        std::vector<BlockFind> finds;
        finds.reserve(blocks.size());
        for (const TilePlace block : blocks)
            finds.push_back(search.find(block, there, reach));
        overlaid.add(CommonMotion::fitted(finds));
    }
    return overlaid;
}

/// The blocks found much worse than those in the middle; all if these are not found either.
std::size_t countBad(const std::vector<float>& correlations)
{
    constexpr float kLeastFound = 0.5F;
    constexpr float kMuchWorse = 0.65F;
    std::vector<float> sorted = correlations;
    std::ranges::sort(sorted);
    const float middle = sorted[sorted.size() / 2];
    const float limit = middle < kLeastFound ? 1 : kMuchWorse * middle;
    return static_cast<std::size_t>(std::ranges::upper_bound(sorted, limit) - sorted.begin());
}

/// Whether blocks enough for a date or a sum show other words in the other picture.
bool showsOtherWords(const RgbImage& page, const RgbImage& other)
{
    constexpr int kLeastSide = 2 * WordSearch::kBlock;
    constexpr std::size_t kFewest = 8; ///< blocks
    constexpr std::size_t kMostMissed = 2;
    constexpr std::size_t kOneOf = 150; ///< missed by chance in a long text
    const auto longest = [](const RgbImage& image) { return std::max(image.width, image.height); };
    const double scale = std::min(1.0, static_cast<double>(longest(other)) / std::max(longest(page), 1));
    const int width = static_cast<int>(std::lround(page.width * scale));
    const int height = static_cast<int>(std::lround(page.height * scale));
    if (std::min(width, height) < kLeastSide)
        return false;
    const GreyPicture grey = GreyPicture(page).resized(width, height);
    const Overlaid overlaid = laidOver(GreyPicture(other).resized(width, height), grey);
    const std::vector<WordSearch::Found> words = WordSearch::found(grey, overlaid.seen());
    if (words.size() < kFewest)
        return false;
    std::vector<float> correlations;
    for (const WordSearch::Found& found : words) {
        if (overlaid.isInside(found.block))
            correlations.push_back(found.correlation);
    }
    return correlations.size() < kFewest ||
           countBad(correlations) > std::max(kMostMissed, correlations.size() / kOneOf);
}

} // namespace

bool PageCheck::isSamePage(const RgbImage& one, const RgbImage& other)
{
    // What bends or shines in one picture is missed at times, but seldom from both sides.
    return !showsOtherWords(one, other) || !showsOtherWords(other, one);
}

} // namespace orlen
