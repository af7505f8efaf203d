#pragma once

#include "platform/images/RgbImage.h"
#include "recognition/PictureFeature.h"

#include <string_view>
#include <vector>

/// Hand-made features that tell kinds of pictures apart: colours, flat areas, edges, lines of text, captions.
/// Re-encoding changes them little. Pure; any thread.
namespace orlen::PictureFeatures {

/// Always the same features in the same order. Empty for an empty picture; a tiny one is enlarged first.
[[nodiscard]] std::vector<PictureFeature> of(const RgbImage& image);

/// The value of a feature; 0 if there is none of that name.
[[nodiscard]] float valueOf(const std::vector<PictureFeature>& features, std::string_view name);

} // namespace orlen::PictureFeatures
