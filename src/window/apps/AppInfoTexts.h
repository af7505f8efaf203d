#pragma once

#include "tools/apps/AppInfo.h"

#include <QString>

#include <cstddef>
#include <cstdint>

/// What the screens say of applications. Pure; any thread.
namespace orlen::AppInfoTexts {

/// "12 applications · 4.2 GB"; without the bytes while they are 0.
[[nodiscard]] QString summary(std::size_t applications, std::int64_t bytes);
/// What kind of installation it is, and where: "AppImage · ~/Applications".
[[nodiscard]] QString origin(const AppInfo& app);
/// The application's icon as `AppIconProvider` takes it.
[[nodiscard]] QString iconId(const AppInfo& app);
/// What stands over the leftovers.
[[nodiscard]] QString leftoversHeading(const AppInfo& app);
/// How many of the leftovers are chosen.
[[nodiscard]] QString chosen(std::size_t chosen, std::size_t leftovers);
/// What to do first while the application runs.
[[nodiscard]] QString quitFirst(const AppInfo& app);

} // namespace orlen::AppInfoTexts
