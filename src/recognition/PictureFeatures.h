#pragma once

#include "platform/images/RgbImage.h"
#include "recognition/PictureFeature.h"

#include <string_view>
#include <vector>

/// Designed properties of a picture that tell its kind: colours, flat areas, edges, lines of text, captions.
/// They change little when a picture is encoded again. Pure; any thread.
namespace orlen::PictureFeatures {

/// Always the same features in the same order. Nothing for an empty picture; a tiny one is measured enlarged.
[[nodiscard]] std::vector<PictureFeature> of(const RgbImage& image);

/// The value of a feature; 0 when there is none of that name.
[[nodiscard]] float valueOf(const std::vector<PictureFeature>& features, std::string_view name);

} // namespace orlen::PictureFeatures
