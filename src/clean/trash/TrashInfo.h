#pragma once

#include "platform/values/Time.h"

#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// The content of the info file beside a trashed item. Pure except for the local time zone; any thread.
struct TrashInfo {
    /// Where the item was, decoded: absolute, or relative to the top folder of its volume.
    std::string path;
    /// When it was trashed, in local time; nothing if missing or malformed.
    std::optional<TimePoint> deleted;

    /// The text of an info file; whole seconds, local time.
    [[nodiscard]] static std::string text(std::string_view path, TimePoint deleted);
    /// Nothing if this is not an info file, or its path is missing, badly encoded or contains a NUL. Unknown
    /// keys are ignored; the first line for a key counts.
    [[nodiscard]] static std::optional<TrashInfo> parse(std::string_view text);
};

} // namespace orlen
