#pragma once

#include <cstdint>
#include <string>

namespace orlen {

/// A BMP file of coloured squares, different ones for each seed.
std::string testBmp(int width, int height, std::uint32_t seed = 1);

} // namespace orlen
