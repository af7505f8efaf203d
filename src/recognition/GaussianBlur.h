#pragma once

#include <vector>

/// Blurs small square planes of floats. Pure; any thread.
namespace orlen::GaussianBlur {

/// `plane` holds side x side values, rows from the top; sigma is in pixels. Edges are mirrored, so a constant
/// plane stays constant.
[[nodiscard]] std::vector<float> blurred(const std::vector<float>& plane, int side, float sigma);

} // namespace orlen::GaussianBlur
