#pragma once

#include "platform/images/BlockSearch.h"

#include <array>
#include <span>

namespace orlen {

/// One motion for a whole picture: shifted, turned, stretched. Pure; any thread.
class CommonMotion {
public:
    /// The motion that most of the structure follows; blocks that went elsewhere hardly count.
    [[nodiscard]] static CommonMotion fitted(std::span<const BlockFind> finds);

    /// How well a find fits in: 1 for exactly, a half at two pixels beside, towards 0.
    [[nodiscard]] float obedience(const BlockFind& find) const;

private:
    /// Pixels moved at the picture's middle, and more per step to the right and down; see BlockFind.
    using Axis = std::array<float, 3>;

    [[nodiscard]] float squaredMiss(const BlockFind& find) const;

    Axis m_x{};
    Axis m_y{};
};

} // namespace orlen
