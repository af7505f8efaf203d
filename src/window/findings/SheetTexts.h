#pragma once

#include "model/Rating.h"
#include "platform/values/Time.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace orlen {
struct FileEntry;
}

/// Sentences with figures for the sheets. Pure; any thread.
namespace orlen::SheetTexts {

/// "4,389 of 5,000 selected · 100 GB"
[[nodiscard]] QString selected(std::int64_t count, std::int64_t total, std::int64_t bytes);
/// "5,000 items · 100 GB"
[[nodiscard]] QString items(std::int64_t count, std::int64_t bytes);
/// "Why Safe: …"; empty without a reason.
[[nodiscard]] QString why(Rating rating, std::string_view reason);
/// "Opened 3/1/25", else "Modified 3/1/25", else empty.
[[nodiscard]] QString dateOf(const FileEntry& entry);
/// The date that `dateOf` shows.
[[nodiscard]] std::optional<TimePoint> shownDate(const FileEntry& entry);
/// "12 of 340 selected"
[[nodiscard]] QString selectedCount(std::int64_t count, std::int64_t total);
/// "12 of 340"
[[nodiscard]] QString progress(std::int64_t done, std::int64_t total);
/// "1 item", "5,000 items"
[[nodiscard]] QString itemCount(std::int64_t count);
/// "Opened 3/1/25"
[[nodiscard]] QString opened(TimePoint time);
/// "Modified 3/1/25"
[[nodiscard]] QString modified(TimePoint time);
/// "4,032 × 3,024"
[[nodiscard]] QString pixels(int width, int height);

} // namespace orlen::SheetTexts
