#pragma once

#include <cstdint>
#include <span>
#include <vector>

/// A tiny picture in each supported format, embedded in the program.
namespace orlen::Samples {

[[nodiscard]] std::vector<std::span<const std::uint8_t>> all();

} // namespace orlen::Samples
