#pragma once

#include "platform/images/PictureOutline.h"
#include "platform/values/WideLanes.h"
#include "scan/photos/BlockSearch.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orlen {

/// An outline prepared for being compared with others, which tells whether a closer look at the pictures is
/// worth while. 4 kB. Borrows the outline. Pure; any thread.
class QuickLook {
public:
    explicit QuickLook(const PictureOutline& outline);

    /// How much hope is left that `FineCheck::agreement` finds much: 0 for none, up to 1, which is also for
    /// two pictures without structure. Symmetric. Some 5 microseconds.
    [[nodiscard]] static float hope(const QuickLook& one, const QuickLook& other);

private:
    static constexpr int kPlaces =
        PictureOutline::kSide - PictureOutline::kBlock + 1; ///< of a block along a side

    using Finds = std::array<BlockFind, PictureOutline::kMostBlocks>;

    [[nodiscard]] static float sharedBy(const QuickLook& one, const QuickLook& other);
    /// Where each of this one's blocks is.
    [[nodiscard]] Finds allFindsIn(const QuickLook& other) const;
    [[nodiscard]] Finds findsIn(const QuickLook& other) const;
    [[nodiscard]] Finds findsInWideLanes(const QuickLook& other) const;
    [[nodiscard]] Finds findsInWidestLanes(const QuickLook& other) const;
    [[nodiscard]] static BlockFind found(PictureOutline::Block block, unsigned least);
    void fillColumns();
    void fillColumnsInWidestLanes();
    void fillFours();

    [[nodiscard]] const std::uint8_t* column(int left, int top) const
    {
        return m_pixels.data() + kMargin + std::ptrdiff_t{left} * PictureOutline::kSide + top;
    }
    [[nodiscard]] const std::uint8_t* fours(int left, int top) const
    {
        return m_pixels.data() + kMargin + std::ptrdiff_t{top} * PictureOutline::kSide + left;
    }
    /// The pixels of a block there, a byte for each of its rows.
    [[nodiscard]] std::uint64_t pixels(int left, int top) const
    {
        std::uint64_t all = 0;
        std::memcpy(&all, column(left, top), sizeof all);
        return all;
    }

    static constexpr int kMargin = 32; ///< for reading more than there is

    const PictureOutline& m_outline;
    WideLanes::Width m_width;
    /// For each place from the left, eight pixels of each row; in wide lanes (not in the widest), for each
    /// row, four pixels from each on.
    std::array<std::uint8_t,
               std::size_t{PictureOutline::kSide} * PictureOutline::kSide + std::size_t{2} * kMargin>
        m_pixels;
};

} // namespace orlen
