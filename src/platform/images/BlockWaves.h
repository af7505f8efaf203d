#pragma once

#include <array>
#include <cstddef>

/// The cosine transform of blocks of pixels. Pure; any thread.
namespace orlen::BlockWaves {

inline constexpr std::size_t kSide = 8;

/// Row by row. Of frequencies, the first is that of nothing but one level.
using Block = std::array<float, kSide * kSide>;

[[nodiscard]] Block frequenciesOf(const Block& pixels);

/// From frequencies whose rows and columns are swapped, which saves doing so.
[[nodiscard]] Block pixelsOf(const Block& swapped);

} // namespace orlen::BlockWaves
