#pragma once

#include <string_view>

namespace orlen {

/// What a recognizer is prepared for, which costs memory, or opens its cage a little.
enum class RecognizerRole {
    pictures, ///< and archives
    pages,    ///< of documents: may read the system's fonts
    media,    ///< sound files and films: has a library of its own
};

/// The arguments that name them, in their order.
inline constexpr std::string_view kRecognizerRoles[] = {"pictures", "pages", "media"};

} // namespace orlen
