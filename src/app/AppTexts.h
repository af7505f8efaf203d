#pragma once

#include <string>
#include <string_view>

/// The sentences of the application model. Pure.
namespace orlen::AppTexts {

inline constexpr std::string_view kScanPlanTitle = "Smart Scan clean-up";

/// What a restore tells the user.
[[nodiscard]] std::string restored(int restored, int failed);

} // namespace orlen::AppTexts
