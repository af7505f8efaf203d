#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Changes the text of a desktop entry file that somebody else wrote. Untrusted input; pure.
namespace orlen::DesktopEntryEdit {

struct Setting {
    std::string_view key;
    std::string_view value;
};

/// The text with these keys of the group [Desktop Entry] set: their lines are replaced wherever they stand in
/// it, missing ones are added below its heading, and every other line is kept byte for byte. Nothing when the
/// text has no such group.
[[nodiscard]] std::optional<std::string> withSettings(std::string_view text,
                                                      std::span<const Setting> settings);

} // namespace orlen::DesktopEntryEdit
