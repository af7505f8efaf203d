#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Packs small whole numbers whose size is known about beforehand. Pure; any thread.
namespace orlen::NumberCode {

/// How large a number can be expected to be: 0 for almost always 0, each level larger than the one before by
/// the root of two.
inline constexpr unsigned kLevels = 16;
inline constexpr int kLargest = 511; ///< of numbers, which may be negative
/// Numbers are packed in runs of so many at most.
inline constexpr std::size_t kLongestRun = 64;
inline constexpr std::size_t kMostBytes = 4'096;
inline constexpr std::size_t kStates = 4; ///< that take turns

/// A piece of the whole that all likelihoods come to.
struct Piece {
    std::uint16_t start = 0;
    std::uint16_t size = 0;
};

class Packer {
public:
    /// A number below 2 to the power of `count`, which is 12 at most.
    void putBits(unsigned count, std::uint32_t value);
    /// A run, each with its level; a multiple of four.
    void putNumbers(std::span<const std::int16_t> numbers, std::span<const std::uint8_t> levels);

    /// Empty if it would be longer than that.
    [[nodiscard]] std::vector<std::uint8_t> bytes(std::size_t most) const;

private:
    struct Turn {
        std::size_t turn;
        Piece piece;
    };
    void putNumber(std::size_t turn, std::size_t level, int number);

    std::vector<Turn> m_turns;
};

/// Gives back what was put, asked for in the same order. What nobody packed gives some numbers or other.
class Unpacker {
public:
    /// Of longer ones, what is in front.
    explicit Unpacker(std::span<const std::uint8_t> packed);
    Unpacker(const Unpacker&) = delete;
    Unpacker& operator=(const Unpacker&) = delete;
    ~Unpacker() = default;

    [[nodiscard]] std::uint32_t bits(unsigned count);
    /// Fills in as many as there are levels.
    void numbers(std::span<const std::uint8_t> levels, std::span<std::int16_t, kLongestRun> numbers);

private:
    /// What a run can take after the end, where there are zeros.
    static constexpr std::size_t kMargin = 4 * kLongestRun + 2;

    void skip(const std::uint8_t* to);

    std::array<std::uint8_t, kMostBytes + kMargin> m_bytes{};
    std::array<std::uint32_t, kStates> m_states{};
    const std::uint8_t* m_at = m_bytes.data();
    const std::uint8_t* m_end = m_bytes.data();
};

} // namespace orlen::NumberCode
