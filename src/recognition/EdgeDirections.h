#pragma once

#include <vector>

/// Which way edges run in each part of a picture. Pure; any thread.
namespace orlen::EdgeDirections {

/// One plane of kEdgeCells x kEdgeCells for each of kDirections directions; see LayoutDescriptor. `grey` is
/// kSide x kSide. Directions tell light-to-dark from dark-to-light.
[[nodiscard]] std::vector<float> of(const std::vector<float>& grey);

} // namespace orlen::EdgeDirections
