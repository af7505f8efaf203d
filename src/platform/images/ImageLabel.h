#pragma once

#include <string>

namespace orlen {

/// A label for what a picture shows.
struct ImageLabel {
    std::string identifier;
    float confidence = 0; ///< 0 to 1

    friend bool operator==(const ImageLabel&, const ImageLabel&) = default;
};

} // namespace orlen
