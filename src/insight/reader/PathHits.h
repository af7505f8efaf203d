#pragma once

#include "insight/reader/Names.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the last scan lists at a path. Pure; any thread.
namespace orlen::AskReader {

/// For each path the entry that it is or else lies in; of several findings, the one with the most careful
/// rating. The finding is null where no scan lists it.
[[nodiscard]] std::vector<Hit> hitsAround(std::span<const std::string> paths, const AskContext& context);

/// The entries below a folder, each path once, in the order of the findings.
[[nodiscard]] std::vector<Hit> hitsBelow(std::string_view folder, const AskContext& context);

} // namespace orlen::AskReader
