#pragma once

#include "tools/apps/AppInfo.h"

#include <QString>

#include <cstddef>
#include <cstdint>

/// Texts about applications. Pure; any thread.
namespace orlen::AppInfoTexts {

/// "12 applications · 4.2 GB"; no size while it is 0.
[[nodiscard]] QString summary(std::size_t applications, std::int64_t bytes);
/// "3 folders · 4.2 MB", of what applications left behind.
[[nodiscard]] QString foldersSummary(std::size_t folders, std::int64_t bytes);
/// Kind and place of the installation: "AppImage · ~/Applications".
[[nodiscard]] QString origin(const AppInfo& app);
/// How much of it is data, if any, and when it was last used, or that nobody knows.
[[nodiscard]] QString usage(const AppInfo& app);
/// The last use alone.
[[nodiscard]] QString lastUse(const AppInfo& app);
/// "Flatpak", "App folder" …
[[nodiscard]] QString kind(AppSource source);
/// The icon's id for `AppIconProvider`.
[[nodiscard]] QString iconId(const AppInfo& app);
/// The heading over the leftovers.
[[nodiscard]] QString leftoversHeading(const AppInfo& app);

} // namespace orlen::AppInfoTexts
