#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace orlen {

/// What a sound file or a film tells of itself; empty or 0 where it does not. Texts are valid UTF-8.
struct MediaFacts {
    /// A sound track.
    struct Sound {
        std::string codec;    ///< "FLAC"
        std::string language; ///< as BCP 47 writes it: "de"
        int hertz = 0;        ///< samples a second
        int channels = 0;

        friend bool operator==(const Sound&, const Sound&) = default;
    };

    std::chrono::milliseconds length{0};
    int kilobits = 0; ///< thousand bits for a second, of all tracks
    std::string title;
    std::string artist;
    std::string album;
    std::string container; ///< "Matroska"
    std::string codec;     ///< of the film's pictures: "H.264"; empty for a sound file
    int width = 0;         ///< pixels, upright
    int height = 0;
    int frames = 0; ///< of the film for a second, rounded
    std::vector<Sound> sounds;

    friend bool operator==(const MediaFacts&, const MediaFacts&) = default;
};

} // namespace orlen
