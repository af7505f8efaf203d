#include "scan/photos/SamePicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace orlen {

namespace {

constexpr std::size_t kSide = FeaturePrint::kTileSide;
constexpr std::size_t kCell = 4;
constexpr std::size_t kCells = kSide / kCell; ///< along a side

/// Sums of products over some pixels of two tiles.
struct Products {
    std::int32_t oneOne = 0;
    std::int32_t otherOther = 0;
    std::int32_t oneOther = 0;

    Products& operator+=(const Products& more)
    {
        oneOne += more.oneOne;
        otherOther += more.otherOther;
        oneOther += more.oneOther;
        return *this;
    }
};

using Cells = std::array<Products, kCells * kCells>;

/// A tile around 0, in squares of `step` pixels: the sums of them.
template <std::size_t step>
std::array<std::int32_t, kSide * kSide / (step * step)> levelsOf(const FeaturePrint::Tile& tile)
{
    constexpr std::int32_t kMiddle = 128 * step * step;
    constexpr std::size_t kSquares = kSide / step;
    std::array<std::int32_t, kSquares * kSquares> levels;
    for (std::size_t y = 0; y < kSquares; ++y) {
        for (std::size_t x = 0; x < kSquares; ++x) {
            std::int32_t sum = -kMiddle;
            for (std::size_t row = 0; row < step; ++row) {
                for (std::size_t column = 0; column < step; ++column)
                    sum += tile[(y * step + row) * kSide + x * step + column];
            }
            levels[y * kSquares + x] = sum;
        }
    }
    return levels;
}

template <std::size_t step>
Cells cellsOf(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    constexpr std::size_t kSquares = kSide / step;
    constexpr std::size_t kOfCell = kCell / step;
    const auto ones = levelsOf<step>(one);
    const auto others = levelsOf<step>(other);
    Cells cells{};
    for (std::size_t y = 0; y < kSquares; ++y) {
        for (std::size_t x = 0; x < kSquares; ++x) {
            const std::int32_t a = ones[y * kSquares + x];
            const std::int32_t b = others[y * kSquares + x];
            cells[y / kOfCell * kCells + x / kOfCell] += {a * a, b * b, a * b};
        }
    }
    return cells;
}

/// The share of a place's structure that is left when one tile is subtracted from the other. `noise` may come
/// and go in a plain area.
float leftOver(const Products& place, double contrast, double noise)
{
    const double one = place.oneOne * contrast;
    const double other = place.otherOther / contrast;
    return static_cast<float>((one + other - 2.0 * place.oneOther) / ((one + other) / 2 + noise));
}

/// Of the encoders and of the packing: some levels in each pixel of a place.
double noiseOf(std::size_t step)
{
    return 10.0 * 10.0 * 4 * kCell * kCell * static_cast<double>(step * step);
}

/// Two by two cells.
Products placeAt(const Cells& cells, std::size_t x, std::size_t y)
{
    Products place = cells[y * kCells + x];
    place += cells[y * kCells + x + 1];
    place += cells[(y + 1) * kCells + x];
    place += cells[(y + 1) * kCells + x + 1];
    return place;
}

float worstLeftOver(const Cells& cells, std::size_t step)
{
    const double noise = noiseOf(step);
    constexpr float kNothingInCommon = 2;
    Products all;
    for (const Products& cell : cells)
        all += cell;
    if (all.oneOne == 0 || all.otherOther == 0)
        return all.oneOne == all.otherOther ? 0 : kNothingInCommon;
    const double contrast = std::sqrt(static_cast<double>(all.otherOther) / all.oneOne);
    float worst = 0;
    // Places half over each other.
    for (std::size_t y = 0; y + 1 < kCells; ++y) {
        for (std::size_t x = 0; x + 1 < kCells; ++x) {
            worst = std::max(worst, leftOver(placeAt(cells, x, y), contrast, noise));
        }
    }
    return worst;
}

/// How one tile differs from another of the same frame.
struct Overlay {
    Products different; ///< the places that do not show the same
    int kept = 0;       ///< places with structure in the other that show the same
    int lost = 0;       ///< those that do not
};

/// What is drawn over one of the tiles would upset a contrast that all of it is asked for.
Overlay overlayOf(const Cells& cells, double noise)
{
    constexpr float kStillAlike = 0.6F;
    constexpr double kSameContrast = 1;
    Overlay overlay;
    for (std::size_t y = 0; y < kCells; y += 2) {
        for (std::size_t x = 0; x < kCells; x += 2) {
            const Products place = placeAt(cells, x, y);
            if (std::max(place.oneOne, place.otherOther) < noise)
                continue; // even in both
            const bool isAlike = leftOver(place, kSameContrast, noise) <= kStillAlike;
            if (place.otherOther >= noise)
                (isAlike ? overlay.kept : overlay.lost) += 1;
            if (!isAlike)
                overlay.different += place;
        }
    }
    return overlay;
}

std::int64_t pixelCount(const PhotoInfo& photo)
{
    return std::int64_t{photo.width} * photo.height;
}

} // namespace

float SamePicture::difference(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    return worstLeftOver(cellsOf<1>(one, other), 1);
}

float SamePicture::coarseDifference(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    return worstLeftOver(cellsOf<2>(one, other), 2);
}

SamePicture::Frame::Frame(const PhotoInfo& of) : photo(&of)
{
    if (of.print)
        tile = std::make_shared<const FeaturePrint::Tile>(of.print->tile());
}

bool SamePicture::isCopy(const Frame& one, const Frame& other)
{
    constexpr float kFromEncoding = 0.4F;
    constexpr float kFromScaling = 0.5F; ///< or from turning colours into greys
    constexpr int kCoarseSide = 2 * FeaturePrint::kTileSide;
    if (!one.tile || !other.tile)
        return false;
    const auto isCoarse = [](const PhotoInfo& photo) {
        return std::max(photo.width, photo.height) < kCoarseSide;
    };
    const bool areCoarse = isCoarse(*one.photo) || isCoarse(*other.photo);
    const float apart = (areCoarse ? coarseDifference : difference)(*one.tile, *other.tile);
    const bool isEncodedOnly = pixelCount(*one.photo) == pixelCount(*other.photo) &&
                               one.photo->traits.isGrey == other.photo->traits.isGrey;
    return apart <= (isEncodedOnly ? kFromEncoding : kFromScaling);
}

bool SamePicture::isDrawnOver(const Frame& one, const Frame& other)
{
    constexpr int kFewest = 4; ///< places that show that it is the same frame
    constexpr double kMoreStructure = 1.2;
    // Of what the other shows there. Of a shot that is only softer, all would be left.
    constexpr double kMostLeft = 0.85;
    constexpr double kMostAlike = 0.5; ///< correlation, by chance
    constexpr std::size_t kCoarse = 2;
    if (!one.tile || !other.tile)
        return false;
    const Overlay overlay = overlayOf(cellsOf<kCoarse>(*one.tile, *other.tile), noiseOf(kCoarse));
    const Products& different = overlay.different;
    const double ours = different.oneOne;
    const double theirs = different.otherOther;
    return overlay.kept >= std::max(overlay.lost, kFewest) && ours > 0 && ours >= kMoreStructure * theirs &&
           different.oneOther <= std::max(kMostLeft * theirs, kMostAlike * std::sqrt(ours * theirs));
}

bool SamePicture::isCopy(const PhotoInfo& one, const PhotoInfo& other)
{
    return isCopy(Frame(one), Frame(other));
}

} // namespace orlen
