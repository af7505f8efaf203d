#pragma once

#include "clean/Exclusion.h"
#include "clean/RecordJson.h"

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <string>

/// The JSON form of exclusions: {"path": …} or {"name": …}. Pure; any thread.
namespace orlen::ExclusionJson {

/// How many are read at most.
inline constexpr std::size_t kMost = 10'000;

[[nodiscard]] nlohmann::ordered_json encode(const Exclusion& exclusion);

/// Reads an array, whose lines may be in any order and layout. What is no exclusion is left out alone: if the
/// text as a whole is broken, each of its lines is read by itself. Repeated ones are read once, and at most
/// `kMost` in all.
[[nodiscard]] RecordJson::Decoded<Exclusion> decode(std::string text);

} // namespace orlen::ExclusionJson
