#pragma once

#include "model/FileEntry.h"

#include <stop_token>
#include <vector>

namespace orlen {
class UnreadableFolders;
}

/// Translations inside application bundles for languages the user does not prefer.
namespace orlen::LanguagePacks {

/// The translation folders of all applications the user may modify, except preferred languages, English and
/// base resources. The system vendor's applications are left complete. Blocks on the disk; any thread. If
/// stopped, returns what it has. `unreadable`, if not null, collects folders that could not be measured.
[[nodiscard]] std::vector<FileEntry> entries(UnreadableFolders* unreadable, const std::stop_token& stop);

} // namespace orlen::LanguagePacks
