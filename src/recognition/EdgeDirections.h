#pragma once

#include <vector>

/// The directions of edges in each part of a picture. Pure; any thread.
namespace orlen::EdgeDirections {

/// One plane of kEdgeCells x kEdgeCells per direction, kDirections of them; see LayoutDescriptor. `grey` is
/// kSide x kSide. Light-to-dark and dark-to-light are different directions.
[[nodiscard]] std::vector<float> of(const std::vector<float>& grey);

} // namespace orlen::EdgeDirections
