#pragma once

#include "scan/photos/BlockSearch.h"

#include <array>
#include <span>

namespace orlen {

/// One motion for a whole tile: shifted, turned, stretched. Pure; any thread.
class CommonMotion {
public:
    /// The motion that most of the structure follows; blocks that went elsewhere hardly count.
    [[nodiscard]] static CommonMotion fitted(std::span<const BlockFind> finds);

    /// How well a find fits in: 1 for exactly, a half at two pixels beside, towards 0.
    [[nodiscard]] float obedience(const BlockFind& find) const;

    /// The tile taken from where this motion leads to: undoes the motion. Repeats the edge beyond it.
    [[nodiscard]] FeaturePrint::Tile undone(const FeaturePrint::Tile& tile) const;

    /// Whether all of the block still lies in the tile after the motion.
    [[nodiscard]] bool keepsInside(TilePlace block) const;

private:
    /// Pixels moved at the tile's middle, and more of them at its right and lower edges.
    using Axis = std::array<float, 3>;
    struct Point {
        float x = 0;
        float y = 0;
    };

    [[nodiscard]] Point moveAt(float x, float y) const;
    [[nodiscard]] Point target(TilePlace pixel) const;
    [[nodiscard]] float squaredMiss(const BlockFind& find) const;

    Axis m_x{};
    Axis m_y{};
};

} // namespace orlen
