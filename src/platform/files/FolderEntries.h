#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <string_view>

/// Operations on entries of open folders. A name is one component in the descriptor's folder; a link of that
/// name is never followed. Any thread; blocks on the disk.
namespace orlen {

/// Opens a folder to act on names in it. Needs search permission only, not read. ENOTDIR if any component of
/// the absolute path is a link: what was resolved before is what gets opened.
[[nodiscard]] Result<UniqueFd> openUnlinkedFolder(const std::string& path);
/// The same for one name in an open folder.
[[nodiscard]] Result<UniqueFd> openUnlinkedFolderAt(int parent, const char* name);
/// The same, creating the folder with `mode` if it is missing.
[[nodiscard]] Result<UniqueFd> openOrMakeFolderAt(int parent, const char* name, unsigned mode);

/// Creates an empty file that only the user may read, open for writing. EEXIST if the name is taken, even by
/// a dangling link.
[[nodiscard]] Result<UniqueFd> createFileAt(int folder, const char* name);
[[nodiscard]] Result<void> writeAll(int file, std::string_view bytes);
/// Waits until everything written has reached the disk.
[[nodiscard]] Result<void> syncFile(int file);

/// Renames an entry within its file system. EEXIST: `newName` is taken, and nothing changed. EXDEV: other
/// file system. Where the kernel or file system cannot refuse a taken name atomically, the name is checked
/// just before.
[[nodiscard]] Result<void> renameNoReplaceAt(int folder, const char* name, int newFolder,
                                             const char* newName);
/// The same within one folder, replacing what has the new name. Only for the program's own files and shared
/// bookkeeping.
[[nodiscard]] Result<void> renameReplacingAt(int folder, const char* name, const char* newName);

/// Removes a file of the program's own, never a folder.
[[nodiscard]] Result<void> removeFileAt(int folder, const char* name);

} // namespace orlen
