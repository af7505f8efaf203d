#pragma once

#include "platform/values/Time.h"

#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// What the info file beside a trashed item says. Pure but for the local time zone; any thread.
struct TrashInfo {
    /// Where the item was, bytes as decoded: absolute, or relative to the top folder of its volume.
    std::string path;
    /// When it was trashed, read in the local time zone; nothing when the file does not say it legibly.
    std::optional<TimePoint> deleted;

    /// The whole content of the info file; whole seconds, local time.
    [[nodiscard]] static std::string text(std::string_view path, TimePoint deleted);
    /// Nothing when the text is no info file, names no path, or the path is not encoded properly or
    /// holds a zero byte. Keys of other programs are ignored; of a repeated key the first counts.
    [[nodiscard]] static std::optional<TrashInfo> parse(std::string_view text);
};

} // namespace orlen
