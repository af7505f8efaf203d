#pragma once

#include "model/FileEntry.h"
#include "tools/apps/AppInfo.h"

#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

/// Files that an application has left in the user's folders: found by its identifier, its name and its
/// launchers, never by a look into them. Protected paths are never among them. Blocks on the disk: never call
/// from the main thread.
namespace orlen::Leftovers {

inline constexpr std::string_view kByNameOnly = "Matched by name only";

/// Whether the identifier is one of the system's own applications, for which a warning is shown and looser
/// matches are off.
[[nodiscard]] bool isApple(std::string_view bundleID);

/// What kind of thing lies where the leftover lies, for example "Caches"; empty for a path that is none.
[[nodiscard]] std::string_view label(std::string_view path);

/// By identifier and name alone: what is known of an application that is gone. An empty identifier matches
/// nothing. Root by root, in the order of each folder's names; a path is told once.
[[nodiscard]] std::vector<FileEntry> find(const std::string& bundleID, const std::string& name,
                                          const std::stop_token& stop = {});

/// What is to be shown of one application of the list.
struct Finding {
    std::vector<FileEntry> entries;
    /// Another copy of it is listed, which still uses the files: none are offered.
    bool isOtherCopyInstalled = false;
};

/// The same with what only the application itself can tell: its launchers, units that start it, files beside
/// it, and whether another copy is among `listed`.
[[nodiscard]] Finding find(const AppInfo& app, std::span<const AppInfo> listed,
                           const std::stop_token& stop = {});

} // namespace orlen::Leftovers
