#pragma once

#include "model/Text.h"

/// Notes about entries that several rooms give.
namespace orlen::ModelTexts {

inline constexpr Text kBrowserCache = message("Browser cache, rebuilt as you browse.");
inline constexpr Text kOfflineData = message("May hold offline data of a web app.");

} // namespace orlen::ModelTexts
