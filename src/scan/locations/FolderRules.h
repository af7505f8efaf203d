#pragma once

#include <string>

/// What a folder's contents say about it, for single rows of the source table. Each blocks on the disk and
/// follows no links below the path; any thread. What cannot be read is answered with "no".
namespace orlen::FolderRules {

/// Whether the folder has the signature of a cache directory and is neither a work tree nor an environment.
[[nodiscard]] bool isTaggedCache(const std::string& folder);

/// Whether an engine for web pages keeps an application's data there.
[[nodiscard]] bool holdsWebView(const std::string& folder);
/// The same for the caches of WebKit.
[[nodiscard]] bool holdsWebKitCache(const std::string& folder);

/// Whether the folder is a backup of a phone or tablet: its name is an identifier, and it has the backup's
/// lists.
[[nodiscard]] bool isDeviceBackup(const std::string& folder);

/// Whether it is the folder of an Android virtual device that is not running.
[[nodiscard]] bool isIdleVirtualDevice(const std::string& folder);

/// Whether it is a real folder whose regular files, at any depth, are all named like logs. A folder with more
/// than a few thousand entries counts as something else.
[[nodiscard]] bool holdsOnlyLogs(const std::string& folder);

/// Whether the folder is a whole application: it has an "AppRun", or a program with the folder's name in it
/// or in its "bin".
[[nodiscard]] bool isSelfContainedApp(const std::string& folder);

/// Whether a build with a later date lies beside it, and no program runs from it.
[[nodiscard]] bool isOlderBuild(const std::string& folder);

/// Whether it is a Python environment made for one project whose folder no longer exists: the file ".project"
/// names it, or else the only absolute folder in the "*.pth" files of its packages.
[[nodiscard]] bool isEnvironmentOfGoneProject(const std::string& folder);

/// Whether Steam is not running; the path does not matter.
[[nodiscard]] bool isSteamIdle(const std::string& path);

} // namespace orlen::FolderRules
