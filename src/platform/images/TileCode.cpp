#include "platform/images/TileCode.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>
#include <utility>

// The tile is cut into blocks of 8 by 8 pixels, and each block turned into frequencies, of which most are
// small. They are rounded to multiples of a step, the finest with which the tile fits. What remains are many
// zeros and a few small numbers. How large they can be expected to be is known from two numbers of 4 bits
// that are packed first: one of the block, since a page has text and margins, and one of the frequency. From
// the expected size follows how likely each number is, and an entropy coder (asymmetric numeral systems,
// which pack from the end) spends as many bits on it as its likelihood warrants.
//
// Packed tiles are kept on the disk, so unpacking must come to the same numbers in every build: all that the
// bits depend on is whole numbers.

namespace orlen::TileCode {

namespace {

constexpr std::size_t kBlock = 8;
constexpr std::size_t kBlocks = kSide / kBlock; ///< along a side
constexpr std::size_t kBands = 2 * kBlock - 1;
constexpr unsigned kLevels = 16;

using Block = std::array<float, kBlock * kBlock>;
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

// --- Likelihoods

constexpr unsigned kWholeBits = 12;
constexpr std::uint32_t kWhole = 1U << kWholeBits;
/// Numbers are told by how many bits they have, and then by those bits.
constexpr std::size_t kLengths = 10;

/// Where each length starts in the whole, and the end.
using Starts = std::array<std::uint32_t, kLengths + 1>;

/// Of the numbers of one level, how many of 65,536 are not 0; and of those of some size, how many are larger.
struct Decay {
    std::uint32_t any;
    std::uint32_t more;
};
/// Each level is larger than the one before by the root of two.
constexpr Decay kDecays[kLevels] = {
    {442, 16},      {1910, 181},    {5380, 1016},   {11188, 3443},  {18776, 8160},  {27078, 15021},
    {35079, 23125}, {42126, 31376}, {47947, 38930}, {52543, 45346}, {56056, 50511}, {58681, 54514},
    {60611, 57535}, {62014, 59771}, {63025, 61405}, {63751, 62587},
};

constexpr Starts startsOf(Decay decay)
{
    constexpr std::uint64_t kOne = 65'536;
    Starts starts{};
    std::uint64_t larger = decay.any;
    std::uint64_t power = decay.more;
    for (std::size_t length = 1; length < kLengths; ++length) {
        // At least one for each length that may still follow.
        const std::uint64_t share = larger * (kWhole - kLengths) / kOne;
        starts[length] = kWhole - static_cast<std::uint32_t>(share + kLengths - length);
        larger = larger * power / kOne;
        power = power * power / kOne;
    }
    starts[kLengths] = kWhole;
    return starts;
}

constexpr std::array<Starts, kLevels> kStarts = [] {
    std::array<Starts, kLevels> starts{};
    for (std::size_t level = 0; level < kLevels; ++level)
        starts[level] = startsOf(kDecays[level]);
    return starts;
}();

/// A piece of the whole.
struct Piece {
    std::uint32_t start;
    std::uint32_t size;
};

constexpr Piece pieceOf(const Starts& starts, unsigned length)
{
    return {starts[length], starts[length + 1] - starts[length]};
}

/// One of the numbers that `bits` bits can tell.
constexpr Piece pieceOfBits(unsigned bits, std::uint32_t value)
{
    return {value << (kWholeBits - bits), kWhole >> bits};
}

// --- Entropy coding

constexpr std::uint32_t kLeastState = 1U << 23U;

class Packer {
public:
    void put(Piece piece) { m_pieces.push_back(piece); }

    /// Empty if it would be longer than that.
    [[nodiscard]] std::vector<std::uint8_t> bytes(std::size_t most) const
    {
        std::uint32_t state = kLeastState;
        std::vector<std::uint8_t> bytes;
        for (auto piece = m_pieces.rbegin(); piece != m_pieces.rend(); ++piece) {
            const std::uint64_t limit = std::uint64_t{kLeastState >> kWholeBits << 8U} * piece->size;
            for (; state >= limit; state >>= 8U)
                bytes.push_back(static_cast<std::uint8_t>(state));
            state = (state / piece->size << kWholeBits) + state % piece->size + piece->start;
            if (bytes.size() > most)
                return {};
        }
        for (unsigned i = 0; i < sizeof state; ++i, state >>= 8U)
            bytes.push_back(static_cast<std::uint8_t>(state));
        if (bytes.size() > most)
            return {};
        std::ranges::reverse(bytes);
        return bytes;
    }

private:
    std::vector<Piece> m_pieces;
};

/// Takes zeros from behind the end. The state never falls so low that this would not get on.
class Unpacker {
public:
    explicit Unpacker(std::span<const std::uint8_t> bytes) : m_bytes(bytes)
    {
        for (unsigned i = 0; i < sizeof m_state; ++i)
            m_state = m_state << 8U | next();
        m_state = std::max(m_state, kLeastState);
    }

    std::uint32_t bits(unsigned count)
    {
        const std::uint32_t value = (m_state & (kWhole - 1)) >> (kWholeBits - count);
        take(pieceOfBits(count, value));
        return value;
    }

    unsigned length(const Starts& starts)
    {
        const std::uint32_t place = m_state & (kWhole - 1);
        unsigned length = 0;
        while (place >= starts[length + 1])
            ++length;
        take(pieceOf(starts, length));
        return length;
    }

private:
    void take(Piece piece)
    {
        m_state = piece.size * (m_state >> kWholeBits) + (m_state & (kWhole - 1)) - piece.start;
        while (m_state < kLeastState)
            m_state = m_state << 8U | next();
    }
    std::uint32_t next() { return m_at < m_bytes.size() ? m_bytes[m_at++] : 0U; }

    std::span<const std::uint8_t> m_bytes;
    std::size_t m_at = 0;
    std::uint32_t m_state = 0;
};

// --- Blocks and frequencies

/// Rows of the cosine transform; the reverse is its mirror.
const std::array<Block, 2>& waves()
{
    static const std::array<Block, 2> both = [] {
        std::array<Block, 2> made{};
        for (std::size_t i = 0; i < kBlock; ++i) {
            for (std::size_t x = 0; x < kBlock; ++x) {
                const double angle =
                    std::numbers::pi * static_cast<double>(i) * (static_cast<double>(x) + 0.5) / kBlock;
                const auto value = static_cast<float>(std::cos(angle) * (i == 0 ? std::sqrt(0.125) : 0.5));
                made[0][i * kBlock + x] = value;
                made[1][x * kBlock + i] = value;
            }
        }
        return made;
    }();
    return both;
}

/// matrix * block * mirrored matrix, where `mirrored` is the other of `waves`.
Block transformed(const Block& block, const Block& matrix, const Block& mirrored)
{
    const auto product = [](const Block& one, const Block& other) {
        Block result{};
        for (std::size_t y = 0; y < kBlock; ++y) {
            for (std::size_t i = 0; i < kBlock; ++i) {
                for (std::size_t x = 0; x < kBlock; ++x)
                    result[y * kBlock + x] += one[y * kBlock + i] * other[i * kBlock + x];
            }
        }
        return result;
    };
    return product(product(matrix, block), mirrored);
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
        blocks[i] = transformed(pixels, waves()[0], waves()[1]);
    }
    return blocks;
}

// --- How large numbers are

/// 4 bits for each block, and for each band how much lower its numbers are.
struct Sizes {
    std::array<std::uint8_t, kBlocks * kBlocks> blocks{};
    std::array<std::uint8_t, kBands> bands{};

    /// How likely the lengths of a block's numbers are, for each band.
    [[nodiscard]] std::array<const Starts*, kBands> startsOf(std::size_t block) const
    {
        std::array<const Starts*, kBands> starts{};
        for (std::size_t band = 0; band < kBands; ++band)
            starts[band] = &kStarts[blocks[block] > bands[band] ? blocks[block] - bands[band] : 0];
        return starts;
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

void putNumber(Packer& packer, const Starts& starts, int number)
{
    const auto size = static_cast<unsigned>(std::abs(number));
    const auto length = static_cast<unsigned>(std::bit_width(size));
    packer.put(pieceOf(starts, length));
    // A negative number is told by the numbers of its length that no positive one takes.
    if (length > 0)
        packer.put(pieceOfBits(length, number > 0 ? size : (1U << length) - 1 - size));
}

int number(Unpacker& unpacker, const Starts& starts)
{
    const unsigned length = unpacker.length(starts);
    if (length == 0)
        return 0;
    const auto bits = static_cast<int>(unpacker.bits(length));
    const int half = 1 << (length - 1);
    return bits >= half ? bits : bits - 2 * half + 1;
}

std::vector<std::uint8_t> packedBy(const Blocks& blocks, std::size_t index)
{
    constexpr float kLargest = (1 << (kLengths - 1)) - 1;
    const float step = kSteps[index];
    const Sizes sizes = sizesOf(blocks, step);
    Packer packer;
    packer.put(pieceOfBits(kStepBits, static_cast<std::uint32_t>(index)));
    for (const std::uint8_t band : sizes.bands)
        packer.put(pieceOfBits(kSizeBits, band));
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        packer.put(pieceOfBits(kSizeBits, sizes.blocks[i]));
        const auto starts = sizes.startsOf(i);
        for (std::size_t at = 0; at < blocks[i].size(); ++at) {
            const long rounded = std::lround(std::clamp(blocks[i][at] / step, -kLargest, kLargest));
            putNumber(packer, *starts[bandOf(at)], static_cast<int>(rounded));
        }
    }
    return packer.bytes(kMostBytes);
}

void place(const Block& pixels, std::size_t block, Tile& tile)
{
    constexpr float kMiddle = 128.5F;
    for (std::size_t at = 0; at < pixels.size(); ++at)
        tile[placeOf(block) + at / kBlock * kSide + at % kBlock] =
            static_cast<std::uint8_t>(std::clamp(pixels[at] + kMiddle, 0.0F, 255.0F));
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
    Unpacker unpacker(bytes);
    const std::size_t index = std::min<std::size_t>(unpacker.bits(kStepBits), std::size(kSteps) - 1);
    const float step = kSteps[index];
    Sizes sizes;
    for (std::uint8_t& band : sizes.bands)
        band = static_cast<std::uint8_t>(unpacker.bits(kSizeBits));
    Tile tile{};
    for (std::size_t i = 0; i < sizes.blocks.size(); ++i) {
        sizes.blocks[i] = static_cast<std::uint8_t>(unpacker.bits(kSizeBits));
        const auto starts = sizes.startsOf(i);
        Block block{};
        for (std::size_t at = 0; at < block.size(); ++at)
            block[at] = step * static_cast<float>(number(unpacker, *starts[bandOf(at)]));
        place(transformed(block, waves()[1], waves()[0]), i, tile);
    }
    return tile;
}

} // namespace orlen::TileCode
