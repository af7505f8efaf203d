#pragma once

#include <cstddef>
#include <string_view>

/// A look at the structure of binary property lists, before a library unfolds them. Pure, any thread.
namespace orlen::BinaryPlist {

[[nodiscard]] bool isBinary(std::string_view bytes);

/// Most arrays and dictionaries of a list, which is also as deep as they can nest.
inline constexpr std::size_t kMostContainers = 10'000;

/// Whether the list is whole and unfolds to little more than it is. Lists may refer to one object many times:
/// a few hundred bytes that share their arrays unfold to gigabytes, or without end. So no array or dictionary
/// may be referred to twice; texts and numbers may, as writers do to save space, up to a limit.
/// Nor may there be more than `kMostContainers`, or a character 0 in a text.
[[nodiscard]] bool isSafeToUnfold(std::string_view bytes);

} // namespace orlen::BinaryPlist
