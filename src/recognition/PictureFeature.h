#pragma once

#include <string_view>

namespace orlen {

/// One measured property of a picture.
struct PictureFeature {
    std::string_view name;
    float value = 0;
};

} // namespace orlen
