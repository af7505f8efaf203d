#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/FindingParts.h"
#include "insight/reader/Names.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// Chooses entries for a clean-up. Nothing is ever chosen that is rated Keep by any finding that lists it,
/// that is protected, or that is only ticked alone. Pure; any thread.
namespace orlen::AskReader {

using Paths = std::unordered_set<std::string_view>;

/// All that may be chosen with this rating, each path once, largest first. Of a file and its copies, what is
/// kept stays. If `among` is given, only of these.
[[nodiscard]] std::vector<Hit> choosable(const AskContext& context, Rating rating,
                                         const Exclusions& exclusions, const Paths* among = nullptr);

/// Drops the copies of what goes already: one of them stays.
void dropCopiesOf(const AskContext& context, const std::vector<Hit>& going, std::vector<Hit>& hits);

/// As few of the hits, largest first, as reach `wanted` bytes; all of them if they don't.
[[nodiscard]] std::vector<Hit> reaching(std::vector<Hit> hits, std::int64_t wanted);

[[nodiscard]] std::int64_t bytesOf(const std::vector<Hit>& hits);
/// The hits by their findings, largest first.
[[nodiscard]] std::vector<FindingPart> partsOf(const std::vector<Hit>& hits);
void appendPaths(std::vector<std::string>& paths, const std::vector<Hit>& hits);

} // namespace orlen::AskReader
