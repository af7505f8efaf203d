#pragma once

#include "platform/images/ImageAnalysis.h"
#include "platform/images/MediaFacts.h"
#include "platform/images/PictureBound.h"
#include "platform/images/SmallPicture.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The messages to and from a recognizer, as bytes. Both sides are the same build on the same machine, so
/// numbers are in native byte order. But the recognizer handles untrusted pictures, so its replies are fully
/// checked. Pure; any thread.
namespace orlen::ImageMessages {

/// The first message: the recognizer is ready. The number changes with the message format.
inline constexpr std::string_view kReady = "orlen-recognizer 10";

/// Longest answer, in bytes.
inline constexpr std::size_t kLongest = 8UL * 1024;
inline constexpr std::size_t kMostLabels = 32;
inline constexpr std::size_t kLongestIdentifier = 64; ///< bytes
inline constexpr std::size_t kMostSounds = 16;        ///< tracks of a film
/// Of a requested picture, in pixels.
inline constexpr int kLongestSide = 4096;

/// Accompanies the file of a picture or an archive. A request for a small picture also passes a buffer for
/// its pixels, and one for the contents of an archive a buffer for an `ArchiveMessage`.
struct Question {
    std::optional<PictureBound> bound; ///< of the small picture; absent: analyse the picture instead
    /// Of the small picture. An icon lies inside its bound.
    PictureUse use = PictureUse::photo;
    bool isAboutArchive = false; ///< then without a bound
    bool isAboutMedia = false;   ///< likewise
};

[[nodiscard]] std::string encoded(const Question& question);
[[nodiscard]] std::optional<Question> decodedQuestion(std::string_view bytes);

/// The result of an analysis.
struct Answer {
    std::optional<ImageAnalysis> analysis; ///< absent: not a readable picture
};

/// Whether a print's outline is said, too. Without, an answer is a seventh shorter, and decoding it takes
/// longer.
enum class Outlines { with, without };
/// Labels beyond the limits are left out. Answers are also kept on the disk.
[[nodiscard]] std::string encoded(const Answer& answer, Outlines outlines = Outlines::with);
/// Nothing for bytes that no recognizer would send: wrong lengths, numbers that are NaN or out of range, text
/// that is not UTF-8.
[[nodiscard]] std::optional<Answer> decodedAnswer(std::string_view bytes);

/// A small picture. Its pixels are at the start of the buffer, followed by the alpha channel of an icon.
struct PictureAnswer {
    struct Sizes {
        PixelSize whole; ///< the picture in the file, upright
        PixelSize small;
        std::int32_t pages = 0; ///< of a document
    };
    std::optional<Sizes> sizes; ///< absent: not a readable picture
};

[[nodiscard]] std::string encoded(const PictureAnswer& answer);
/// Nothing for bytes that no recognizer would send, or if the small picture is larger than requested.
[[nodiscard]] std::optional<PictureAnswer> decodedPictureAnswer(std::string_view bytes, PixelSize most);

/// The contents of an archive, which are at the start of the buffer.
struct ArchiveAnswer {
    std::uint32_t length = 0; ///< bytes; 0: not a readable archive
};

[[nodiscard]] std::string encoded(const ArchiveAnswer& answer);
[[nodiscard]] std::optional<ArchiveAnswer> decodedArchiveAnswer(std::string_view bytes);

/// What a sound file or a film tells.
struct MediaAnswer {
    std::optional<MediaFacts> facts; ///< absent: not a readable one
};

/// Texts are at most 200 bytes.
[[nodiscard]] std::string encoded(const MediaAnswer& answer);
[[nodiscard]] std::optional<MediaAnswer> decodedMediaAnswer(std::string_view bytes);

} // namespace orlen::ImageMessages
