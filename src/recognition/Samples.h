#pragma once

#include <cstdint>
#include <span>
#include <vector>

/// A tiny picture in each format of a library, in the program itself.
namespace orlen::Samples {

[[nodiscard]] std::vector<std::span<const std::uint8_t>> all();

} // namespace orlen::Samples
