#pragma once

#include "tools/TreeNode.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

/// What is said of the items of the disk map and of their colours. Pure; any thread.
namespace orlen::TileText {

/// Name, size and kind for a screen reader, and whether it could be read.
[[nodiscard]] QString spoken(const TreeNode& node);

enum class Kind { folder, file, rest };
[[nodiscard]] Kind kindOf(const TreeNode& node);

/// The words of the legend, in the order of `Kind` and of the steps of `TileShade`.
[[nodiscard]] QStringList kinds();
[[nodiscard]] QStringList ages();
[[nodiscard]] QStringList growths();
[[nodiscard]] QStringList advice();
/// Icons for the last.
[[nodiscard]] QStringList adviceSymbols();

/// What a folder gained or lost, in bytes: "+3 MB"; empty if it is not known.
[[nodiscard]] QString change(std::optional<std::int64_t> bytes);

} // namespace orlen::TileText
