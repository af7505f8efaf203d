#include "platform/images/TileCode.h"

#include "platform/images/BlockWaves.h"
#include "platform/images/NumberCode.h"
#include "platform/values/WideLanes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

// The tile is cut into blocks of 8 by 8 pixels, and each block turned into frequencies, of which most are
// small. They are rounded to multiples of a step, the finest with which the tile fits. What remains are many
// zeros and a few small numbers. How large they can be expected to be is known from two numbers of 4 bits
// that are packed first: one of the block, since a page has text and margins, and one of the frequency.
//
// Packed tiles are kept on the disk, so unpacking must come to the same numbers in every build: all that the
// bits depend on is whole numbers.

namespace orlen::TileCode {

namespace {

using BlockWaves::Block;
using NumberCode::kLevels;

constexpr std::size_t kBlock = BlockWaves::kSide;
constexpr std::size_t kBlocks = kSide / kBlock; ///< along a side
constexpr std::size_t kBands = 2 * kBlock - 1;

using Blocks = std::array<Block, kBlocks * kBlocks>;
using Numbers = std::array<std::int16_t, kBlock * kBlock>;

/// Sizes of the rounding step, in levels of grey.
constexpr std::uint8_t kSteps[] = {4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 18,  20,  22,
                                   24, 26, 28, 30, 33, 36, 40, 44, 48, 54, 60, 70, 80, 100, 140, 240};

/// All directions of one fineness.
constexpr std::size_t bandOf(std::size_t number)
{
    return number / kBlock + number % kBlock;
}

/// The upper left pixel.
std::size_t placeOf(std::size_t block)
{
    return block / kBlocks * kBlock * kSide + block % kBlocks * kBlock;
}

Blocks frequenciesOf(const Tile& tile)
{
    constexpr float kMiddle = 128;
    Blocks blocks{};
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        Block pixels{};
        for (std::size_t at = 0; at < pixels.size(); ++at)
            pixels[at] = static_cast<float>(tile[placeOf(i) + at / kBlock * kSide + at % kBlock]) - kMiddle;
        blocks[i] = BlockWaves::frequenciesOf(pixels);
    }
    return blocks;
}

// --- How large numbers are

/// 4 bits for each block, and for each band how much lower its numbers are.
struct Sizes {
    std::array<std::uint8_t, kBlocks * kBlocks> blocks{};
    std::array<std::uint8_t, kBands> bands{};

    /// Of a block's numbers.
    [[nodiscard]] std::array<std::uint8_t, kBlock * kBlock> levelsOf(std::size_t block) const
    {
        std::array<std::uint8_t, kBlock * kBlock> levels{};
        for (std::size_t row = 0; row < kBlock; ++row) {
            for (std::size_t x = 0; x < kBlock; ++x) {
                const std::uint8_t band = bands[row + x];
                levels[row * kBlock + x] = static_cast<std::uint8_t>(std::max(blocks[block], band) - band);
            }
        }
        return levels;
    }
};

/// The level with that mean.
unsigned levelOf(double mean)
{
    constexpr double kLeast = 0.12;
    const double level = 2 * std::log2(std::max(mean, 1e-9) / kLeast);
    return static_cast<unsigned>(std::clamp(std::lround(level), 0L, long{kLevels} - 1));
}

/// In halves of an octave, as `levelOf`.
std::uint8_t fallOf(double from, double to)
{
    return static_cast<std::uint8_t>(
        std::clamp(std::lround(2 * std::log2(from / to)), 0L, long{kLevels} - 1));
}

Sizes sizesOf(const Blocks& blocks, double step)
{
    constexpr double kNothing = 1e-9;
    std::array<double, kBands> bands{};
    std::array<double, kBlocks * kBlocks> means{};
    double all = kNothing;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        for (std::size_t at = 0; at < blocks[i].size(); ++at) {
            const std::size_t band = bandOf(at);
            const double size = std::abs(static_cast<double>(blocks[i][at])) / step;
            means[i] += size / static_cast<double>(blocks[i].size());
            bands[band] += size / static_cast<double>(std::min(band + 1, kBands - band));
        }
        all += means[i];
    }
    const double highest = *std::ranges::max_element(bands);
    Sizes sizes;
    std::ranges::transform(bands, sizes.bands.begin(),
                           [&](double band) { return fallOf(highest + kNothing, band + kNothing); });
    std::ranges::transform(means, sizes.blocks.begin(), [&](double mean) {
        return static_cast<std::uint8_t>(levelOf(mean * highest / all));
    });
    return sizes;
}

// --- The whole

constexpr unsigned kSizeBits = 4;
constexpr unsigned kStepBits = 5;

std::vector<std::uint8_t> packedBy(const Blocks& blocks, std::size_t index)
{
    constexpr auto kLargest = static_cast<float>(NumberCode::kLargest);
    const float step = kSteps[index];
    const Sizes sizes = sizesOf(blocks, step);
    NumberCode::Packer packer;
    packer.putBits(kStepBits, static_cast<std::uint32_t>(index));
    for (const std::uint8_t band : sizes.bands)
        packer.putBits(kSizeBits, band);
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        packer.putBits(kSizeBits, sizes.blocks[i]);
        Numbers numbers{};
        for (std::size_t at = 0; at < numbers.size(); ++at) {
            const float number = std::clamp(blocks[i][at] / step, -kLargest, kLargest);
            numbers[at] = static_cast<std::int16_t>(std::lround(number));
        }
        packer.putNumbers(numbers, sizes.levelsOf(i));
    }
    return packer.bytes(kMostBytes);
}

ORLEN_INLINE Block swappedBlock(const Numbers& numbers, float step)
{
    Block swapped{};
    for (std::size_t y = 0; y < kBlock; ++y) {
        for (std::size_t x = 0; x < kBlock; ++x)
            swapped[x * kBlock + y] = step * static_cast<float>(numbers[y * kBlock + x]);
    }
    return swapped;
}

ORLEN_INLINE void place(const Block& pixels, std::size_t block, Tile& tile)
{
    constexpr float kMiddle = 128.5F;
    std::uint8_t* row = &tile[placeOf(block)];
    for (std::size_t y = 0; y < kBlock; ++y, row += kSide) {
        for (std::size_t x = 0; x < kBlock; ++x)
            row[x] = static_cast<std::uint8_t>(
                static_cast<int>(std::clamp(pixels[y * kBlock + x] + kMiddle, 0.0F, 255.0F)));
    }
}

ORLEN_INLINE void placeBlock(const Numbers& numbers, float step, std::size_t block, Tile& tile)
{
    place(BlockWaves::pixelsOf(swappedBlock(numbers, step)), block, tile);
}

ORLEN_WIDE void placeInWideLanes(const Numbers& numbers, float step, std::size_t block, Tile& tile)
{
    placeBlock(numbers, step, block, tile);
}

} // namespace

std::vector<std::uint8_t> packed(const Tile& tile)
{
    const Blocks blocks = frequenciesOf(tile);
    // The coarsest always fits; a coarser one takes less.
    std::vector<std::uint8_t> best;
    std::size_t finest = 0;
    std::size_t coarsest = std::size(kSteps) - 1;
    while (finest <= coarsest) {
        const std::size_t step = std::midpoint(finest, coarsest);
        if (std::vector<std::uint8_t> bytes = packedBy(blocks, step); !bytes.empty()) {
            best = std::move(bytes);
            if (step == 0)
                break;
            coarsest = step - 1;
        } else {
            finest = step + 1;
        }
    }
    return best;
}

Tile unpacked(std::span<const std::uint8_t> bytes)
{
    NumberCode::Unpacker unpacker(bytes.first(std::min(bytes.size(), kMostBytes)));
    const std::size_t index = std::min<std::size_t>(unpacker.bits(kStepBits), std::size(kSteps) - 1);
    const float step = kSteps[index];
    Sizes sizes;
    for (std::uint8_t& band : sizes.bands)
        band = static_cast<std::uint8_t>(unpacker.bits(kSizeBits));
    const bool isWide = WideLanes::areUsed();
    Tile tile{};
    Numbers numbers{};
    for (std::size_t i = 0; i < sizes.blocks.size(); ++i) {
        sizes.blocks[i] = static_cast<std::uint8_t>(unpacker.bits(kSizeBits));
        unpacker.numbers(sizes.levelsOf(i), numbers);
        if (isWide)
            placeInWideLanes(numbers, step, i, tile);
        else
            placeBlock(numbers, step, i, tile);
    }
    return tile;
}

} // namespace orlen::TileCode
