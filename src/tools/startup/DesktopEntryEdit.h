#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Edits the text of somebody else's desktop entry file. Untrusted input; pure.
namespace orlen::DesktopEntryEdit {

struct Setting {
    std::string_view key;
    std::string_view value;
};

/// The text with these keys set in the group [Desktop Entry]: existing lines are replaced wherever they are
/// in it, missing ones are added below its heading, and all other lines stay as they are. Nothing if there is
/// no such group.
[[nodiscard]] std::optional<std::string> withSettings(std::string_view text,
                                                      std::span<const Setting> settings);

} // namespace orlen::DesktopEntryEdit
