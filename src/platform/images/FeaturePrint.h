#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orlen {

/// What a picture looks like, for telling how alike two of them are. Pure; any thread.
///
/// Two stages: a short vector of layout, colour and edge directions that survives re-encoding, resizing,
/// cropping and light, and a high-passed grey tile in which the fine structure of one picture is looked up in
/// the other. The second tells two receipts or two pages apart that share their layout.
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
    Vector m_vector; ///< of length 1
    Tile m_tile;     ///< 128 is no structure
};

} // namespace orlen
