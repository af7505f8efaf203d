#pragma once

#include <chrono>
#include <string>

namespace orlen {

/// What a sound file, or a film of some formats, tells of itself; empty or 0 where it does not.
struct MediaFacts {
    std::chrono::milliseconds length{0};
    int kilobits = 0;  ///< thousand bits for a second
    std::string title; ///< valid UTF-8, as the next two
    std::string artist;
    std::string album;

    friend bool operator==(const MediaFacts&, const MediaFacts&) = default;
};

} // namespace orlen
