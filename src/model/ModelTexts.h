#pragma once

#include "model/Text.h"

/// Texts that several rooms need.
namespace orlen::ModelTexts {

// TRANSLATORS: Between names, sizes and dates on one line. A dot that could be a zero in your digits needs
// another sign in its place.
inline constexpr Text kBetweenFacts = messageIn("between two facts", " · ");

// Notes about entries
inline constexpr Text kBrowserCache = message("Browser cache, rebuilt as you browse.");
inline constexpr Text kOfflineData = message("May hold offline data of a web app.");

} // namespace orlen::ModelTexts
