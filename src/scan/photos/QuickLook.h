#pragma once

#include "scan/photos/BlockSearch.h"
#include "scan/photos/PictureOutline.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace orlen {

/// An outline prepared for being compared with others, which tells whether a closer look at the pictures is
/// worth while. 6 kB. Borrows the outline. Pure; any thread.
class QuickLook {
public:
    explicit QuickLook(const PictureOutline& outline);

    /// How much hope is left that `FineCheck::agreement` finds much: 0 for none, up to 1, which is also for
    /// two pictures without structure. Symmetric. Some 10 microseconds.
    [[nodiscard]] static float hope(const QuickLook& one, const QuickLook& other);

private:
    static constexpr int kReach = 5;  ///< pixels that a block may have moved
    static constexpr int kLanes = 16; ///< places below each other, of which the reach needs eleven
    static constexpr int kPlaces =
        PictureOutline::kSide - PictureOutline::kBlock + 1; ///< of a block along a side

    /// Eight pixels of each row from there on.
    [[nodiscard]] const std::uint8_t* rows(int left, int top) const
    {
        return &m_rows[static_cast<std::size_t>(left)][std::size_t{kReach} + static_cast<std::size_t>(top)];
    }
    /// The share of this one's structure that is found in the other one under a common motion.
    [[nodiscard]] float shareIn(const QuickLook& other) const;
    [[nodiscard]] BlockFind find(PictureOutline::Block block, const QuickLook& other) const;

    const PictureOutline& m_outline;
    /// For each place from the left, with rows around them that are read for nothing.
    std::array<std::array<std::uint8_t, kReach + PictureOutline::kSide + kLanes>, kPlaces> m_rows{};
};

} // namespace orlen
