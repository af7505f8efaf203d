#pragma once

#include "model/FileEntry.h"

#include <stop_token>
#include <vector>

namespace orlen {
class UnreadableFolders;
}

/// Translations inside applications for languages that the user does not prefer.
namespace orlen::LanguagePacks {

/// The translation folders of all applications that the user may change, but for the preferred languages,
/// English and the base resources. Applications of the system's maker are left whole. Blocks on the disk; any
/// thread. A stopped search returns what it has. `unreadable`, when not null, is told of folders that could
/// not be measured.
[[nodiscard]] std::vector<FileEntry> entries(UnreadableFolders* unreadable, const std::stop_token& stop);

} // namespace orlen::LanguagePacks
