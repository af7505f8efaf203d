#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <string_view>

/// Changes among the entries of open folders. A name is one component in the folder of a descriptor; a link
/// of that name is never followed. Any thread; blocks on the disk.
namespace orlen {

/// Opens a folder to act on the names in it: asks for permission to search it, not to list it. ENOTDIR when
/// the folder or any folder on the absolute path to it is a link, so that what was resolved before is what is
/// opened.
[[nodiscard]] Result<UniqueFd> openUnlinkedFolder(const std::string& path);
/// The same for one name in an open folder.
[[nodiscard]] Result<UniqueFd> openUnlinkedFolderAt(int parent, const char* name);
/// Makes the folder with `mode` first when the name is missing.
[[nodiscard]] Result<UniqueFd> openOrMakeFolderAt(int parent, const char* name, unsigned mode);

/// A new empty file that only the user may read, open for writing. EEXIST when the name is taken, by a
/// dangling link too.
[[nodiscard]] Result<UniqueFd> createFileAt(int folder, const char* name);
[[nodiscard]] Result<void> writeAll(int file, std::string_view bytes);
/// Waits until everything written is on the disk.
[[nodiscard]] Result<void> syncFile(int file);

/// Gives an entry another name on the same file system. EEXIST: `newName` is taken, nothing was changed.
/// EXDEV: not the same file system. Where the kernel or the file system cannot refuse a taken name in the
/// same step, it is looked at just before.
[[nodiscard]] Result<void> renameNoReplaceAt(int folder, const char* name, int newFolder,
                                             const char* newName);
/// The same within one folder, over what has the new name: for the program's own files and shared
/// book-keeping.
[[nodiscard]] Result<void> renameReplacingAt(int folder, const char* name, const char* newName);

/// Removes a file of the program's own, never a folder.
[[nodiscard]] Result<void> removeFileAt(int folder, const char* name);

} // namespace orlen
