#pragma once

#include "clean/CleanRecord.h"
#include "model/CleanPlan.h"
#include "platform/values/Time.h"
#include "tools/ToolsTexts.h"
#include "tools/apps/AppInfo.h"

#include <span>
#include <stop_token>
#include <vector>

/// Folders of applications that are gone. A folder counts only when it clearly was an application's, nothing
/// installed can be that application, and nothing in it has changed for a long time; what holds the user's
/// own things never counts. When in doubt, a folder is not listed.
namespace orlen::LeftBehind {

/// How long a folder must have been left alone; not asked of data that Flatpak or Snap keeps by its name.
inline constexpr std::chrono::days kQuietDays{60};

inline constexpr Text kTitle = ToolsTexts::kLeftBehind;

/// Rated Review, largest first, each with the reason as its note and the last change of anything inside it.
/// `listed` are the installed applications, `history` the clean-ups made so far. Empty when stopped. Blocks
/// on the disk: never call from the main thread.
[[nodiscard]] std::vector<FileEntry> find(std::span<const AppInfo> listed,
                                          std::span<const CleanRecord> history, TimePoint now,
                                          const std::stop_token& stop = {});

/// The plan for moving these to the Trash. Pure; any thread.
[[nodiscard]] CleanPlan plan(std::vector<FileEntry> entries);

} // namespace orlen::LeftBehind
