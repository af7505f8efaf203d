#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <tuple>

/// How far a quick look searches for a block.
namespace orlen::BlockMoves {

inline constexpr int kFarthest = 5; ///< pixels that a block may have moved, each way
inline constexpr int kSide = 2 * kFarthest + 1;

struct Move {
    std::int8_t right = 0; ///< pixels
    std::int8_t down = 0;  ///< pixels
};

/// All moves of up to `kFarthest` pixels each way, and which of two that match equally well is taken: the
/// shorter one.
struct Moves {
    constexpr Moves()
    {
        for (int i = 0; i < kSide * kSide; ++i)
            inOrder[static_cast<std::size_t>(i)] = {static_cast<std::int8_t>(i / kSide - kFarthest),
                                                    static_cast<std::int8_t>(i % kSide - kFarthest)};
        const auto length = [](int way) { return way < 0 ? -way : way; };
        std::ranges::sort(inOrder, {}, [&](Move move) {
            return std::tuple(length(move.right) + length(move.down), move.right, move.down);
        });
        for (std::size_t i = 0; i < inOrder.size(); ++i) {
            const int right = inOrder[i].right + kFarthest;
            const int down = inOrder[i].down + kFarthest;
            rank[static_cast<std::size_t>(right)][static_cast<std::size_t>(down)] =
                static_cast<std::uint8_t>(i);
        }
    }

    std::array<Move, std::size_t{kSide} * kSide> inOrder{};
    std::array<std::array<std::uint8_t, kSide>, kSide> rank{}; ///< by the way right, then down
};

inline constexpr Moves kAll;
/// Of a rank.
inline constexpr unsigned kRankBits = 8;

} // namespace orlen::BlockMoves
