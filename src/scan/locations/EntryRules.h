#pragma once

#include <string>
#include <string_view>

/// What single rows of the table of sources ask of an entry or say about it. Any thread; those that take a
/// path block on the disk.
namespace orlen::EntryRules {

/// Whether a name is that of a log: "x.log", a rotated "x.log.1" or "x.log-20250301.gz", or a set-aside
/// "x.log.old". Pure.
[[nodiscard]] bool isLogName(std::string_view name);

/// Whether the path is named like a log.
[[nodiscard]] bool isNamedLikeLog(const std::string& path);
/// Whether it is a regular file named like a log, or a folder named "log" or "logs".
[[nodiscard]] bool isLogFileOrLogsFolder(const std::string& path);

/// "Deleted from" the folder in which an item of the Trash was; empty when its info file does not tell, or
/// tells something that no screen could show.
[[nodiscard]] std::string trashNote(const std::string& trashed);

} // namespace orlen::EntryRules
