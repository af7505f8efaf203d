#pragma once

#include <cstddef>
#include <string_view>

/// Checks the structure of a binary property list before a library expands it. Pure; any thread.
namespace orlen::BinaryPlist {

[[nodiscard]] bool isBinary(std::string_view bytes);

/// Most arrays and dictionaries in a list, which also bounds their nesting.
inline constexpr std::size_t kMostContainers = 10'000;

/// Whether the list is complete and safe to expand. Objects may be referenced many times, so a few hundred
/// bytes of shared arrays can expand to gigabytes or forever. Therefore no array or dictionary may be
/// referenced twice; strings and numbers may, as writers do to save space, up to a limit. At most
/// `kMostContainers` containers, and no NUL in a string.
[[nodiscard]] bool isSafeToUnfold(std::string_view bytes);

} // namespace orlen::BinaryPlist
