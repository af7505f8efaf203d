#pragma once

#include "clean/Protection.h"

#include <string>
#include <string_view>

namespace orlen {
struct FolderEntry;
}

/// The single gate for every path that is offered, entered, moved or restored. Any thread.
///
/// Fixed rules come from tables. Mounts, sync folders and the parents of protected places are read by
/// `refresh` into an immutable table, so that queries never touch the disk.
namespace orlen::Safety {

/// The user's home folder; the same for the whole process.
[[nodiscard]] const std::string& home();

/// True if the path must not be moved, restored to or offered. Comparisons are exact and case-sensitive.
[[nodiscard]] bool isProtected(std::string_view path);

/// True if the path and everything below it is protected, so a walk can skip it. A kept folder (Documents,
/// Pictures and so on) is protected itself, but not its contents.
[[nodiscard]] bool protectsContents(std::string_view path);

/// Which rule protects the path, for showing why; `none` exactly if `isProtected` is false.
[[nodiscard]] Protection protection(std::string_view path);

/// Reads mounts and sync folders again. Called at start and before every scan, clean-up and restore. Blocks
/// on the disk.
void refresh();

/// Whether this entry of an open folder shows that a sync program mirrors the folder. Blocks on the disk.
[[nodiscard]] bool isSyncMarker(int folder, const FolderEntry& entry);

} // namespace orlen::Safety
