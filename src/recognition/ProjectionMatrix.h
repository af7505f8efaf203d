#pragma once

#include "platform/images/FeaturePrint.h"
#include "recognition/LayoutDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// The learnt matrix, embedded in the program: half-precision floats, little-endian. One row of
/// FeaturePrint::kLength per number of the descriptor, then one row of offsets.
namespace orlen::ProjectionMatrix {

inline constexpr std::size_t kRows = LayoutDescriptor::kLength + 1;

[[nodiscard]] std::span<const std::uint16_t, kRows * FeaturePrint::kLength> values();

} // namespace orlen::ProjectionMatrix
