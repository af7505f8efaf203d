#pragma once

#include "platform/images/ImageAnalysis.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What a recognizer says, as bytes. Both sides are the same build on the same machine, so numbers stand in
/// memory order; but the recognizer reads untrusted pictures, so nothing that comes from it is believed
/// unchecked. Pure; any thread.
namespace orlen::ImageMessages {

/// The first message: the recognizer has started. The number changes with the form of the answers.
inline constexpr std::string_view kReady = "orlen-recognizer 1";

/// No answer is longer, in bytes.
inline constexpr std::size_t kLongest = 32UL * 1024;
inline constexpr std::size_t kMostLabels = 32;
inline constexpr std::size_t kLongestIdentifier = 64; ///< bytes

struct Answer {
    std::optional<ImageAnalysis> analysis; ///< absent: no picture that can be read
};

/// Labels past the limits are left out.
[[nodiscard]] std::string encoded(const Answer& answer);

/// Nothing for bytes that no recognizer writes: wrong lengths, numbers that are none or out of range, words
/// that are not UTF-8.
[[nodiscard]] std::optional<Answer> decoded(std::string_view bytes);

} // namespace orlen::ImageMessages
