#pragma once

#include "model/FileEntry.h"
#include "model/Text.h"
#include "tools/ToolsTexts.h"
#include "tools/apps/AppInfo.h"

#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

/// Files an application has left in the user's folders, found by its identifier, name and launchers, never by
/// their contents. Protected paths are never included. Blocks on the disk: never call from the main thread.
namespace orlen::Leftovers {

/// A note of those entries that may belong to something else of that name.
inline constexpr Text kByNameOnly = ToolsTexts::kByNameOnly;

/// Whether the identifier belongs to the system vendor: a warning is shown then, and loose matching is off.
[[nodiscard]] bool isApple(std::string_view bundleID);

/// What is usually at a leftover's place, for example "Caches"; empty if the path is not one.
[[nodiscard]] Text label(std::string_view path);

/// By identifier and name only: all that is known of a removed application. An empty identifier matches
/// nothing. Root by root, sorted by name; each path once.
[[nodiscard]] std::vector<FileEntry> find(const std::string& bundleID, const std::string& name,
                                          const std::stop_token& stop = {});

/// The leftovers of one application of the list.
struct Finding {
    std::vector<FileEntry> entries; ///< surely the application's
    std::vector<FileEntry> byName;  ///< may belong to something else of that name: never chosen beforehand
    /// Another copy is installed and still uses the files: none are offered.
    bool isOtherCopyInstalled = false;
};

/// The same, also using what only an installed application can tell: its launchers, units that start it,
/// files beside it, and other copies among `listed`.
[[nodiscard]] Finding find(const AppInfo& app, std::span<const AppInfo> listed,
                           const std::stop_token& stop = {});

} // namespace orlen::Leftovers
