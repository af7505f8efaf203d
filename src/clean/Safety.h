#pragma once

#include <string>
#include <string_view>

/// The one gate for every path that is offered, entered, moved or restored. Any thread.
///
/// Fixed rules come from tables; mounts, folders of sync programs and the parents of protected places are
/// read by `refresh` into an immutable table, so that asking never touches the disk.
namespace orlen::Safety {

/// The user's home folder, the same text for the whole process.
[[nodiscard]] const std::string& home();

/// True if the path must not be moved, restored into or offered. Comparisons are exact and case-sensitive.
[[nodiscard]] bool isProtected(std::string_view path);

/// True if the path and everything below it is protected, so that a walk need not enter it. A kept folder
/// (Documents, Pictures and their like) is protected itself but not its contents.
[[nodiscard]] bool protectsContents(std::string_view path);

/// Reads mounts and sync folders again. Called at start, before every scan and before every clean-up and
/// restore. Blocks on the disk.
void refresh();

/// Whether a folder that holds a file or folder of this name is mirrored by a sync program.
[[nodiscard]] bool isSyncMarker(std::string_view name);

} // namespace orlen::Safety
