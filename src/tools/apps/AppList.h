#pragma once

#include "tools/apps/AppInfo.h"

#include <functional>
#include <span>
#include <stop_token>
#include <vector>

/// The installed applications of this user. Nothing is ever run or mounted to learn about it. Blocks on the
/// disk: never call from the main thread.
namespace orlen::AppList {

/// By name, as the language of the user sorts and whatever the case; sizes are absent. The program itself is
/// left out. Folders and files that cannot be read contribute nothing.
[[nodiscard]] std::vector<AppInfo> list(const std::stop_token& stop = {});

/// `index` into the list, and the bytes on disk.
using Measured = std::function<void(std::size_t index, std::int64_t bytes)>;

/// Measures all of them side by side and tells each size as soon as it is known, from any thread, one call at
/// a time. A stopped measurement tells no more.
void measure(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop = {});

/// Whether a program of this user runs from inside the application, by its executable.
[[nodiscard]] bool isRunning(const AppInfo& app);

} // namespace orlen::AppList
