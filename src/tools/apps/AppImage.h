#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Applications in a single executable file, detected by their first bytes: suffixes are often missing or
/// wrong.
namespace orlen::AppImage {

inline constexpr std::size_t kHeadLength = 11;

/// Whether a file starting with these bytes is one. Pure.
[[nodiscard]] bool isHead(std::string_view bytes);

/// Whether a name in an open folder is a regular file that is one. Blocks on the disk.
[[nodiscard]] bool isOneAt(int folder, const std::string& name);

/// The file's name as words, without suffix, architecture and version. Pure.
[[nodiscard]] std::string nameFromFile(std::string_view fileName);

} // namespace orlen::AppImage
