#include "platform/images/TileCode.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <numeric>
#include <utility>

// The tile is cut into blocks of 8 by 8 pixels, and each block turned into frequencies, of which most are
// small. They are rounded to multiples of a step, the finest with which the tile fits. What remains are many
// zeros and a few small numbers. How large they can be expected to be is known from two numbers of 4 bits
// that are packed first: one of the block, since a page has text and margins, and one of the frequency. From
// the expected size follows how likely each number is, and an entropy coder (asymmetric numeral systems,
// which pack from the end) spends as many bits on it as its likelihood warrants. Its state is a chain of
// multiplications, so four of them take turns, which a processor unpacks side by side.
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
/// How many bits numbers have.
constexpr std::size_t kLengths = 10;
/// A number of few bits has a symbol of its own. Others are told by how many they have, and then by those.
constexpr unsigned kShort = 2;
constexpr std::size_t kFirstLong = (2U << kShort) - 1;
constexpr std::size_t kSymbols = kFirstLong + kLengths - 1 - kShort;

/// The symbols of numbers with fewer bits.
constexpr std::size_t symbolsBelow(unsigned length)
{
    return length <= kShort ? (1U << length) - 1 : kFirstLong + length - 1 - kShort;
}

/// Where each symbol starts in the whole, and the end.
using Starts = std::array<std::uint16_t, kSymbols + 1>;

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
    std::array<std::uint64_t, kLengths + 1> lengths{};
    std::uint64_t larger = decay.any;
    std::uint64_t power = decay.more;
    for (unsigned length = 1; length < kLengths; ++length) {
        // At least one for each symbol that may still follow.
        lengths[length] = kWhole - larger * (kWhole - kSymbols) / kOne - (kSymbols - symbolsBelow(length));
        larger = larger * power / kOne;
        power = power * power / kOne;
    }
    lengths[kLengths] = kWhole;
    Starts starts{};
    for (unsigned length = 0; length < kLengths; ++length) {
        // The symbols of one length are equally likely.
        const std::size_t first = symbolsBelow(length);
        const std::size_t count = symbolsBelow(length + 1) - first;
        for (std::size_t i = 0; i <= count; ++i)
            starts[first + i] = static_cast<std::uint16_t>(
                lengths[length] + (lengths[length + 1] - lengths[length]) * i / count);
    }
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

constexpr Piece pieceOf(std::size_t level, std::size_t symbol)
{
    const Starts& starts = kStarts[level];
    return {starts[symbol], std::uint32_t{starts[symbol + 1]} - starts[symbol]};
}

/// One of the numbers that `bits` bits can tell.
constexpr Piece pieceOfBits(unsigned bits, std::uint32_t value)
{
    return {value << (kWholeBits - bits), kWhole >> bits};
}

// --- Entropy coding

constexpr std::size_t kStates = 4;
constexpr unsigned kWordBits = 16;
constexpr unsigned kByteBits = 8;
constexpr std::uint32_t kLeastState = 1U << kWordBits;

class Packer {
public:
    /// `turn`: whose turn it is, of the states.
    void put(std::size_t turn, Piece piece) { m_pieces.push_back({turn, piece}); }

    /// Empty if it would be longer than that.
    [[nodiscard]] std::vector<std::uint8_t> bytes(std::size_t most) const
    {
        std::array<std::uint32_t, kStates> states{};
        states.fill(kLeastState);
        std::vector<std::uint8_t> bytes;
        const auto putWord = [&bytes](std::uint32_t word) {
            bytes.push_back(static_cast<std::uint8_t>(word >> kByteBits));
            bytes.push_back(static_cast<std::uint8_t>(word));
        };
        for (auto next = m_pieces.rbegin(); next != m_pieces.rend(); ++next) {
            const auto& [turn, piece] = *next;
            std::uint32_t& state = states[turn];
            if (state >> (2 * kWordBits - kWholeBits) >= piece.size) {
                putWord(state);
                state >>= kWordBits;
            }
            state = (state / piece.size << kWholeBits) + state % piece.size + piece.start;
            if (bytes.size() > most)
                return {};
        }
        for (auto state = states.rbegin(); state != states.rend(); ++state) {
            putWord(*state >> kWordBits);
            putWord(*state);
        }
        if (bytes.size() > most)
            return {};
        std::ranges::reverse(bytes);
        return bytes;
    }

private:
    struct Turn {
        std::size_t turn;
        Piece piece;
    };
    std::vector<Turn> m_pieces;
};

/// The symbol at each place in the whole, for each level.
using Symbols = std::array<std::array<std::uint8_t, kWhole>, kLevels>;
const Symbols& symbols()
{
    static const Symbols all = [] {
        Symbols made{};
        for (std::size_t level = 0; level < kLevels; ++level) {
            for (std::size_t symbol = 0; symbol < kSymbols; ++symbol)
                std::fill_n(&made[level][pieceOf(level, symbol).start], pieceOf(level, symbol).size,
                            static_cast<std::uint8_t>(symbol));
        }
        return made;
    }();
    return all;
}

/// Packed bytes, with zeros behind them.
struct Padded {
    explicit Padded(std::span<const std::uint8_t> of) : length(std::min(of.size(), kMostBytes))
    {
        std::ranges::copy(of.first(length), bytes.begin());
    }

    std::array<std::uint8_t, kMostBytes + 2> bytes{};
    std::size_t length;
};

/// Takes zeros from behind the end. Small, so that it can be copied into registers for a block. Borrows the
/// bytes.
class Unpacker {
public:
    explicit Unpacker(const Padded& packed)
        : m_at(packed.bytes.data()), m_end(packed.bytes.data() + packed.length)
    {
        for (std::uint32_t& state : m_states) {
            const std::uint32_t low = word();
            skip(1);
            state = std::max(word() << kWordBits | low, kLeastState);
            skip(1);
        }
    }

    std::uint32_t bits(std::size_t turn, unsigned count)
    {
        const std::uint32_t value = (m_states[turn] & (kWhole - 1)) >> (kWholeBits - count);
        take(turn, pieceOfBits(count, value));
        return value;
    }

    std::size_t symbol(std::size_t turn, std::size_t level)
    {
        const std::size_t symbol = (*m_symbols)[level][m_states[turn] & (kWhole - 1)];
        take(turn, pieceOf(level, symbol));
        return symbol;
    }

private:
    /// A state never falls so low that one word would not bring it back. No branches, as nobody could guess
    /// whether a word is needed.
    void take(std::size_t turn, Piece piece)
    {
        const std::uint32_t state = m_states[turn];
        const std::uint32_t left = piece.size * (state >> kWholeBits) + (state & (kWhole - 1)) - piece.start;
        const std::uint32_t isLow = left < kLeastState ? 1 : 0;
        const std::uint32_t filled = left << kWordBits | word();
        m_states[turn] = isLow != 0 ? filled : left;
        skip(isLow);
    }
    [[nodiscard]] std::uint32_t word() const
    {
        return std::uint32_t{m_at[0]} | std::uint32_t{m_at[1]} << kByteBits;
    }
    void skip(std::size_t words) { m_at = std::min(m_at + 2 * words, m_end); }

    const Symbols* m_symbols = &symbols();
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
    std::array<std::uint32_t, kStates> m_states{};
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
    // Left to itself, the compiler shuffles numbers more than it multiplies them.
    using Row [[gnu::vector_size(kBlock * sizeof(float))]] = float;
    const auto product = [](const Block& one, const Block& other) {
        std::array<Row, kBlock> rows{};
        std::memcpy(rows.data(), other.data(), sizeof other);
        std::array<Row, kBlock> sums{};
        for (std::size_t y = 0; y < kBlock; ++y) {
            Row sum{};
            for (std::size_t i = 0; i < kBlock; ++i)
                sum += one[y * kBlock + i] * rows[i];
            sums[y] = sum;
        }
        Block result{};
        std::memcpy(result.data(), sums.data(), sizeof result);
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

/// A negative number is told by the numbers of its length that no positive one takes.
constexpr std::uint32_t bitsOf(int number, unsigned length)
{
    const auto size = static_cast<std::uint32_t>(number < 0 ? -number : number);
    return number >= 0 ? size : (1U << length) - 1 - size;
}
constexpr int numberOf(std::uint32_t bits, unsigned length)
{
    const int whole = 1 << length;
    return static_cast<int>(bits) - (2 * static_cast<int>(bits) < whole ? whole - 1 : 0);
}

/// Of symbols of their own.
constexpr std::array<std::int8_t, kFirstLong> kShortNumbers = [] {
    std::array<std::int8_t, kFirstLong> numbers{};
    for (unsigned length = 1; length <= kShort; ++length) {
        for (std::uint32_t bits = 0; bits < 1U << length; ++bits)
            numbers[symbolsBelow(length) + bits] = static_cast<std::int8_t>(numberOf(bits, length));
    }
    return numbers;
}();

void putNumber(Packer& packer, std::size_t turn, std::size_t level, int number)
{
    const auto length = static_cast<unsigned>(std::bit_width(static_cast<unsigned>(std::abs(number))));
    const std::uint32_t bits = bitsOf(number, length);
    const bool isShort = length <= kShort;
    packer.put(turn, pieceOf(level, symbolsBelow(length) + (isShort && length > 0 ? bits : 0)));
    if (!isShort)
        packer.put(turn, pieceOfBits(length, bits));
}

int number(Unpacker& unpacker, std::size_t turn, std::size_t level)
{
    const std::size_t symbol = unpacker.symbol(turn, level);
    if (symbol < kFirstLong)
        return kShortNumbers[symbol];
    const auto length = static_cast<unsigned>(symbol - kFirstLong + 1 + kShort);
    return numberOf(unpacker.bits(turn, length), length);
}

std::vector<std::uint8_t> packedBy(const Blocks& blocks, std::size_t index)
{
    constexpr float kLargest = (1 << (kLengths - 1)) - 1;
    const float step = kSteps[index];
    const Sizes sizes = sizesOf(blocks, step);
    Packer packer;
    packer.put(0, pieceOfBits(kStepBits, static_cast<std::uint32_t>(index)));
    for (const std::uint8_t band : sizes.bands)
        packer.put(0, pieceOfBits(kSizeBits, band));
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        packer.put(0, pieceOfBits(kSizeBits, sizes.blocks[i]));
        const auto levels = sizes.levelsOf(i);
        for (std::size_t at = 0; at < blocks[i].size(); ++at) {
            const long rounded = std::lround(std::clamp(blocks[i][at] / step, -kLargest, kLargest));
            putNumber(packer, at % kStates, levels[at], static_cast<int>(rounded));
        }
    }
    return packer.bytes(kMostBytes);
}

Block unpackedBlock(Unpacker& unpacker, const std::array<std::uint8_t, kBlock * kBlock>& levels, float step)
{
    Unpacker own = unpacker; // in registers
    Block block{};
    for (std::size_t at = 0; at < block.size(); at += kStates) {
        for (std::size_t turn = 0; turn < kStates; ++turn)
            block[at + turn] = step * static_cast<float>(number(own, turn, levels[at + turn]));
    }
    unpacker = own;
    return block;
}

void place(const Block& pixels, std::size_t block, Tile& tile)
{
    constexpr float kMiddle = 128.5F;
    std::uint8_t* row = &tile[placeOf(block)];
    for (std::size_t y = 0; y < kBlock; ++y, row += kSide) {
        for (std::size_t x = 0; x < kBlock; ++x)
            row[x] = static_cast<std::uint8_t>(
                static_cast<int>(std::clamp(pixels[y * kBlock + x] + kMiddle, 0.0F, 255.0F)));
    }
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
    const Padded padded(bytes);
    Unpacker unpacker(padded);
    const std::size_t index = std::min<std::size_t>(unpacker.bits(0, kStepBits), std::size(kSteps) - 1);
    const float step = kSteps[index];
    Sizes sizes;
    for (std::uint8_t& band : sizes.bands)
        band = static_cast<std::uint8_t>(unpacker.bits(0, kSizeBits));
    Tile tile{};
    for (std::size_t i = 0; i < sizes.blocks.size(); ++i) {
        sizes.blocks[i] = static_cast<std::uint8_t>(unpacker.bits(0, kSizeBits));
        place(transformed(unpackedBlock(unpacker, sizes.levelsOf(i), step), waves()[1], waves()[0]), i, tile);
    }
    return tile;
}

} // namespace orlen::TileCode
