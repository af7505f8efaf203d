#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orlen {

/// Describes what a picture looks like, to tell how similar two pictures are. Pure; any thread.
///
/// It has two parts: a short vector of layout, colour and edge directions, which survives re-encoding,
/// resizing, cropping and changes of light; and a high-passed grey tile, used to look up the fine structure
/// of one picture in another. The tile tells apart two receipts or pages that share a layout.
class FeaturePrint {
public:
    static constexpr int kTileSide = 128; ///< pixels
    static constexpr std::size_t kLength = 128;

    using Vector = std::array<float, kLength>;
    using Tile = std::array<std::uint8_t, static_cast<std::size_t>(kTileSide) * kTileSide>;

    FeaturePrint(const Vector& vector, const Tile& tile) : m_vector(vector), m_tile(tile) {}

    [[nodiscard]] const Vector& vector() const { return m_vector; }
    [[nodiscard]] const Tile& tile() const { return m_tile; }

private:
    Vector m_vector; ///< a unit vector
    Tile m_tile;     ///< 128 means no structure
};

} // namespace orlen
