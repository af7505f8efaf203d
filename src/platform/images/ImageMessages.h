#pragma once

#include "platform/images/ImageAnalysis.h"
#include "platform/images/PictureBound.h"
#include "platform/images/SmallPicture.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What is asked of a recognizer, and what it says, as bytes. Both sides are the same build on the same
/// machine, so numbers stand in memory order; but the recognizer reads untrusted pictures, so nothing that
/// comes from it is believed unchecked. Pure; any thread.
namespace orlen::ImageMessages {

/// The first message: the recognizer has started. The number changes with the form of the messages.
inline constexpr std::string_view kReady = "orlen-recognizer 3";

/// No answer is longer, in bytes.
inline constexpr std::size_t kLongest = 32UL * 1024;
inline constexpr std::size_t kMostLabels = 32;
inline constexpr std::size_t kLongestIdentifier = 64; ///< bytes
/// Of a picture that is asked for, in pixels.
inline constexpr int kLongestSide = 4096;

/// Comes with the file of a picture. One that asks for a small picture brings a buffer for the pixels along.
struct Question {
    std::optional<PictureBound> bound; ///< of the small picture; absent: what the picture shows
    /// Of the small picture. An icon lies inside its bound.
    PictureUse use = PictureUse::photo;
};

[[nodiscard]] std::string encoded(const Question& question);
[[nodiscard]] std::optional<Question> decodedQuestion(std::string_view bytes);

/// What a picture shows.
struct Answer {
    std::optional<ImageAnalysis> analysis; ///< absent: no picture that can be read
};

/// Labels past the limits are left out.
[[nodiscard]] std::string encoded(const Answer& answer);
/// Nothing for bytes that no recognizer writes: wrong lengths, numbers that are none or out of range, words
/// that are not UTF-8.
[[nodiscard]] std::optional<Answer> decodedAnswer(std::string_view bytes);

/// A small picture, whose pixels lie at the beginning of the buffer; the alpha of an icon follows them.
struct PictureAnswer {
    struct Sizes {
        PixelSize whole; ///< the picture in the file, upright
        PixelSize small;
    };
    std::optional<Sizes> sizes; ///< absent: no picture that can be read
};

[[nodiscard]] std::string encoded(const PictureAnswer& answer);
/// Nothing for bytes that no recognizer writes, or when the small picture is larger than what it was shrunk
/// into.
[[nodiscard]] std::optional<PictureAnswer> decodedPictureAnswer(std::string_view bytes, PixelSize most);

} // namespace orlen::ImageMessages
