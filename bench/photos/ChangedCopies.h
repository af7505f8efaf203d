#pragma once

#include "platform/images/RgbImage.h"

#include <random>
#include <span>

/// Copies of a picture as cameras, messengers and picture editors change it.
namespace orlen::ChangedCopies {

using Random = std::mt19937;

struct Change {
    const char* name;
    RgbImage (*apply)(const RgbImage& image, Random& random);
};

[[nodiscard]] std::span<const Change> all();

} // namespace orlen::ChangedCopies
