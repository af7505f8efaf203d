#pragma once

#include "tools/apps/AppInfo.h"

#include <functional>
#include <span>
#include <stop_token>
#include <vector>

/// The user's installed applications. Nothing is run or mounted to inspect them. Blocks on the disk: never
/// call from the main thread.
namespace orlen::AppList {

/// Sorted by name in the user's language, ignoring case, with their last use; sizes are absent. The program
/// itself is left out. Unreadable files and folders are skipped.
[[nodiscard]] std::vector<AppInfo> list(const std::stop_token& stop = {});

/// `index` into the list, and its bytes on disk.
using Measured = std::function<void(std::size_t index, std::int64_t bytes)>;

/// Measures all of them in parallel and reports each size once known, from any thread but one call at a time.
/// Reports nothing more once stopped.
void measure(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop = {});

/// The same for what they have stored: the folder that their manager gives them, or the leftovers that would
/// go along with them.
void measureData(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop = {});

/// How many programs in the menus came with packages of the distribution, which the list leaves out. 0 when
/// stopped.
[[nodiscard]] std::size_t countPackaged(const std::stop_token& stop = {});

/// Whether the user is running an executable from inside the application.
[[nodiscard]] bool isRunning(const AppInfo& app);

} // namespace orlen::AppList
