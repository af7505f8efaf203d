#pragma once

#include <string_view>

/// A look at the structure of binary property lists, before a library unfolds them. Pure, any thread.
namespace orlen::BinaryPlist {

[[nodiscard]] bool isBinary(std::string_view bytes);

/// Whether the list is whole and unfolds to little more than it is. Lists may refer to one object many times:
/// a few hundred bytes that share their arrays unfold to gigabytes, or without end. So no array or dictionary
/// may be referred to twice; texts and numbers may, as writers do to save space, up to a limit.
[[nodiscard]] bool isSafeToUnfold(std::string_view bytes);

} // namespace orlen::BinaryPlist
