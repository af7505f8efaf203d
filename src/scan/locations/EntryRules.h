#pragma once

#include "model/Message.h"

#include <string>
#include <string_view>

/// Tests and notes used by single rows of the source table. Any thread; those that take a path block on the
/// disk.
namespace orlen::EntryRules {

/// Whether a name is that of a log: "x.log", a rotated "x.log.1" or "x.log-20250301.gz", or "x.log.old".
/// Pure.
[[nodiscard]] bool isLogName(std::string_view name);

/// Whether the path is named like a log.
[[nodiscard]] bool isNamedLikeLog(const std::string& path);
/// Whether it is a regular file named like a log, or a folder named "log" or "logs".
[[nodiscard]] bool isLogFileOrLogsFolder(const std::string& path);

/// Whether it is a regular file left by a crashed program: a report of the Java runtime, or a memory image
/// named "core" or "core.1234".
[[nodiscard]] bool isCrashDump(const std::string& path);

/// Whether the name is that of a translation into a language this person does not use: "locales/de.pak",
/// "locale/pt_BR", "translations/qtbase_fr.qm".
[[nodiscard]] bool isUnusedTranslation(const std::string& path);

/// "Deleted from" and the original folder of an item in the Trash; empty if its info file does not say, or
/// cannot be displayed.
[[nodiscard]] Message trashNote(const std::string& trashed);

} // namespace orlen::EntryRules
