#pragma once

#include <vector>

/// Smoothing of small square planes of floats. Pure; any thread.
namespace orlen::GaussianBlur {

/// `plane` holds side x side values, rows from the top; sigma is in pixels. The plane is mirrored at its
/// edges, so a constant stays constant.
[[nodiscard]] std::vector<float> blurred(const std::vector<float>& plane, int side, float sigma);

} // namespace orlen::GaussianBlur
