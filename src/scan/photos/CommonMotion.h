#pragma once

#include "scan/photos/BentRow.h"
#include "scan/photos/BlockSearch.h"

#include <array>
#include <span>

namespace orlen {

/// An affine motion of a whole tile: shift, rotation and stretch. Pure; any thread.
///
/// Two pictures of the same thing differ by one such motion, while blocks matched by chance scatter. The fit
/// is iteratively reweighted least squares: a first fit over all matches, weighted by texture and
/// correlation, then a few rounds in which a match counts less the further it lies from the last fit, so that
/// outliers fade out. A small ridge on the rotation and stretch terms keeps few or collinear matches from
/// bending the result.
class CommonMotion {
public:
    using Point = BentRow::Point;

    /// The motion most of the structure follows.
    [[nodiscard]] static CommonMotion fitted(std::span<const BlockFind> finds);
    /// That of either one, which takes hardly longer than of one alone.
    [[nodiscard]] static std::array<CommonMotion, 2> fitted(std::span<const BlockFind> one,
                                                            std::span<const BlockFind> other);

    /// How closely a match follows the motion: 1 exactly, one half at two pixels off, approaching 0.
    [[nodiscard]] float fit(const BlockFind& find) const;

    /// The share of the structure found, as much as it is alike, that follows the motion: 0 to 1.
    [[nodiscard]] float followingShare(std::span<const BlockFind> finds) const;

    /// The tile with this motion undone. Pixels from outside repeat the edge.
    [[nodiscard]] FeaturePrint::Tile undone(const FeaturePrint::Tile& tile) const;

    /// How far what is at a point of the tile has moved.
    [[nodiscard]] Point moveAt(float x, float y) const;

    /// Whether the whole block is still inside the tile after the motion.
    [[nodiscard]] bool keepsInside(TilePlace block) const;

private:
    /// Pixels moved at the middle of the tile, and how many more at its right and lower edges.
    using Axis = std::array<float, 3>;

    [[nodiscard]] Point target(TilePlace pixel) const;
    [[nodiscard]] float squaredMiss(const BlockFind& find) const;

    Axis m_x{};
    Axis m_y{};
};

} // namespace orlen
