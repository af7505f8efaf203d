#pragma once

#include "recognition/ImageDecoder.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace orlen {

/// Pictures in the bytes of their formats, made for a test.
namespace Pictures {

using Colour = std::array<std::uint8_t, 3>;

inline constexpr Colour kRed{255, 0, 0};
inline constexpr Colour kGreen{0, 255, 0};
inline constexpr Colour kBlue{0, 0, 255};
inline constexpr Colour kWhite{255, 255, 255};

/// How the four quarters of a picture are coloured: upper left, upper right, lower left, lower right.
using Quarters = std::array<Colour, 4>;
inline constexpr Quarters kFour{kRed, kGreen, kBlue, kWhite};

struct Options {
    int width = 64;
    int height = 48;
    Quarters quarters = kFour;
    int orientation = 1;         ///< as cameras note it
    std::optional<int> alpha;    ///< of all pixels
    bool isNoisy = false;        ///< so that it does not shrink to nothing
    std::string format = ".png"; ///< with the saver's options
    std::string interpretation;  ///< "grey", "cmyk" or "16 bit" before saving
    std::string cameraMake;
};

/// The file's bytes.
[[nodiscard]] std::string encoded(const Options& options);
[[nodiscard]] std::string png(const RgbImage& picture);
/// The same pixels as a BMP file; without format and notes.
[[nodiscard]] std::string bmp(const Options& options);
/// Several frames: the first has the quarters, the others are black.
[[nodiscard]] std::string animated(const std::string& format);

/// What the decoder makes of these bytes in a file.
[[nodiscard]] std::optional<ImageDecoder::Decoded>
decoded(const std::string& bytes, const PictureBound& bound = ImageDecoder::kForRecognition);

/// The colour in the middle of each quarter.
[[nodiscard]] Quarters quartersOf(const RgbImage& image);
/// The largest difference of a channel.
[[nodiscard]] int difference(const Quarters& a, const Quarters& b);

} // namespace Pictures
} // namespace orlen
