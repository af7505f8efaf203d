#pragma once

#include "model/FileEntry.h"

#include <stop_token>
#include <vector>

/// Translations inside applications for languages that the user does not prefer.
namespace orlen::LanguagePacks {

/// The translation folders of all applications that the user may change, but for the preferred languages,
/// English and the base resources. Applications of the system's maker are left whole. Blocks on the disk; any
/// thread. A stopped search returns what it has.
[[nodiscard]] std::vector<FileEntry> entries(const std::stop_token& stop);

} // namespace orlen::LanguagePacks
