#include "platform/images/NumberCode.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

// From the expected size of a number follows how likely each is, and an entropy coder (asymmetric numeral
// systems, which pack from the end) spends as many bits on it as its likelihood warrants. Its state is a
// chain of multiplications, so four of them take turns, which a processor unpacks side by side.

namespace orlen::NumberCode {

namespace {

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

/// More than there are symbols, but quicker to find.
using Pieces = std::array<std::array<Piece, std::bit_ceil(kSymbols)>, kLevels>;
constexpr Pieces kPieces = [] {
    Pieces pieces{};
    for (std::size_t level = 0; level < kLevels; ++level) {
        const Starts& starts = kStarts[level];
        for (std::size_t symbol = 0; symbol < kSymbols; ++symbol)
            pieces[level][symbol] = {starts[symbol],
                                     static_cast<std::uint16_t>(starts[symbol + 1] - starts[symbol])};
    }
    return pieces;
}();

/// One of the numbers that `bits` bits can tell.
constexpr Piece pieceOfBits(unsigned bits, std::uint32_t value)
{
    return {static_cast<std::uint16_t>(value << (kWholeBits - bits)),
            static_cast<std::uint16_t>(kWhole >> bits)};
}

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
constexpr std::array<std::int16_t, kFirstLong> kShortNumbers = [] {
    std::array<std::int16_t, kFirstLong> numbers{};
    for (unsigned length = 1; length <= kShort; ++length) {
        for (std::uint32_t bits = 0; bits < 1U << length; ++bits)
            numbers[symbolsBelow(length) + bits] = static_cast<std::int16_t>(numberOf(bits, length));
    }
    return numbers;
}();

/// The symbol at each place in the whole, for each level.
using Symbols = std::array<std::array<std::uint8_t, kWhole>, kLevels>;
const Symbols& symbols()
{
    static const Symbols all = [] {
        Symbols made{};
        for (std::size_t level = 0; level < kLevels; ++level) {
            for (std::size_t symbol = 0; symbol < kSymbols; ++symbol)
                std::fill_n(&made[level][kPieces[level][symbol].start], kPieces[level][symbol].size,
                            static_cast<std::uint8_t>(symbol));
        }
        return made;
    }();
    return all;
}

// --- Entropy coding

constexpr unsigned kWordBits = 16;
constexpr unsigned kByteBits = 8;
constexpr std::uint32_t kLeastState = 1U << kWordBits;

/// The lower byte first.
std::uint32_t wordAt(const std::uint8_t* at)
{
    std::uint16_t word = 0;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big)
        word = static_cast<std::uint16_t>(word << kByteBits | word >> kByteBits);
    return word;
}

/// Takes a piece off a state, and a word from the bytes if that leaves too little; one is always enough. No
/// branches, as nobody could guess whether a word is needed.
void take(std::uint32_t& state, Piece piece, const std::uint8_t*& at)
{
    const std::uint32_t left = piece.size * (state >> kWholeBits) + (state & (kWhole - 1)) - piece.start;
    const std::uint32_t isLow = left < kLeastState ? 1 : 0;
    state = left << isLow * kWordBits | (wordAt(at) & (0U - isLow));
    at += std::size_t{2} * isLow;
}

std::uint32_t takeBits(std::uint32_t& state, unsigned count, const std::uint8_t*& at)
{
    const std::uint32_t value = (state & (kWhole - 1)) >> (kWholeBits - count);
    take(state, pieceOfBits(count, value), at);
    return value;
}

} // namespace

void Packer::putBits(unsigned count, std::uint32_t value)
{
    m_turns.push_back({0, pieceOfBits(count, value)});
}

void Packer::putNumber(std::size_t turn, std::size_t level, int number)
{
    const auto length = static_cast<unsigned>(std::bit_width(static_cast<unsigned>(std::abs(number))));
    const std::uint32_t bits = bitsOf(number, length);
    const bool isShort = length <= kShort;
    m_turns.push_back({turn, kPieces[level][symbolsBelow(length) + (isShort && length > 0 ? bits : 0)]});
    if (!isShort)
        m_turns.push_back({turn, pieceOfBits(length, bits)});
}

void Packer::putNumbers(std::span<const std::int16_t> numbers, std::span<const std::uint8_t> levels)
{
    for (std::size_t i = 0; i < numbers.size(); ++i)
        putNumber(i % kStates, levels[i], numbers[i]);
}

std::vector<std::uint8_t> Packer::bytes(std::size_t most) const
{
    std::array<std::uint32_t, kStates> states{};
    states.fill(kLeastState);
    std::vector<std::uint8_t> bytes;
    const auto putWord = [&bytes](std::uint32_t word) {
        bytes.push_back(static_cast<std::uint8_t>(word >> kByteBits));
        bytes.push_back(static_cast<std::uint8_t>(word));
    };
    for (auto next = m_turns.rbegin(); next != m_turns.rend(); ++next) {
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

Unpacker::Unpacker(std::span<const std::uint8_t> packed)
{
    const std::size_t length = std::min(packed.size(), kMostBytes);
    std::ranges::copy(packed.first(length), m_bytes.begin());
    m_end += length;
    for (std::uint32_t& state : m_states) {
        state = std::max(wordAt(m_at) | wordAt(m_at + 2) << kWordBits, kLeastState);
        skip(m_at + 4);
    }
}

/// Not past the end, where there is nothing but the margin.
void Unpacker::skip(const std::uint8_t* to)
{
    m_at = std::min(to, m_end);
}

std::uint32_t Unpacker::bits(unsigned count)
{
    const std::uint8_t* at = m_at;
    const std::uint32_t value = takeBits(m_states[0], count, at);
    skip(at);
    return value;
}

void Unpacker::numbers(std::span<const std::uint8_t> levels, std::span<std::int16_t, kLongestRun> numbers)
{
    const Symbols& all = symbols();
    // In registers.
    std::array<std::uint32_t, kStates> states = m_states;
    const std::uint8_t* at = m_at;
    for (std::size_t i = 0; i + kStates <= levels.size(); i += kStates) {
        for (std::size_t turn = 0; turn < kStates; ++turn) {
            const std::size_t level = levels[i + turn];
            const std::size_t symbol = all[level][states[turn] & (kWhole - 1)];
            take(states[turn], kPieces[level][symbol], at);
            int number = 0;
            if (symbol < kFirstLong) {
                number = kShortNumbers[symbol];
            } else {
                const auto length = static_cast<unsigned>(symbol - kFirstLong + 1 + kShort);
                number = numberOf(takeBits(states[turn], length, at), length);
            }
            numbers[i + turn] = static_cast<std::int16_t>(number);
        }
    }
    m_states = states;
    skip(at);
}

} // namespace orlen::NumberCode
