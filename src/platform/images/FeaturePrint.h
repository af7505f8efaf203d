#pragma once

#include "platform/images/PictureOutline.h"
#include "platform/images/TileCode.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace orlen {

/// Describes what a picture looks like, to tell how similar two pictures are. Pure; any thread.
///
/// It has two parts: a short vector of layout, colour and edge directions, which survives re-encoding,
/// resizing, cropping and changes of light; and a high-passed grey tile, used to look up the fine structure
/// of one picture in another. The tile tells apart two receipts or pages that share a layout.
///
/// A library has tens of thousands of pictures, so both parts are kept small: the vector's numbers in 8 bits,
/// and the tile packed. Unpacking takes long, so the outline of what that comes to is kept beside it. At most
/// 4.6 kB.
class FeaturePrint {
public:
    static constexpr int kTileSide = TileCode::kSide; ///< pixels
    static constexpr std::size_t kLength = 128;

    using Vector = std::array<float, kLength>;
    using Direction = std::array<std::int8_t, kLength>;
    using Tile = TileCode::Tile;

    /// In the tile 128 means no structure.
    FeaturePrint(const Vector& vector, const Tile& tile)
        : FeaturePrint(directionOf(vector), TileCode::packed(tile))
    {
    }
    /// Unpacks the tile.
    FeaturePrint(const Direction& direction, const std::vector<std::uint8_t>& packedTile)
        : FeaturePrint(direction, packedTile, PictureOutline(TileCode::unpacked(packedTile)))
    {
    }
    /// With the outline of that tile.
    FeaturePrint(const Direction& direction, std::vector<std::uint8_t> packedTile,
                 const PictureOutline& outline)
        : m_direction(direction), m_packedTile(std::move(packedTile)), m_outline(outline)
    {
    }

    /// All zeros, which is no direction, of a vector that has none. Its length does not matter.
    [[nodiscard]] static Direction directionOf(const Vector& vector);

    /// Of the vector; the largest number is 127.
    [[nodiscard]] const Direction& direction() const { return m_direction; }
    [[nodiscard]] const std::vector<std::uint8_t>& packedTile() const { return m_packedTile; }
    [[nodiscard]] const PictureOutline& outline() const { return m_outline; }
    /// Unpacks it, which takes some time.
    [[nodiscard]] Tile tile() const { return TileCode::unpacked(m_packedTile); }

private:
    Direction m_direction{};
    std::vector<std::uint8_t> m_packedTile;
    PictureOutline m_outline;
};

} // namespace orlen
