#pragma once

#include "scan/ScanTexts.h"
#include "scan/locations/SourceTable.h"

/// The parts of the table of known places on Linux desktops, one per concern.
namespace orlen::SourceTables {

/// The children of every cache folder, by name. What no row names is offered for review.
[[nodiscard]] std::vector<SourceRow> cacheNames();
/// Toolchains and package managers.
[[nodiscard]] std::vector<SourceRow> tools();
/// Applications: web views, games, models, media.
[[nodiscard]] std::vector<SourceRow> apps();
[[nodiscard]] std::vector<SourceRow> logs();
/// Backups of devices, the Trash, opened attachments, translations, downloads.
[[nodiscard]] std::vector<SourceRow> personal();

// Shared by the parts.
using Names = std::vector<std::string_view>;

/// Programs whose "logs" are the user's conversations.
[[nodiscard]] const Names& chatPrograms();

} // namespace orlen::SourceTables
